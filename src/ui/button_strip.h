#pragma once

#include <windows.h>

#include "shell/services/wide_string.h"
#include "ui/tool_tip.h"

// From a button strip to its page: a button was clicked (wParam 0); an entry of its drop-down menu
// was chosen (wParam the entry). lParam is the strip's code.
inline constexpr UINT kMessageToolbarClick = 1788;
inline constexpr UINT kMessageToolbarMenuSelect = 1789;

// The window class, which the key navigation treats as one control, and what it sends for Left and
// Right (wParam: whether forward): false when there is no button further on.
inline constexpr wchar_t kButtonStripClass[] = L"ButtonStrip";
inline constexpr UINT kMessageStepButton = WM_USER + 1;

// A row of flat buttons in one child window: one stop of the focus, in which Left and Right go from
// button to button and a tap, Enter or Space presses one. A derived class draws the buttons and
// says what pressing does. A button's name shows in a tooltip where the pen or the focus rests.
class ButtonStrip {
  public:
    ButtonStrip(const ButtonStrip&) = delete;
    ButtonStrip& operator=(const ButtonStrip&) = delete;

    // Null before CreateStrip and after the window's end, which is its page's business.
    [[nodiscard]] HWND Window() const { return window_; }

  protected:
    ButtonStrip() = default;
    ~ButtonStrip();

    // Makes the window, hidden and at no place yet; false when the platform refuses.
    bool CreateStrip(HWND page, UINT id, HFONT font);

    [[nodiscard]] virtual int ButtonCount() const = 0;
    // False for a button that cannot be pressed now: taps and keys pass over it.
    [[nodiscard]] virtual bool IsOffered(int button) const = 0;
    // What the tooltip says; empty for none.
    [[nodiscard]] virtual WideString NameOf(int button) const = 0;
    virtual void DrawButton(HDC dc, int button, const RECT& place, bool hasFocus) = 0;
    // False for a strip that only keys press: a tap then gives it the focus and no more.
    [[nodiscard]] virtual bool TakesTaps() const;
    // The strip, and with it this object, may be gone when it returns.
    virtual void Press(int button) = 0;
    // Left or Right was pressed: goes to the next button; false when there is none.
    virtual bool Step(bool forward);
    // An entry of a menu that the strip owns is to be measured or drawn.
    virtual void MeasureEntry(MEASUREITEMSTRUCT& entry) const;
    virtual void DrawEntry(const DRAWITEMSTRUCT& entry);

    // In pixels of the strip's window.
    [[nodiscard]] RECT PlaceOf(int button) const;
    [[nodiscard]] HFONT Font() const { return font_; }
    void Redraw() const;

  private:
    static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void Paint();
    void OnPointerDown(int button);
    void OnPointerUp(int button);
    void OnFocus(bool isGained);
    void OnTimer();
    void OnDestroy();
    void PressCurrent();
    void RestOn(int button);
    void EndRest();
    [[nodiscard]] bool IsRestedOn(int button) const;
    [[nodiscard]] int ButtonAt(const POINT& point) const;

    HWND window_ = nullptr;
    HFONT font_ = nullptr;
    int current_ = 0;     // The button that keys act on.
    int resting_ = -1;    // The button that the pen or the focus rests on; −1 for none.
    bool isDown_ = false; // The pen went down on the current button and is not up yet.
    ToolTip toolTip_;
};
