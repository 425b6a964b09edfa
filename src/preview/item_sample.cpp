#include "preview/item_sample.h"

#include "preview/clock.h"
#include "shell/services/handles.h"
#include "shell/services/scaling.h"

namespace {

// The band off the screen, filled with the page's background.
class Band {
  public:
    Band(HDC page, int width)
        : dc_(CreateCompatibleDC(page)),
          width_(width),
          height_(ScaleY(ItemSample::kHeight)),
          bitmap_(CreateCompatibleBitmap(page, width, height_)) {}

    // Draws an item in two passes: its height first, then the item at the band's middle.
    template <typename Item>
    void Draw(HDC page, int top, Item item) {
        if (!dc_ || !bitmap_) return;
        const SelectScope scope(dc_.Get(), bitmap_.Get());
        RECT place{0, 0, width_, height_};
        FillRect(dc_.Get(), &place, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
        const int itemHeight = item(DrawingPass::Measure, dc_.Get(), place);
        place.top = height_ / 2 - itemHeight / 2;
        item(DrawingPass::Draw, dc_.Get(), place);
        BitBlt(page, 0, top, width_, height_, dc_.Get(), 0, 0, SRCCOPY);
    }

  private:
    UniqueDc dc_;
    int width_;
    int height_;
    UniqueBitmap bitmap_;
};

} // namespace

void ItemSample::PaintAppointment(HDC page, int top, int width, const WideString& subject,
                                  const WideString& location) {
    constexpr VariantTime kNoon = 0.5;
    constexpr VariantTime kThreeHours = 0.125;
    const int today = Today();
    PreviewItem appointment;
    appointment.subject = subject;
    appointment.location = location;
    appointment.start = today + kNoon;
    appointment.end = appointment.start + kThreeHours;
    Band(page, width).Draw(page, top, [&](DrawingPass pass, HDC dc, const RECT& place) {
        return renderer_.Appointment(pass, dc, place, appointment, today);
    });
}

void ItemSample::PaintTask(HDC page, int top, int width, const WideString& subject) {
    PreviewItem task;
    task.subject = subject;
    task.start = kNoDate;
    task.end = kNoDate;
    const LeftIcons left{store_.TaskTabLeftAlignIcon1.value, store_.TaskTabLeftAlignIcon2.value};
    Band(page, width).Draw(page, top, [&](DrawingPass pass, HDC dc, const RECT& place) {
        return renderer_.Task(pass, dc, place, task, left, store_.TasksRightIcons.value);
    });
}

void ItemSample::Redraw(HWND page, int top) {
    RECT band{};
    GetClientRect(page, &band);
    band.top = top;
    band.bottom = top + ScaleY(kHeight);
    // The sample covers its band: erasing it first would flicker.
    InvalidateRect(page, &band, FALSE);
    UpdateWindow(page);
}
