#include "preview/item_renderer.h"

#include <algorithm>
#include <bit>

#include "preview/appointment_texts.h"
#include "preview/clock.h"
#include "preview/item_icons.h"
#include "preview/line_painter.h"
#include "shell/services/scaling.h"
#include "shell/services/text_size.h"

namespace {

constexpr int kSpacing = 1;       // Units from an item to the next.
constexpr int kSecondTextGap = 4; // Units between the subject and a text behind it.
constexpr COLORREF kBuiltInBusy = RGB(44, 77, 156);
constexpr COLORREF kUncategorised = RGB(160, 160, 160);

int ScaleAcross(int units) {
    return Scale(units);
}

ColumnSettings ColumnsOf(const SettingsStore& store) {
    return {.format = DisplayFormatOf(store.ApptDisplayFormat.value),
            .appointmentIcons = {store.ApptLeftAlignIcon1.value, store.ApptLeftAlignIcon2.value},
            .taskIcons = {store.TaskLeftAlignIcon1.value, store.TaskLeftAlignIcon2.value},
            .indentItems = store.IndentItems.value == 1,
            .leadingRects = store.LeadingRects.value != 0};
}

AppointmentTexts TextsOf(const SettingsStore& store, uint32_t format, const PreviewItem& item,
                         int day) {
    const wchar_t* picture =
        TimePicture(store.twelveHourClock, store.Force2DigitsTImeFrmt.value == 1);
    const WideString start = TimeOfDayText(item.start, picture);
    const WideString end = TimeOfDayText(item.end, picture);
    const AppointmentTime time{.start = item.start,
                               .end = item.end,
                               .day = day,
                               .humanHours = store.HumanTime.value,
                               .startText = start.CStr(),
                               .endText = end.CStr()};
    return TextsOfAppointment(format, item.subject, item.location, item.allDay,
                              TimeText(time, TimeFormOf(format)));
}

// A text behind the subject stands at the line's end, in at most half of what the subject has.
// Gives where the subject then ends.
int DrawBehindSubject(const LinePainter& painter, const LineLayout& layout, const WideString& text,
                      int textWidth) {
    if (text.IsEmpty()) return layout.subjectEnd;
    const int width = std::min(textWidth, (layout.subjectEnd - layout.subject) / 2);
    painter.Text(text, layout.subjectEnd - width, layout.subjectEnd);
    return layout.subjectEnd - width - Scale(kSecondTextGap);
}

void DrawTexts(HDC dc, const RECT& place, const TextStyle& style, const LineLayout& layout,
               const AppointmentTexts& texts, bool hasSecondLine) {
    const LinePainter painter(dc, style, place.top);
    painter.Text(texts.label, layout.label, layout.subject);
    if (hasSecondLine) {
        const LinePainter below(dc, style, place.top + LineHeight(dc));
        below.Text(texts.second, layout.subject, place.right);
        painter.Text(texts.subject, layout.subject, layout.subjectEnd);
    } else {
        const int end =
            DrawBehindSubject(painter, layout, texts.second, TextWidth(dc, texts.second));
        painter.Text(texts.subject, layout.subject, end);
    }
}

// By status, where every item drawn here is busy, or by category, where none has one.
COLORREF LeadingRectColour(const SettingsStore& store) {
    constexpr uint32_t kByStatus = 1;
    if (store.LeadingRects.value != kByStatus) return kUncategorised;
    return ColourOr(store.ClrStatusBusy.value, kBuiltInBusy);
}

} // namespace

int ItemRenderer::Appointment(DrawingPass pass, HDC dc, const RECT& place, const PreviewItem& item,
                              int day) {
    const ColumnSettings columns = ColumnsOf(store_);
    const TextStyle style = TextStyleOf(store_, store_.FontCalApptBusy);
    const SelectScope font(dc, font_.Get(style.font));
    const bool hasSecondLine = HasSecondLine(columns.format);
    const int height = LineHeight(dc) * (hasSecondLine ? 2 : 1) + ScaleY(kSpacing);
    if (pass == DrawingPass::Measure) return height;

    const AppointmentTexts texts = TextsOf(store_, columns.format, item, day);
    const uint32_t icons = store_.ClrApptRightIcons.value & kAppointmentIcons;
    const LineSpace space{
        .left = place.left, .right = place.right, .rightIcons = std::popcount(icons)};
    const LineLayout layout = LayOutAppointment(space, columns, TimeColumnFor(columns, style.font),
                                                TextWidth(dc, texts.label), ScaleAcross);
    const LinePainter painter(dc, style, place.top);
    if (columns.leadingRects) painter.LeadingRect(layout.leadingRect, LeadingRectColour(store_));
    painter.LeftIconRow(layout.leftIcons, columns.appointmentIcons);
    painter.RightIconRow(place.right, icons);
    DrawTexts(dc, place, style, layout, texts, hasSecondLine);
    return height;
}

int ItemRenderer::Task(DrawingPass pass, HDC dc, const RECT& place, const PreviewItem& item,
                       const LeftIcons& leftIcons, uint32_t rightIcons) {
    const TextStyle style = TextStyleOf(store_, store_.FontTskNoDue);
    const SelectScope font(dc, font_.Get(style.font));
    const int height = LineHeight(dc) + ScaleY(kSpacing);
    if (pass == DrawingPass::Measure) return height;

    const uint32_t icons = rightIcons & kTaskIcons;
    const LineSpace space{
        .left = place.left, .right = place.right, .rightIcons = std::popcount(icons)};
    const LineLayout layout = LayOutTask(space, store_.IndentItems.value == 1, leftIcons,
                                         TextWidth(dc, item.label), ScaleAcross);
    const LinePainter painter(dc, style, place.top);
    painter.LeftIconRow(layout.leftIcons, leftIcons);
    painter.RightIconRow(place.right, icons);
    painter.Text(item.label, layout.label, layout.subject);
    painter.Text(item.subject, layout.subject, layout.subjectEnd);
    return height;
}

int ItemRenderer::TimeColumnFor(const ColumnSettings& columns, const LOGFONT& font) {
    if (timeColumn_ >= 0 && columns == timeColumnSettings_ && IsSameFont(font, timeColumnFont_)) {
        return timeColumn_;
    }
    int widest = 0;
    if (const wchar_t* text = WidestTimeText(columns.format))
        widest = FontMeasure(font_.Get(font)).TextWidth(text);
    timeColumn_ = TimeColumn(columns, widest, ScaleAcross);
    timeColumnSettings_ = columns;
    timeColumnFont_ = font;
    return timeColumn_;
}
