#include "shell/main_window.h"

#include <aygshell.h>
#include <commctrl.h>
#include <imaging.h>
#include <objbase.h>

#include <cwchar>
#include <memory>
#include <utility>

#include "files/category_store.h"
#include "files/icon_set.h"
#include "resource_ids.h"
#include "settings/font_catalogue.h"
#include "settings/settings_store.h"
#include "shell/about_window.h"
#include "shell/backup_commands.h"
#include "shell/main_menu_bar.h"
#include "shell/page_factory.h"
#include "shell/page_list.h"
#include "shell/services/application.h"
#include "shell/services/font_holder.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "shell/services/window_class.h"
#include "ui/messages.h"

namespace {
constexpr DWORD kStyle = WS_VISIBLE | WS_CLIPSIBLINGS | 0x800;
constexpr int kFontHeight = 12;

// The one main window's parts.
struct MainWindow {
    std::unique_ptr<SettingsPage> currentPage;
    SHACTIVATEINFO activateInfo{};
    MainMenuBar menuBar;
    PageList pageList;
};

MainWindow mainWindow;

void CreateImagingFactory() {
    CoInitializeEx(nullptr, 0);
    CoCreateInstance(CLSID_ImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IImagingFactory,
                     reinterpret_cast<void**>(&application.imagingFactory));
}

void ReleaseImagingFactory() {
    if (application.imagingFactory) application.imagingFactory->Release();
    application.imagingFactory = nullptr;
    CoUninitialize();
}

// Everything measured later depends on it, so it comes before the store is loaded.
void FixScaling() {
    DwordSetting vgaMode;
    SetVgaMode(vgaMode.Load(nullptr, 0, L"MyVgaMode", SettingGroup::Root) != 0);
}

void LoadDisplayLibrary() {
    WideString path(settingsStore.ProgramFiles.value);
    path.Append(Scale(1) > 1 ? L"\\Teskel\\Orvane\\HighDpiRes.dll"
                             : L"\\Teskel\\Orvane\\LowDpiRes.dll");
    application.displayLibrary = LoadLibrary(path.CStr());
}

HFONT CreateUiFont(LONG weight) {
    LOGFONT font{};
    font.lfHeight = Scale(kFontHeight);
    font.lfWeight = weight;
    wcscpy(font.lfFaceName, L"Tahoma");
    return CreateFontIndirect(&font);
}

LRESULT OnCreate(HWND window) {
    application.languageLibrary = nullptr;
    CreateImagingFactory();
    mainWindow.activateInfo = {};
    mainWindow.activateInfo.cbSize = sizeof(mainWindow.activateInfo);
    FixScaling();
    settingsStore.Load(application.languageLibrary);
    SetFontCatalogue(FontCatalogueEntry);
    LoadDisplayLibrary();
    mainWindow.menuBar.Create(window);
    iconSet.LoadIconSet(WideString());
    application.normalFont = CreateUiFont(FW_DONTCARE);
    application.boldFont = CreateUiFont(FW_BOLD);
    categoryStore.LoadCategoryStore();
    mainWindow.pageList.Create(window);
    return 0;
}

void CloseCurrentPage(HWND window) {
    // A page may tell the user something while it closes. In that loop it is no longer the current
    // one, so that nothing closes or deletes it a second time.
    const std::unique_ptr<SettingsPage> page = std::move(mainWindow.currentPage);
    if (!page) return;
    ClosePage(*page);
    SetWindowText(window, kProgramTitle);
}

void DeleteFont(HFONT& font) {
    if (font) DeleteObject(font);
    font = nullptr;
}

void ReleaseModule(HMODULE& module) {
    if (module) FreeLibrary(module);
    module = nullptr;
}

LRESULT OnDestroy(HWND window) {
    CloseCurrentPage(window); // Still open where another program closes the window.
    mainWindow.pageList.Destroy();
    DeleteFont(application.normalFont);
    DeleteFont(application.boldFont);
    mainWindow.menuBar.Destroy();
    iconSet.Release();
    ReleaseModule(application.languageLibrary);
    ReleaseModule(application.displayLibrary);
    ReleaseImagingFactory();
    PostQuitMessage(0);
    return 0;
}

LRESULT OnNotify(HWND window, const NMHDR& header) {
    const int row = mainWindow.pageList.ActivatedRow(header);
    if (row < 0 || mainWindow.currentPage) return 0;
    SetWindowText(window, mainWindow.pageList.Caption(row).CStr());
    mainWindow.currentPage.reset(CreatePage(window, row));
    if (mainWindow.currentPage) BringWindowToTop(mainWindow.currentPage->hwnd);
    return 0;
}

void OnOk(HWND window) {
    if (mainWindow.currentPage) {
        CloseCurrentPage(window);
        return;
    }
    settingsStore.Save();
    categoryStore.SaveCategoryRegistry();
    categoryStore.SaveFilterFile();
    PostMessage(HWND_BROADCAST, application.settingsChangedMessage, 0, 0);
    DestroyWindow(window);
}

void OnCancel(HWND window) {
    if (AskYesNo(window, IDS_QUIT_QUESTION, IDS_QUIT_CAPTION)) DestroyWindow(window);
}

LRESULT OnCommand(HWND window, UINT id) {
    switch (id) {
    case IDOK:
        OnOk(window);
        break;
    case IDCANCEL:
        OnCancel(window);
        break;
    case IDC_ABOUT:
        ShowAbout(window);
        break;
    case IDC_EXPORT_BACKUP:
        ExportSettingsBackup(window);
        break;
    case IDC_IMPORT_BACKUP:
        ImportSettingsBackup(window);
        break;
    default:
        break;
    }
    return 0;
}

LRESULT CALLBACK MainWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE:
        return OnCreate(window);
    case WM_DESTROY:
        return OnDestroy(window);
    case WM_MOVE:
    case WM_SIZE:
        mainWindow.pageList.Place();
        return 0;
    case WM_ACTIVATE:
        SHHandleWMActivate(window, wParam, lParam, &mainWindow.activateInfo, 0);
        return 0;
    case WM_SETTINGCHANGE:
        SHHandleWMSettingChange(window, wParam, lParam, &mainWindow.activateInfo);
        return 0;
    case WM_NOTIFY:
        return OnNotify(window, *reinterpret_cast<const NMHDR*>(lParam));
    case WM_COMMAND:
        return OnCommand(window, LOWORD(wParam));
    case kMessageClosePage:
        CloseCurrentPage(window);
        return 0;
    default:
        return DefWindowProc(window, message, wParam, lParam);
    }
}
} // namespace

HWND CreateMainWindow(HINSTANCE instance) {
    RegisterWindowClass(instance, MainWindowProc, LoadIcon(instance, MAKEINTRESOURCE(IDI_PROGRAM)),
                        kMainWindowClass, WHITE_BRUSH);
    return CreateWindowEx(static_cast<DWORD>(WS_EX_CAPTIONOKBTN), kMainWindowClass, kProgramTitle,
                          kStyle, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                          nullptr, nullptr, instance, nullptr);
}

void MakeRoomForMenuBar(HWND window) {
    if (!mainWindow.menuBar.Window()) return;
    RECT bar{};
    RECT place{};
    GetWindowRect(mainWindow.menuBar.Window(), &bar);
    GetWindowRect(window, &place);
    MoveWindow(window, place.left, place.top, place.right - place.left,
               place.bottom - (bar.bottom - bar.top) - place.top, FALSE);
}

HWND ActiveRoot(HWND window) {
    return mainWindow.currentPage && mainWindow.currentPage->hwnd ? mainWindow.currentPage->hwnd
                                                                  : window;
}
