#pragma once

#include <windows.h>

#include <aygshell.h>
#include <commctrl.h>

#include <memory>

#include "shell/services/wide_string.h"
#include "ui/button_strip.h"

// Sent by a page to the main window, which closes it.
inline constexpr UINT kMessageClosePage = WM_USER + 1;

// A drawing surface off the screen. The DC's own bitmap and object wait in `previous…` and go back
// before the DC is deleted.
struct OffscreenSurface {
    HDC dc = nullptr;
    HBITMAP bitmap = nullptr;
    HGDIOBJ previousBitmap = nullptr;
    HGDIOBJ previousObject = nullptr;

    OffscreenSurface() = default;
    OffscreenSurface(const OffscreenSurface&) = delete;
    OffscreenSurface& operator=(const OffscreenSurface&) = delete;
    ~OffscreenSurface();
};

// One of the twelve settings pages: a full-screen pop-up over the main window, with a tab strip
// along the bottom whose tabs show groups of controls. Opening it builds the controls from the
// settings store; destroying its window writes them back into the store, and there is no way to
// leave a page without that. The operations stand in the order in which pages are described.
class SettingsPage {
  public:
    SettingsPage() = default;
    SettingsPage(const SettingsPage&) = delete;
    SettingsPage& operator=(const SettingsPage&) = delete;

    [[nodiscard]] virtual int GetTabCount() const = 0;
    // The text id of a tab's caption.
    [[nodiscard]] virtual UINT GetTabTitleId(int index) const = 0;
    // Each control in its place; Layout() comes when the page's size has changed.
    virtual void CreateControls(HWND window) = 0;
    // Shows (SW_SHOW) or hides (SW_HIDE) the controls of the strip's current tab.
    virtual void ShowTab(HWND window, int showCommand) = 0;
    virtual void SaveValues(HWND window, WPARAM wParam) = 0;
    virtual LRESULT OnPaint(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    virtual LRESULT OnLButtonDown(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    virtual LRESULT OnDrawItem(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    virtual LRESULT OnMeasureItem(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    virtual LRESULT OnToolbarMenuSelect(HWND window, UINT message, WPARAM value, LPARAM controlId);
    virtual LRESULT OnToolbarClick(HWND window, UINT message, WPARAM unused, LPARAM controlId);
    virtual LRESULT OnCommand(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    virtual LRESULT Layout(HWND window);
    // What it returns goes nowhere: an answer of 1 would veto ticks and selections.
    virtual LRESULT OnNotify(HWND window, UINT message, WPARAM wParam, NMHDR* header);
    // Unregisters the window class.
    virtual ~SettingsPage();

    HWND hwnd = nullptr;
    HWND menuBar = nullptr;
    HIMAGELIST imageList = nullptr; // Destroyed with the window.
    WideString className;
    std::unique_ptr<OffscreenSurface> offscreen;
    SHACTIVATEINFO activateInfo{};
    HWND tabStrip = nullptr;
    HFONT normalFont = nullptr; // The fonts and the instance belong to the application.
    HFONT boldFont = nullptr;
    HINSTANCE hInstance = nullptr;
    SIZE placedFor{-1, -1}; // The client area for which the controls stand where they do.

  protected:
    // The strip's selected tab; 0 for a page without tabs.
    [[nodiscard]] int CurrentTab() const;

    // A black-framed box, 44 by 20 units, filled with the colour; "none" (0xFFFFFFFF) is white and
    // says so in the page's font. `left` and `top` are in pixels.
    void DrawColourSample(HDC dc, COLORREF colour, int left, int top) const;
};

// Makes the page's window exactly over the main window and shows it. On failure `page.hwnd` is
// null. The fonts and the instance must outlive the page.
void CreatePageWindow(SettingsPage& page, HWND mainWindow, const wchar_t* className,
                      HINSTANCE instance, HFONT normalFont, HFONT boldFont);

// Destroys the page's window, if it has one; the page itself stays.
void ClosePage(SettingsPage& page);
