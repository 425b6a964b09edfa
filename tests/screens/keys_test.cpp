// Everything can be done without a stylus.

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include "shell/services/handles.h"
#include "tests/screens/explorer.h"

namespace {
std::vector<uint32_t> PictureOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    BITMAPINFO info{};
    info.bmiHeader = {sizeof(info.bmiHeader), width, height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    HDC dc = GetWindowDC(window);
    std::vector<uint32_t> pixels;
    {
        const UniqueBitmap bitmap(CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        const UniqueDc copy(CreateCompatibleDC(dc));
        const SelectScope selected(copy.Get(), bitmap.Get());
        BitBlt(copy.Get(), 0, 0, width, height, dc, 0, 0, SRCCOPY);
        GdiFlush();
        const auto* first = static_cast<const uint32_t*>(bits);
        pixels.assign(first, first + width * height);
    }
    ReleaseDC(window, dc);
    return pixels;
}

class KeyExplorer final : public Explorer {
  public:
    explicit KeyExplorer(ProgramThread& program) : Explorer(program, true) {}

  protected:
    void OnSight(HWND window) override {
        GoRound(window, true);
        GoRound(window, false);
    }

  private:
    // Until the keys are where they began: every control has had the focus then, and shown it.
    void GoRound(HWND window, bool forward) {
        std::set<HWND> awaited;
        for (HWND control : ChildrenOf(window)) {
            if (IsOperable(control)) awaited.insert(control);
        }
        const size_t count = awaited.size();
        HWND start = Focused(window);
        HWND control = start;
        for (int keys = 0; control && keys < 200; ++keys) {
            awaited.erase(control);
            const std::vector<uint32_t> withFocus = PictureOf(control);
            const std::string place = Place(window);
            Leave(control, forward);
            HWND next = Focused(window);
            if (next == control && count == 1) break;
            if (next != control) ExpectShownFocus(control, withFocus, place);
            if (next != control && next == start) break;
            control = next;
        }
        for (HWND missed : awaited)
            ADD_FAILURE() << (forward ? "Down" : "Up") << " never reaches " << GetDlgCtrlID(missed)
                          << " of " << Place(window);
    }

    // A field shows its caret, which blinks.
    static void ExpectShownFocus(HWND control, const std::vector<uint32_t>& withFocus,
                                 const std::string& place) {
        if (ClassOf(control) == L"Edit") return;
        EXPECT_TRUE(PictureOf(control) != withFocus) << "no focus to be seen: " << place;
    }
};

TEST(Keys, ReachEverythingAndShowWhereTheyAre) {
    ProgramThread program;
    KeyExplorer explorer(program);
    explorer.VisitProgram();
    const std::set<std::wstring> expected = {
        L"#32770 419 1590 1 2",                    // The name of a filter.
        L"#32770 419 420 473 2",                   // The plug-in to add.
        L"#32770 420 473 478 475 476 477 419 479", // The style of a font.
        L"AboutWin",
        L"CalendarSettingsWin",
        L"CategorySettingsWin",
        L"ColorSettingsWin",
        L"ColourPickerWin",
        L"ContactSettingsWin",
        L"FontSettingsWin",
        L"GeneralSettingsWin",
        L"ImagePickerWin",
        L"LoadFileWin",
        L"MessagesSettingsWin",
        L"NotesSettingsWin",
        L"PIMSettingsWin",
        L"SEventsSettingsWin",
        L"SaveFileWin",
        L"SelectFolderWin",
        L"TabsSettingsWin",
        L"TasksSettingsWin",
    };
    EXPECT_EQ(explorer.visited, expected);
}
} // namespace
