#include <windows.h>

#include <algorithm>
#include <vector>

#include "screen.h"
#include "shell_frame.h"

namespace {

constexpr int kTextId = 0xFFFF;
constexpr int kMarginUnits = 4; // Between the box and the edges of the work area.
constexpr int kGapUnits = 8;    // Between the parts of the box and around them.

int Width(const RECT& rect) {
    return rect.right - rect.left;
}

int Height(const RECT& rect) {
    return rect.bottom - rect.top;
}

RECT PlaceIn(HWND box, HWND control) {
    RECT place = {};
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, box, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

void Place(HWND window, int x, int y, int width, int height) {
    SetWindowPos(window, nullptr, x, y, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

// The buttons and the icon of a box, the buttons from left to right.
struct Parts {
    explicit Parts(HWND box) {
        for (HWND child = GetWindow(box, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
            if (!(GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE)) continue;
            if (GetDlgCtrlID(child) == kTextId) continue;
            const LRESULT code = SendMessageW(child, WM_GETDLGCODE, 0, 0);
            if (code & DLGC_BUTTON)
                buttons.push_back(child);
            else if (SendMessageW(child, STM_GETICON, 0, 0))
                icon = child;
        }
        std::ranges::sort(buttons, {}, [&](HWND button) { return PlaceIn(box, button).left; });
    }

    std::vector<HWND> buttons;
    HWND icon = nullptr;
};

// The height of a box's text when it is wrapped to a width. Words that are wider, such as paths,
// are broken too, which the text's control does with the style that this gives it.
int WrapText(HWND text, int width) {
    const LONG style = GetWindowLongW(text, GWL_STYLE) | SS_EDITCONTROL;
    SetWindowLongW(text, GWL_STYLE, style);
    std::vector<wchar_t> content(static_cast<size_t>(GetWindowTextLengthW(text)) + 1);
    GetWindowTextW(text, content.data(), static_cast<int>(content.size()));
    UINT format = DT_CALCRECT | DT_WORDBREAK | DT_EXPANDTABS | DT_EDITCONTROL;
    if (style & SS_NOPREFIX) format |= DT_NOPREFIX;

    const HDC dc = GetDC(text);
    const auto font = reinterpret_cast<HFONT>(SendMessageW(text, WM_GETFONT, 0, 0));
    const HGDIOBJ previous = font ? SelectObject(dc, font) : nullptr;
    RECT wrapped = {0, 0, width, 0};
    DrawTextW(dc, content.data(), -1, &wrapped, format);
    if (previous) SelectObject(dc, previous);
    ReleaseDC(text, dc);
    return Height(wrapped);
}

// Centres a row of equal buttons, narrowed to the width that there is for them.
void PlaceButtons(HWND box, const std::vector<HWND>& buttons, int clientWidth, int top) {
    if (buttons.empty()) return;
    const int gap = ShellScale(kGapUnits);
    const int count = static_cast<int>(buttons.size());
    const RECT size = PlaceIn(box, buttons.front());
    const int room = (clientWidth - gap * (count + 1)) / count;
    const int width = std::min(Width(size), room);
    int x = (clientWidth - width * count - gap * (count - 1)) / 2;
    for (HWND button : buttons) {
        Place(button, x, top, width, Height(size));
        x += width + gap;
    }
}

void CentreInWorkArea(HWND box, int width, int height) {
    const RECT area = WorkArea();
    Place(box, area.left + (Width(area) - width) / 2, area.top + (Height(area) - height) / 2, width,
          height);
}

// Lays a box out anew in the width of the work area. Text that is too long even so is cut, so that
// the buttons stay in sight.
void LayOut(HWND box, HWND text, int boxWidth, int maxHeight) {
    const Parts parts(box);
    RECT whole;
    RECT client;
    GetWindowRect(box, &whole);
    GetClientRect(box, &client);
    const int clientWidth = boxWidth - (Width(whole) - Width(client));
    const int frameHeight = Height(whole) - Height(client);
    const int gap = ShellScale(kGapUnits);
    const RECT icon = parts.icon ? PlaceIn(box, parts.icon) : RECT{};
    const int buttonHeight = parts.buttons.empty() ? 0 : Height(PlaceIn(box, parts.buttons[0]));

    const int left = parts.icon ? icon.right + gap : gap;
    const int textWidth = clientWidth - left - gap;
    const int maxTextHeight = maxHeight - frameHeight - buttonHeight - 3 * gap;
    const int textHeight = std::min(WrapText(text, textWidth), maxTextHeight);
    const int rowHeight = std::max(textHeight, Height(icon));
    Place(text, left, gap + (rowHeight - textHeight) / 2, textWidth, textHeight);
    if (parts.icon)
        Place(parts.icon, icon.left, gap + (rowHeight - Height(icon)) / 2, Width(icon),
              Height(icon));
    PlaceButtons(box, parts.buttons, clientWidth, rowHeight + 2 * gap);
    CentreInWorkArea(box, boxWidth, rowHeight + buttonHeight + 3 * gap + frameHeight);
}

// A PC lays its boxes out for screens of a PC.
void Fit(HWND box, HWND text) {
    const RECT area = WorkArea();
    const int margin = ShellScale(kMarginUnits);
    const int maxWidth = Width(area) - 2 * margin;
    const int maxHeight = Height(area) - 2 * margin;
    RECT place;
    GetWindowRect(box, &place);
    if (Width(place) > maxWidth || Height(place) > maxHeight) {
        LayOut(box, text, maxWidth, maxHeight);
        return;
    }
    RECT inside;
    IntersectRect(&inside, &place, &area);
    if (!EqualRect(&inside, &place)) CentreInWorkArea(box, Width(place), Height(place));
}

// Fits the box that a call opens, between its layout and its showing: after WM_INITDIALOG. A hook
// of activation would come too soon, since the box takes the focus halfway through its layout.
class Opening {
  public:
    Opening() : outer_(innermost) {
        innermost = this;
        hook_ = SetWindowsHookExW(WH_CALLWNDPROCRET, OnSent, nullptr, GetCurrentThreadId());
    }
    Opening(const Opening&) = delete;
    Opening& operator=(const Opening&) = delete;
    ~Opening() {
        Unhook();
        innermost = outer_;
    }

  private:
    // What opens the box may run the program's code, and that may open another box.
    static thread_local Opening* innermost;

    static LRESULT CALLBACK OnSent(int code, WPARAM wParam, LPARAM lParam) {
        const auto& sent = *reinterpret_cast<const CWPRETSTRUCT*>(lParam);
        if (code == HC_ACTION && sent.message == WM_INITDIALOG && innermost)
            innermost->OnInitialised(sent.hwnd);
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    void OnInitialised(HWND dialog) {
        HWND text = GetDlgItem(dialog, kTextId);
        if (!hook_ || !text) return;
        Unhook();
        Fit(dialog, text);
    }

    void Unhook() {
        if (hook_) UnhookWindowsHookEx(hook_);
        hook_ = nullptr;
    }

    Opening* outer_;
    HHOOK hook_;
};

thread_local Opening* Opening::innermost = nullptr;

} // namespace

extern "C" {

int WINAPI CoreMessageBoxW(HWND owner, LPCWSTR text, LPCWSTR caption, UINT type) {
    const Opening opening;
    return MessageBoxW(owner, text, caption, type);
}

} // extern "C"
