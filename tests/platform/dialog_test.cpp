#include <gtest/gtest.h>

#include "platform_tests.h"
#include "program_window.h"
#include "temp_file.h"

#include <string>

namespace {

// What a dialog looks like once it is open, and how it is ended.
struct DialogRun {
    DWORD flags;
    void (*act)(HWND dialog);
    BOOL initialised = FALSE;
    RECT place = {};
    RECT client = {};
    BOOL panelRaised = FALSE;
    HWND bar = nullptr;
};

constexpr UINT kOpened = WM_APP;

INT_PTR CALLBACK DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    static DialogRun* run;
    switch (message) {
    case WM_INITDIALOG: {
        run = reinterpret_cast<DialogRun*>(lParam);
        SHINITDLGINFO info = {SHIDIM_FLAGS, dialog, run->flags};
        run->initialised = SHInitDialog(&info);
        PostMessageW(dialog, kOpened, 0, 0);
        return TRUE;
    }
    case kOpened:
        GetClientRect(dialog, &run->client);
        run->place = PlaceOf(dialog);
        run->panelRaised = FindWindowW(L"StandInInputPanel", nullptr) != nullptr;
        run->bar = SHFindMenuBar(dialog);
        run->act(dialog);
        return TRUE;
    case WM_COMMAND:
        if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL) EndDialog(dialog, LOWORD(wParam));
        return TRUE;
    }
    return FALSE;
}

INT_PTR RunDialog(HWND owner, DialogRun& run) {
    return DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(kDialog), owner, DialogProc,
                           reinterpret_cast<LPARAM>(&run));
}

void TapNavigationButton(HWND) {
    TapAt(NavigationBarWindow(), NavigationButton());
}
void Cancel(HWND dialog) {
    SendMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
}

TEST(DialogTest, FullScreenDialogEndsByDoneOrX) {
    ProgramWindow program;
    const RECT area = DeviceWorkArea();
    const LONG aboveBar = area.bottom - BarHeight();

    DialogRun done = {SHIDIF_DONEBUTTON | SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN,
                      TapNavigationButton};
    SipShowIM(SIPF_ON);
    EXPECT_EQ(RunDialog(program.window, done), IDOK);
    EXPECT_TRUE(done.initialised);
    EXPECT_FALSE(done.panelRaised);
    EXPECT_EQ(done.place, (RECT{0, area.top, area.right, aboveBar}));
    EXPECT_EQ(done.client, (RECT{0, 0, area.right, aboveBar - area.top}));
    EXPECT_EQ(done.bar, nullptr);

    DialogRun cancelled = {SHIDIF_CANCELBUTTON | SHIDIF_FULLSCREENNOMENUBAR, TapNavigationButton};
    EXPECT_EQ(RunDialog(program.window, cancelled), IDCANCEL);
    EXPECT_EQ(cancelled.place, area);
    EXPECT_TRUE(program.commands.empty());
}

TEST(DialogTest, DialogWithoutSizeFlagsKeepsItsPlaceAndFrame) {
    ProgramWindow program;
    DialogRun run = {SHIDIF_EMPTYMENU, Cancel};
    RunDialog(program.window, run);
    EXPECT_LT(run.place.right - run.place.left, Screen().right);
    EXPECT_LT(run.client.bottom, run.place.bottom - run.place.top);
    EXPECT_NE(run.bar, nullptr);
    EXPECT_FALSE(IsWindow(run.bar));
}

TEST(DialogTest, RefusesWrongArguments) {
    EXPECT_FALSE(SHInitDialog(nullptr));
    SHINITDLGINFO noDialog = {SHIDIM_FLAGS, nullptr, SHIDIF_DONEBUTTON};
    EXPECT_FALSE(SHInitDialog(&noDialog));

    ProgramWindow program;
    SHACTIVATEINFO info = {};
    EXPECT_FALSE(SHHandleWMActivate(program.window, WA_ACTIVE, 0, &info, 0));
    EXPECT_FALSE(SHHandleWMActivate(program.window, WA_ACTIVE, 0, nullptr, 0));
    EXPECT_FALSE(SHHandleWMSettingChange(program.window, SPI_SETSIPINFO, 0, &info));
    EXPECT_FALSE(SHHandleWMSettingChange(program.window, 0, 0, &program.activation));
}

TEST(DialogTest, FocusReturnsToTheControlThatHadIt) {
    ProgramWindow program;
    const auto child = [&] {
        return CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20, program.window,
                               nullptr, nullptr, nullptr);
    };
    const HWND first = child();
    const HWND second = child();
    for (const HWND control : {first, second}) {
        SetFocus(control);
        const ProgramWindow other;
        EXPECT_EQ(GetFocus(), other.window);
        EXPECT_FALSE(program.activation.fActive);
        SetForegroundWindow(program.window);
        EXPECT_EQ(GetFocus(), control);
        EXPECT_TRUE(program.activation.fActive);
    }
    // Without that control, the window itself takes the focus.
    {
        const ProgramWindow other;
        DestroyWindow(second);
    }
    EXPECT_EQ(GetFocus(), program.window);
}

// One red pixel, as a .bmp, a .png and a .gif file.
constexpr std::string_view kBmp{
    "BM\x3A\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x01\0\0\0\x01\0\0\0\x01\0\x18\0\0\0\0\0\x04\0\0\0"
    "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\xFF\0",
    58};
constexpr std::string_view kPng{
    "\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\x01\0\0\0\x01\x08\x02\0\0\0\x90wS\xDE\0\0\0\x0CIDATx\x9C"
    "\x63\xF8\xCF\xC0\0\0\x03\x01\x01\0\xC9\xFE\x92\xEF\0\0\0\0IEND\xAE\x42\x60\x82",
    69};
constexpr std::string_view kGif{
    "GIF89a\x01\0\x01\0\x80\0\0\xFF\0\0\0\0\0,\0\0\0\0\x01\0\x01\0\0\x02\x02\x44\x01\0;", 35};

COLORREF FirstPixel(HBITMAP bitmap) {
    const HDC memory = CreateCompatibleDC(nullptr);
    const HGDIOBJ previous = SelectObject(memory, bitmap);
    const COLORREF pixel = GetPixel(memory, 0, 0);
    SelectObject(memory, previous);
    DeleteDC(memory);
    return pixel;
}

TEST(ImageFileTest, LoadsPicturesAndRefusesTheRest) {
    for (const std::string_view bytes : {kBmp, kPng, kGif}) {
        const TempFile file(L"picture");
        file.Write(bytes);
        const HBITMAP bitmap = SHLoadImageFile(file.Path());
        ASSERT_NE(bitmap, nullptr) << bytes.size();
        EXPECT_EQ(FirstPixel(bitmap), RGB(0xFF, 0, 0)) << bytes.size();
        DeleteObject(bitmap);
    }
    std::string tall(kBmp);
    tall[0x18] = '\x10'; // The picture's height, far beyond the bytes that there are.
    for (const std::string_view bytes :
         {std::string_view(tall), kBmp.substr(0, 20), kPng.substr(0, 40), std::string_view()}) {
        const TempFile file(L"picture");
        file.Write(bytes);
        EXPECT_EQ(SHLoadImageFile(file.Path()), nullptr) << bytes.size();
    }
    EXPECT_EQ(SHLoadImageFile(L"\\no such file.png"), nullptr);
    EXPECT_EQ(SHLoadImageFile(nullptr), nullptr);
}

} // namespace
