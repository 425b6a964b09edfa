// Another program may close the main window, and with it the page, while something that the page
// opened still waits for an answer.

#include "files/category_store.h"
#include "tests/support/page_fixture.h"
#include "ui/controls.h"
#include "ui/list_items.h"

namespace {
struct Opened {
    const char* name;
    int page;
    int button;
    const wchar_t* window; // That the button opens; null for a menu.
    int list = 0;          // Where a row is to be selected.
};
const Opened kOpened[] = {
    {"GeneralFolder", 0, 1214, kFolderDialog},
    {"TasksMenu", 2, 1216, nullptr},
    {"NotesFolder", 3, 1217, kFolderDialog},
    {"NotesRefusal", 3, 1216, kTemplateDialog},
    {"FontsColour", 7, 1210, kColourPicker, 1211},
    {"ColoursPicker", 8, 1200, kColourPicker, 1201},
    {"PimRefusal", 9, 1201, kTemplateDialog},
    {"TabsAdding", 10, 1209, kTemplateDialog},
    {"CategoryIcon", 11, 1201, L"ImagePickerWin", 1200},
    {"CategoryColour", 11, 1202, kColourPicker, 1200},
    {"CategoryName", 11, 1205, kTemplateDialog},
    {"CategoryFolder", 11, 1216, kFolderDialog},
};

class ClosedBehind : public PageFixture, public testing::WithParamInterface<Opened> {
  protected:
    ClosedBehind() : PageFixture(GetParam().page) {}

    void SetUp() override {
        PageFixture::SetUp();
        folder_->SetCategories("1\t0\tWork\n");
        categoryStore.LoadCategoryStore();
        const std::wstring item = L"SOFTWARE\\Microsoft\\Today\\Items\\Alarm"; // Can be a tab.
        SetNumber(HKEY_LOCAL_MACHINE, item, L"Type", 4);
        SetText(HKEY_LOCAL_MACHINE, item, L"DLL", L"\\Alarm.dll");
    }

    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR timer, DWORD) {
        const wchar_t* window = GetParam().window;
        HWND opened = window ? FindWindow(window, nullptr) : nullptr;
        if (window && !opened) return;
        KillTimer(nullptr, timer);
        current_->Close();
        if (IsWindow(opened)) PostMessage(opened, WM_COMMAND, IDOK, 0);
    }

    static inline ClosedBehind* current_;
};

TEST_P(ClosedBehind, IsSurvived) {
    Open();
    Close();
    settingsStore.Save();
    Open();
    const RegistryTree before = GetTree(HKEY_CURRENT_USER);
    HWND window = window_;
    HWND button = Control(GetParam().button);
    if (GetParam().list) SelectRow(Control(GetParam().list), 0);
    current_ = this;
    SetTimer(nullptr, 0, 20, OnTimer);
    if (SelectData(button, 4)) // The list of applications; what is not installed is refused.
        SendMessage(window, WM_COMMAND, MAKEWPARAM(GetParam().button, CBN_SELENDOK),
                    reinterpret_cast<LPARAM>(button));
    else
        SendMessage(button, BM_CLICK, 0, 0);
    EXPECT_FALSE(IsWindow(window));
    EXPECT_FALSE(page_) << "nothing opened";
    PumpMessages();
    settingsStore.Save();
    EXPECT_TRUE(GetTree(HKEY_CURRENT_USER) == before) << "what nobody chose was stored";
}

INSTANTIATE_TEST_SUITE_P(What, ClosedBehind, testing::ValuesIn(kOpened),
                         [](const auto& opened) { return std::string(opened.param.name); });
} // namespace
