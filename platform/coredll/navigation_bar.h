#pragma once

#include "shell_frame.h"

// The bar at the top of the screen, one for a process: the title of its active window, a clock, and
// a button. The button is "ok" (WM_COMMAND id 1) for a window with WS_EX_CAPTIONOKBTN; otherwise X,
// which sends IDCANCEL to a window that asked for it and else minimises the program; a window with
// WS_NONAVDONEBUTTON has none. The bar never becomes active.
class NavigationBar {
  public:
    // Makes the bar show `window`, which must have a place in it. Creates the bar at first.
    static void Show(HWND window);
    // Draws the bar anew after a change of title or style.
    static void Refresh();
    static void Hide();
    // Stops showing a window that is being destroyed.
    static void Leave(HWND window);
    static void Destroy();
    // Posts what the ok button sends, if the bar shows one and its window is enabled and active.
    static bool PostOk();

  private:
    enum class Button { None, Ok, Close };

    static bool Create();
    NavigationBar();
    ~NavigationBar();
    static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    bool CreateBarWindow();
    void OnPaint();
    void Paint(HDC dc);
    void OnButtonDown(POINT point);
    void OnButtonUp();
    void OnMouseMove(POINT point);
    void OnTimer();
    void OnDisplayChange();
    void SetPressed(bool pressed);
    void PaintTitle(HDC dc, const RECT& band);
    void PaintButton(HDC dc);
    int PaintClock(HDC dc, const RECT& band, int titleWidth);
    void StartMinute();
    void Press();
    void PressClose();
    [[nodiscard]] Button ShownButton() const;
    [[nodiscard]] RECT ButtonPlace() const;

    HWND window_ = nullptr;
    HWND shown_ = nullptr; // The window whose bar this is at the moment.
    HFONT titleFont_ = nullptr;
    HFONT smallFont_ = nullptr;
    bool pressed_ = false;
};
