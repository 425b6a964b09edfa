#include "pages/display_format.h"

#include "resource_ids.h"
#include "shell/services/application.h"
#include "shell/services/handles.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "shell/services/text_size.h"
#include "ui/controls.h"

namespace {
constexpr uint32_t kFirstFormat = 1;
constexpr uint32_t kLastFormat = 12;
constexpr uint32_t kFirstWithoutColumn = 7; // Formats from here on have no column of times.

constexpr int kArrowsLeft = 6;
constexpr int kArrowWidth = 10;
constexpr int kArrowsHeight = 12;
constexpr COLORREF kArrowsMask = RGB(255, 0, 0);
constexpr int kTextLeft = 30;
constexpr int kTextHeight = 16;
constexpr int kSampleGap = 4;

WideString FormatText() {
    const uint32_t format = settingsStore.ApptDisplayFormat.value;
    WideString text;
    text.Format(LanguageText(IDS_CALENDAR_FORMAT).CStr(), static_cast<int>(format));
    text.Append(LanguageText(format < kFirstWithoutColumn ? IDS_CALENDAR_FORMAT_COLUMN
                                                          : IDS_CALENDAR_FORMAT_NO_COLUMN)
                    .CStr());
    return text;
}

// A stored number outside the formats steps to the first or last of them.
uint32_t NextFormat(uint32_t format, bool up) {
    if (up) return format < kFirstFormat || format >= kLastFormat ? kFirstFormat : format + 1;
    return format <= kFirstFormat || format > kLastFormat ? kLastFormat : format - 1;
}

void DrawArrows(HDC dc, int top) {
    // A null module would mean the platform's own bitmaps.
    if (!application.displayLibrary) return;
    const UniqueBitmap arrows(LoadBitmap(application.displayLibrary, MAKEINTRESOURCE(IDB_ARROWS)));
    BITMAP size{};
    if (!arrows || !GetObject(arrows.Get(), sizeof(size), &size)) return;
    TransparentImage(dc, Scale(kArrowsLeft), top, Scale(2 * kArrowWidth), ScaleY(kArrowsHeight),
                     arrows.Get(), 0, 0, size.bmWidth, size.bmHeight, kArrowsMask);
}
} // namespace

DisplayFormat::DisplayFormat() : sample_(settingsStore) {}

void DisplayFormat::Create(HWND page, HFONT font, UINT id) {
    page_ = page;
    textHeight_ = FontMeasure(font).LineHeight();
    CreateStrip(page, id, font);
}

void DisplayFormat::Place(HWND page, int top) {
    RECT client{};
    GetClientRect(page, &client);
    top_ = top;
    PlaceControl(Window(),
                 {Scale(kTextLeft), top, client.right - Scale(kTextLeft), ScaleY(kTextHeight)});
}

int DisplayFormat::SampleTop() const {
    return top_ + textHeight_ + ScaleY(kSampleGap);
}

void DisplayFormat::Paint(HDC dc, int width) {
    DrawArrows(dc, top_);
    sample_.PaintAppointment(dc, SampleTop(), width, LanguageText(IDS_CALENDAR_SAMPLE_SUBJECT),
                             LanguageText(IDS_CALENDAR_SAMPLE_LOCATION));
}

void DisplayFormat::RedrawSample() const {
    ItemSample::Redraw(page_, SampleTop());
}

void DisplayFormat::OnTap(int x, int y) {
    if (y <= top_ || y >= top_ + ScaleY(kArrowsHeight)) return;
    const int left = Scale(kArrowsLeft);
    const int middle = Scale(kArrowsLeft + kArrowWidth);
    const int right = Scale(kArrowsLeft + 2 * kArrowWidth);
    if (x >= left && x < right) Step(x >= middle);
}

int DisplayFormat::ButtonCount() const {
    return 1;
}

bool DisplayFormat::IsOffered(int) const {
    return true;
}

WideString DisplayFormat::NameOf(int) const {
    return {};
}

void DisplayFormat::DrawButton(HDC dc, int, const RECT& place, bool hasFocus) {
    const SelectScope font(dc, Font());
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, RGB(0, 0, 0));
    RECT text = place;
    text.left += Scale(kSampleGap);
    DrawText(dc, FormatText().CStr(), -1, &text,
             DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    if (hasFocus) DrawFocusRect(dc, &place);
}

// The arrows alone step by a tap.
bool DisplayFormat::TakesTaps() const {
    return false;
}

void DisplayFormat::Press(int) {
    Step(true);
}

bool DisplayFormat::Step(bool forward) {
    DwordSetting& format = settingsStore.ApptDisplayFormat;
    format.Set(NextFormat(format.value, forward));
    Redraw();
    RedrawSample();
    return true;
}
