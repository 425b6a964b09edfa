#include "pages/settings_page.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <string>

#include "shell/services/application.h"
#include "shell/services/scaling.h"
#include "tests/support/window_support.h"

namespace {
constexpr wchar_t kOwnerClass[] = L"PageTestOwner";
constexpr wchar_t kPageClass[] = L"PageTestWin";
constexpr RECT kOwnerPlace{10, 40, 210, 260};

// Writes down which operations the host calls, in order.
class RecordingPage : public SettingsPage {
  public:
    explicit RecordingPage(int tabs) : tabs_(tabs) {}

    int GetTabCount() const override { return tabs_; }
    UINT GetTabTitleId(int) const override { return 0; }
    void CreateControls(HWND) override {
        log += tabStrip || !tabs_ ? "Create " : "CreateBeforeStrip ";
    }
    void ShowTab(HWND, int command) override {
        log += (command == SW_SHOW ? "Show" : "Hide") + std::to_string(CurrentTab()) + " ";
    }
    void SaveValues(HWND window, WPARAM) override {
        log += IsWindow(window) && (tabStrip || !tabs_) && menuBar ? "Save " : "SaveTooLate ";
    }
    LRESULT OnCommand(HWND, UINT, WPARAM wParam, LPARAM) override {
        log += "Command" + std::to_string(LOWORD(wParam)) + " ";
        return 0;
    }
    LRESULT OnToolbarClick(HWND, UINT, WPARAM, LPARAM id) override {
        log += "Click" + std::to_string(id) + " ";
        return 0;
    }
    LRESULT OnToolbarMenuSelect(HWND, UINT, WPARAM value, LPARAM id) override {
        log += "Select" + std::to_string(value) + "," + std::to_string(id) + " ";
        return 0;
    }
    LRESULT Layout(HWND) override {
        log += "Layout ";
        return 0;
    }
    LRESULT OnNotify(HWND, UINT, WPARAM, NMHDR*) override {
        log += "Notify ";
        return 1;
    }
    using SettingsPage::DrawColourSample;

    std::string log;

  private:
    int tabs_;
};

int closeRequests;

LRESULT CALLBACK OwnerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == kMessageClosePage) ++closeRequests;
    return DefWindowProc(window, message, wParam, lParam);
}

class PageHost : public testing::Test {
  protected:
    void SetUp() override {
        application.instance = GetModuleHandle(nullptr);
        WNDCLASS ownerClass{};
        ownerClass.lpfnWndProc = OwnerProc;
        ownerClass.lpszClassName = kOwnerClass;
        RegisterClass(&ownerClass);
        owner_ = CreateWindowEx(0, kOwnerClass, L"", WS_POPUP | WS_VISIBLE, kOwnerPlace.left,
                                kOwnerPlace.top, kOwnerPlace.right - kOwnerPlace.left,
                                kOwnerPlace.bottom - kOwnerPlace.top, nullptr, nullptr,
                                application.instance, nullptr);
        closeRequests = 0;
    }
    void TearDown() override { DestroyWindow(owner_); }

    void Open(SettingsPage& page) {
        CreatePageWindow(page, owner_, kPageClass, application.instance, nullptr, nullptr);
        ASSERT_NE(page.hwnd, nullptr);
        PumpMessages();
    }

    HWND owner_ = nullptr;
};

TEST_F(PageHost, OpensOverTheMainWindowAndCallsTheOperationsInOrder) {
    RecordingPage page(2);
    Open(page);
    RECT place{};
    GetWindowRect(page.hwnd, &place);
    EXPECT_TRUE(EqualRect(&place, &kOwnerPlace));
    EXPECT_EQ(TextOf(page.hwnd), kPageClass);
    EXPECT_EQ(static_cast<DWORD>(GetWindowLong(page.hwnd, GWL_EXSTYLE)) & 0x80000000, 0x80000000);
    EXPECT_EQ(page.log.find("Create Show0 "), 0u) << page.log;

    page.log.clear();
    SendMessage(page.tabStrip, TCM_SETCURFOCUS, 1, 0);
    EXPECT_EQ(page.log.find("Hide0 "), 0u) << page.log;
    EXPECT_NE(page.log.find("Show1 "), std::string::npos) << page.log;

    page.log.clear();
    ClosePage(page);
    EXPECT_EQ(page.log, "Save ");
    EXPECT_EQ(page.hwnd, nullptr);
}

TEST_F(PageHost, RoutesCommandsAndMessages) {
    RecordingPage page(0);
    Open(page);
    page.log.clear();
    SendMessage(page.hwnd, WM_COMMAND, 1300, 0);
    SendMessage(page.hwnd, 1788, 0, 1210);
    SendMessage(page.hwnd, 1789, 7, 1211);
    NMHDR header{};
    header.code = static_cast<UINT>(LVN_ITEMCHANGING);
    // An answer of 1 would keep a list from changing its selection.
    EXPECT_EQ(SendMessage(page.hwnd, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&header)), 0);
    EXPECT_EQ(page.log, "Command1300 Click1210 Select7,1211 Notify ");

    page.log.clear();
    SendMessage(page.hwnd, WM_COMMAND, IDOK, 0);
    SendMessage(page.hwnd, WM_CLOSE, 0, 0);
    EXPECT_EQ(closeRequests, 2);
    EXPECT_EQ(page.log, "") << "closing belongs to the main window";
    EXPECT_NE(page.hwnd, nullptr);
    ClosePage(page);
}

TEST_F(PageHost, LeavesNoStaleHandleWhenTheWindowIsDestroyedFromOutside) {
    RecordingPage page(1);
    Open(page);
    DestroyWindow(page.hwnd);
    EXPECT_EQ(page.hwnd, nullptr);
    EXPECT_EQ(page.tabStrip, nullptr);
    ClosePage(page);
}

TEST_F(PageHost, DrawsColourSamples) {
    RecordingPage page(0);
    HDC screen = GetDC(nullptr);
    HDC dc = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, Scale(60), Scale(60));
    ReleaseDC(nullptr, screen);
    HGDIOBJ previous = SelectObject(dc, bitmap);
    page.DrawColourSample(dc, RGB(200, 10, 30), Scale(5), Scale(5));
    EXPECT_EQ(GetPixel(dc, Scale(5), Scale(5)), RGB(0, 0, 0));
    EXPECT_EQ(GetPixel(dc, Scale(5) + Scale(44) - 1, Scale(5) + Scale(20) - 1), RGB(0, 0, 0));
    EXPECT_EQ(GetPixel(dc, Scale(20), Scale(15)), RGB(200, 10, 30));
    page.DrawColourSample(dc, 0xFFFFFFFF, Scale(5), Scale(30));
    EXPECT_EQ(GetPixel(dc, Scale(7), Scale(33)), RGB(255, 255, 255));
    SelectObject(dc, previous);
    DeleteObject(bitmap);
    DeleteDC(dc);
}
} // namespace
