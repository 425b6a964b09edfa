#include "pages/settings_page.h"

#include <commctrl.h>

#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "shell/services/window_class.h"
#include "ui/colour_box.h"
#include "ui/controls.h"
#include "ui/key_navigation.h"
#include "ui/list_selection.h"
#include "ui/menu_bar.h"
#include "ui/tab_strip.h"

namespace {
constexpr int kSampleWidth = 44;
constexpr int kSampleHeight = 20;
constexpr DWORD kPageStyle = WS_POPUP | WS_VISIBLE | 0x800;

SettingsPage* PageOf(HWND window) {
    return reinterpret_cast<SettingsPage*>(GetWindowLongPtr(window, GWLP_USERDATA));
}

void CreateTabs(SettingsPage& page, HWND window) {
    if (page.GetTabCount() < 1) return;
    page.tabStrip = CreateTabStrip(window, page.normalFont);
    if (!page.tabStrip) return;
    for (int i = 0; i < page.GetTabCount(); ++i)
        InsertTab(page.tabStrip, i, LanguageText(page.GetTabTitleId(i)).CStr());
}

LRESULT OnCreate(SettingsPage& page, HWND window) {
    page.hwnd = window;
    page.activateInfo = {};
    page.activateInfo.cbSize = sizeof(page.activateInfo);
    page.menuBar = CreateEmptyMenuBar(window);
    CreateTabs(page, window);
    page.placedFor = ClientSize(window);
    page.CreateControls(window);
    page.ShowTab(window, SW_SHOW);
    return 0;
}

void DestroyChild(HWND& window) {
    if (window) DestroyWindow(window);
    window = nullptr;
}

LRESULT OnDestroy(SettingsPage& page, HWND window, WPARAM wParam) {
    page.SaveValues(window, wParam);
    DestroyChild(page.tabStrip);
    DestroyChild(page.menuBar);
    if (page.imageList) ImageList_Destroy(page.imageList);
    page.imageList = nullptr;
    page.offscreen.reset();
    return 0;
}

LRESULT OnPlaced(SettingsPage& page, HWND window) {
    const SIZE size = ClientSize(window);
    if (size.cx == page.placedFor.cx && size.cy == page.placedFor.cy) return 0;
    page.placedFor = size;
    if (page.tabStrip) PlaceTabStrip(page.tabStrip);
    page.Layout(window);
    return 0;
}

LRESULT OnNotification(SettingsPage& page, HWND window, WPARAM wParam, LPARAM lParam) {
    auto* header = reinterpret_cast<NMHDR*>(lParam);
    switch (header->code) {
    case TCN_SELCHANGING:
        page.ShowTab(window, SW_HIDE);
        break;
    case TCN_SELCHANGE:
        page.ShowTab(window, SW_SHOW);
        break;
    default:
        page.OnNotify(window, WM_NOTIFY, wParam, header);
    }
    return DrawListSelection(*header);
}

// The main window closes and deletes the page inside this call: nothing may touch it after.
LRESULT CloseByMainWindow(HWND window) {
    SendMessage(GetParent(window), kMessageClosePage, 0, 0);
    return 0;
}

LRESULT OnPageCommand(SettingsPage& page, HWND window, WPARAM wParam, LPARAM lParam) {
    if (LOWORD(wParam) != IDOK) return page.OnCommand(window, WM_COMMAND, wParam, lParam);
    return CloseByMainWindow(window);
}

LRESULT Dispatch(SettingsPage& page, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE:
        return OnCreate(page, window);
    case WM_DESTROY:
        return OnDestroy(page, window, wParam);
    case WM_NCDESTROY:
        page.hwnd = nullptr;
        break;
    case WM_CLOSE:
        return CloseByMainWindow(window);
    case WM_MOVE:
    case WM_SIZE:
        return OnPlaced(page, window);
    case WM_ACTIVATE:
        SHHandleWMActivate(window, wParam, lParam, &page.activateInfo, 0);
        return 0;
    case WM_PAINT:
        return page.OnPaint(window, message, wParam, lParam);
    case WM_SETTINGCHANGE:
        SHHandleWMSettingChange(window, wParam, lParam, &page.activateInfo);
        return 0;
    case WM_DRAWITEM:
        return page.OnDrawItem(window, message, wParam, lParam);
    case WM_MEASUREITEM:
        return page.OnMeasureItem(window, message, wParam, lParam);
    case WM_NOTIFY:
        return OnNotification(page, window, wParam, lParam);
    case WM_COMMAND:
        return OnPageCommand(page, window, wParam, lParam);
    case WM_LBUTTONDOWN:
        return page.OnLButtonDown(window, message, wParam, lParam);
    case kMessageToolbarClick:
        return page.OnToolbarClick(window, message, wParam, lParam);
    case kMessageToolbarMenuSelect:
        return page.OnToolbarMenuSelect(window, message, wParam, lParam);
    default:
        break;
    }
    return DefWindowProc(window, message, wParam, lParam);
}

LRESULT CALLBACK PageWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CREATE) {
        const auto* create = reinterpret_cast<const CREATESTRUCT*>(lParam);
        SetWindowLongPtr(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(create->lpCreateParams));
    }
    // The messages that come before WM_CREATE find no page.
    SettingsPage* page = PageOf(window);
    if (!page) return DefWindowProc(window, message, wParam, lParam);
    return Dispatch(*page, window, message, wParam, lParam);
}
} // namespace

OffscreenSurface::~OffscreenSurface() {
    if (previousObject) SelectObject(dc, previousObject);
    if (previousBitmap) SelectObject(dc, previousBitmap);
    if (bitmap) DeleteObject(bitmap);
    if (dc) DeleteDC(dc);
}

LRESULT SettingsPage::OnPaint(HWND window, UINT, WPARAM, LPARAM) {
    PAINTSTRUCT paint;
    BeginPaint(window, &paint);
    EndPaint(window, &paint);
    return 0;
}

LRESULT SettingsPage::OnLButtonDown(HWND, UINT, WPARAM, LPARAM) {
    return 0;
}

LRESULT SettingsPage::OnDrawItem(HWND, UINT, WPARAM, LPARAM) {
    return 0;
}

LRESULT SettingsPage::OnMeasureItem(HWND, UINT, WPARAM, LPARAM) {
    return 0;
}

LRESULT SettingsPage::OnToolbarMenuSelect(HWND, UINT, WPARAM, LPARAM) {
    return 0;
}

LRESULT SettingsPage::OnToolbarClick(HWND, UINT, WPARAM, LPARAM) {
    return 0;
}

LRESULT SettingsPage::OnCommand(HWND, UINT, WPARAM, LPARAM) {
    return 0;
}

LRESULT SettingsPage::Layout(HWND) {
    return 0;
}

LRESULT SettingsPage::OnNotify(HWND, UINT, WPARAM, NMHDR*) {
    return 0;
}

SettingsPage::~SettingsPage() {
    UnregisterClass(className.CStr(), hInstance);
}

int SettingsPage::CurrentTab() const {
    return tabStrip ? SelectedTab(tabStrip) : 0;
}

void SettingsPage::DrawColourSample(HDC dc, COLORREF colour, int left, int top) const {
    DrawColourBox(dc, {left, top, left + Scale(kSampleWidth), top + Scale(kSampleHeight)}, colour,
                  normalFont);
}

void CreatePageWindow(SettingsPage& page, HWND mainWindow, const wchar_t* className,
                      HINSTANCE instance, HFONT normalFont, HFONT boldFont) {
    page.tabStrip = nullptr;
    page.offscreen.reset();
    page.menuBar = nullptr;
    page.imageList = nullptr;
    page.className = className;
    page.normalFont = normalFont;
    page.boldFont = boldFont;
    page.hInstance = instance;
    // A failure means that the class is still there from an earlier opening, which serves as well.
    RegisterWindowClass(instance, PageWindowProc, nullptr, className, WHITE_BRUSH);
    RECT place{};
    GetWindowRect(mainWindow, &place);
    page.hwnd = CreateWindowEx(static_cast<DWORD>(WS_EX_CAPTIONOKBTN), className, className,
                               kPageStyle, place.left, place.top, place.right - place.left,
                               place.bottom - place.top, mainWindow, nullptr, instance, &page);
    if (!page.hwnd) return;
    ShowWindow(page.hwnd, SW_SHOW);
    UpdateWindow(page.hwnd);
    FocusFirstControl(page.hwnd);
}

void ClosePage(SettingsPage& page) {
    if (page.hwnd) DestroyWindow(page.hwnd);
    page.hwnd = nullptr;
}
