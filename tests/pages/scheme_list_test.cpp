#include "pages/scheme_list.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include "files/category_store.h"
#include "pages/settings_page.h"
#include "resource_ids.h"
#include "settings/settings_store.h"
#include "shell/services/application.h"
#include "shell/services/resource_strings.h"
#include "tests/settings/store_fixture.h"
#include "tests/support/install_folder.h"
#include "tests/support/window_support.h"

namespace {

constexpr wchar_t kColours[] = L"Software\\Teskel\\Orvane\\Colors";

// A main window that counts how often it is told to close its page.
int closings;

LRESULT CALLBACK MainProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == kMessageClosePage) ++closings;
    return DefWindowProc(window, message, wParam, lParam);
}

class SchemeListTest : public StoreFixture {
  protected:
    void SetUp() override {
        StoreFixture::SetUp();
        folder_.emplace();
        folder_->SetCategories("1\t0\tWork\n");
        settingsStore.Load(application.languageLibrary);
        categoryStore.LoadCategoryStore();
        closings = 0;
        WNDCLASS main{};
        main.lpfnWndProc = MainProc;
        main.lpszClassName = L"SchemeListTest";
        RegisterClass(&main);
        main_ = CreateWindowEx(0, main.lpszClassName, L"", WS_POPUP, 0, 0, 240, 268, nullptr,
                               nullptr, nullptr, nullptr);
        page_ = CreateWindowEx(0, L"STATIC", L"", WS_POPUP, 0, 0, 240, 268, main_, nullptr, nullptr,
                               nullptr);
        list_ = CreateWindowEx(0, WC_LISTVIEW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT, 0, 0, 200,
                               100, page_, nullptr, nullptr, nullptr);
        box_ = CreateWindowEx(0, L"EDIT", L"", WS_CHILD, 0, 100, 200, 20, page_, nullptr, nullptr,
                              nullptr);
        FillSchemeList(list_, nullptr);
    }
    void TearDown() override {
        DestroyWindow(main_);
        UnregisterClass(L"SchemeListTest", nullptr);
        FreeLibrary(application.languageLibrary);
        application.languageLibrary = nullptr;
        folder_.reset();
        StoreFixture::TearDown();
    }

    void Select(int row) const {
        LVITEM item{};
        item.state = item.stateMask = LVIS_SELECTED;
        SendMessage(list_, LVM_SETITEMSTATE, static_cast<WPARAM>(row),
                    reinterpret_cast<LPARAM>(&item));
        SendMessage(list_, LVM_SETSELECTIONMARK, 0, row);
    }
    std::wstring Rows() const {
        std::wstring rows;
        const LRESULT count = SendMessage(list_, LVM_GETITEMCOUNT, 0, 0);
        for (LRESULT row = 0; row < count; ++row) {
            wchar_t text[MAX_PATH] = L"";
            LVITEM item{};
            item.pszText = text;
            item.cchTextMax = MAX_PATH;
            SendMessage(list_, LVM_GETITEMTEXT, static_cast<WPARAM>(row),
                        reinterpret_cast<LPARAM>(&item));
            rows += std::wstring(text) + L"|";
        }
        return rows;
    }
    // Does an operation whose last message box, answered with `button`, has the texts given.
    template <typename Operation>
    static int Expect(int button, UINT textId, UINT captionId, Operation operation) {
        const MessageBoxAnswer answer(button);
        const int changed = operation();
        EXPECT_EQ(answer.text, LanguageText(textId).CStr());
        EXPECT_EQ(answer.caption, LanguageText(captionId).CStr());
        EXPECT_NE(answer.text, L"");
        return changed;
    }
    int Save(const wchar_t* name, UINT textId, UINT captionId) const {
        SetWindowText(box_, name);
        return Expect(IDOK, textId, captionId, [&] { return SaveScheme(page_, box_, list_); });
    }
    int Load(int button, UINT textId, UINT captionId) const {
        return Expect(button, textId, captionId, [&] { return LoadScheme(page_, list_); });
    }
    int Delete(int button, UINT textId, UINT captionId) const {
        return Expect(button, textId, captionId, [&] { return DeleteScheme(page_, list_); });
    }

    std::optional<InstallFolder> folder_;
    HWND main_ = nullptr;
    HWND page_ = nullptr;
    HWND list_ = nullptr;
    HWND box_ = nullptr;
};

TEST_F(SchemeListTest, SavesUnderANewName) {
    EXPECT_EQ(Save(L"", IDS_SCHEME_NO_NAME, IDS_SCHEME_NO_NAME_CAPTION), 0);
    EXPECT_EQ(Save(L"Night", IDS_SCHEME_SAVED, IDS_SCHEME_SAVED_CAPTION), 1);
    EXPECT_EQ(TextOf(box_), L"");
    EXPECT_EQ(Save(L"Day", IDS_SCHEME_SAVED, IDS_SCHEME_SAVED_CAPTION), 1);
    EXPECT_EQ(Rows(), L"Day.scm|Night.scm|") << "the new one on top";
    const auto before = folder_->Read(L"Schemes\\Night.scm");
    SetUserNumber(kColours, L"GeneralFontColor", 1);
    EXPECT_EQ(Save(L"night", IDS_SCHEME_EXISTS, IDS_SCHEME_EXISTS_CAPTION), 0);
    EXPECT_EQ(folder_->Read(L"Schemes\\Night.scm"), before);
    EXPECT_EQ(TextOf(box_), L"night");
    EXPECT_EQ(Save(L"a?b", IDS_SCHEME_SAVED, IDS_SCHEME_SAVED_CAPTION), 1) << "not checked";
    FillSchemeList(list_, nullptr);
    EXPECT_EQ(Rows(), L"Day.scm|Night.scm|");
}

TEST_F(SchemeListTest, LoadsTheSelectedOne) {
    SetUserNumber(kColours, L"GeneralFontColor", 0x123456);
    Save(L"Mine", IDS_SCHEME_SAVED, IDS_SCHEME_SAVED_CAPTION);
    SetUserNumber(kColours, L"GeneralFontColor", 1);
    settingsStore.GoofyMode.Set(1);
    EXPECT_EQ(Load(IDOK, IDS_SCHEME_NOT_SELECTED, IDS_SCHEME_NOT_SELECTED_CAPTION), 0);
    Select(0);
    EXPECT_EQ(Load(IDNO, IDS_SCHEME_LOAD_QUESTION, IDS_SCHEME_LOAD_QUESTION_CAPTION), 0);
    EXPECT_EQ(GetUserNumber(kColours, L"GeneralFontColor"), 1U);
    PumpMessages();
    EXPECT_EQ(closings, 0);

    EXPECT_EQ(Load(IDYES, IDS_SCHEME_LOAD_QUESTION, IDS_SCHEME_LOAD_QUESTION_CAPTION), 1);
    EXPECT_EQ(settingsStore.GeneralFontColor.value, 0x123456U);
    EXPECT_EQ(settingsStore.GoofyMode.value, 0U) << "all settings are loaded anew";
    EXPECT_NE(application.languageLibrary, nullptr);
    PumpMessages();
    EXPECT_EQ(closings, 1);
}

TEST_F(SchemeListTest, SaysWhyAFileCannotBeLoaded) {
    folder_->Write(L"Schemes\\Bad.scm", "[Software\\Teskel\\Orvane\\Colors]\r\n");
    folder_->Write(L"Schemes\\Gone.scm", "");
    FillSchemeList(list_, nullptr);
    folder_->Remove(L"Schemes\\Gone.scm");
    SetUserNumber(kColours, L"GeneralFontColor", 1);
    Select(1);
    EXPECT_EQ(Load(IDYES, IDS_SCHEME_NOT_OPENED, IDS_SCHEME_NOT_OPENED_CAPTION), 0);
    EXPECT_EQ(GetUserNumber(kColours, L"GeneralFontColor"), 1U);
    Select(0);
    EXPECT_EQ(Load(IDYES, IDS_SCHEME_NOT_LOADED, IDS_SCHEME_NOT_LOADED_CAPTION), 0);
    EXPECT_FALSE(HasKey(HKEY_CURRENT_USER, kColours)) << "the old colours are gone";
    EXPECT_TRUE(folder_->Has(L"Schemes\\Bad.scm"));
    folder_->Remove(L"Schemes\\Bad.scm"); // Only a closed file goes.
    EXPECT_FALSE(folder_->Has(L"Schemes\\Bad.scm"));
}

TEST_F(SchemeListTest, DeletesTheSelectedOne) {
    Save(L"One", IDS_SCHEME_SAVED, IDS_SCHEME_SAVED_CAPTION);
    Save(L"Two", IDS_SCHEME_SAVED, IDS_SCHEME_SAVED_CAPTION);
    EXPECT_EQ(Delete(IDOK, IDS_SCHEME_NOT_SELECTED, IDS_SCHEME_NOT_SELECTED_CAPTION), 0);
    Select(0);
    EXPECT_EQ(Delete(IDNO, IDS_SCHEME_DELETE_QUESTION, IDS_SCHEME_DELETE_QUESTION_CAPTION), 0);
    EXPECT_EQ(Delete(IDYES, IDS_SCHEME_DELETE_QUESTION, IDS_SCHEME_DELETE_QUESTION_CAPTION), 1);
    EXPECT_EQ(Rows(), L"One.scm|");
    EXPECT_FALSE(folder_->Has(L"Schemes\\Two.scm"));
    EXPECT_EQ(Delete(IDOK, IDS_SCHEME_NOT_SELECTED, IDS_SCHEME_NOT_SELECTED_CAPTION), 0)
        << "the mark has moved to a neighbour, the selection has not";
}

} // namespace
