#include "files/category_store.h"

#include <gtest/gtest.h>

#include "files/category_icons.h"
#include "settings/settings_store.h"
#include "tests/files/folder_fixture.h"
#include "tests/support/image_files.h"

namespace {

constexpr wchar_t kCategories[] = L"Software\\Teskel\\Orvane\\Categories";

class CategoryStoreTest : public FolderFixture {
  protected:
    void Load() {
        LoadInto(settingsStore);
        store_.LoadCategoryStore();
    }
    std::wstring Names() const {
        std::wstring names;
        for (const auto& category : store_.All())
            names += std::wstring(category->name.CStr()) + L"|";
        return names;
    }

    CategoryStore store_;
};

TEST_F(CategoryStoreTest, ReadsTheDatabaseInTheOrderOfCodeUnits) {
    folder_->SetCategories("1\t1\tb\n2\t0\tZ\n3\t1\t\xC3\x84\n\t0\tno number\n4\t0\t\n"
                           "65535\t0\tnumber of none\n5\t2\ta\n6\t0\tb\n");
    Load();
    EXPECT_EQ(Names(), L"Z|a|b|\u00C4|");
    EXPECT_EQ(store_.FindCategory(L"b")->number, 1U) << "the first of the name";
    EXPECT_TRUE(store_.FindCategory(L"b")->flag);
    EXPECT_FALSE(store_.FindCategory(L"a")->flag) << "only 1 is true";
    EXPECT_EQ(store_.FindCategory(L"B"), nullptr);
    EXPECT_EQ(store_.FindCategory(L""), nullptr);

    folder_->SetCategories("");
    Load();
    EXPECT_EQ(Names(), L"") << "loading discards what was";
}

TEST_F(CategoryStoreTest, KeepsColoursAndFilterBitsInTheRegistry) {
    folder_->SetCategories("1\t0\tHome\n2\t0\tWork\n");
    SetUserNumber(kCategories, L"CatColor.Home", 0x123456);
    SetUserNumber(kCategories, L"CatFilter.Work", 5);
    SetUserNumber(kCategories, L"CatColor.Gone", 7);
    Load();
    EXPECT_EQ(store_.FindCategory(L"Home")->colour, 0x123456U);
    EXPECT_EQ(store_.FindCategory(L"Home")->filters, 0U);
    EXPECT_EQ(store_.FindCategory(L"Work")->colour, kNoColour);
    EXPECT_EQ(store_.FindCategory(L"Work")->filters, 5U);

    store_.FindCategory(L"Home")->colour = kNoColour;
    store_.FindCategory(L"Home")->filters = 0x80000001;
    store_.FindCategory(L"Work")->colour = 0;
    store_.FindCategory(L"Work")->filters = 0;
    store_.SaveCategoryRegistry();
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kCategories, L"CatColor.Home"));
    EXPECT_EQ(GetUserNumber(kCategories, L"CatFilter.Home"), 0x80000001U);
    EXPECT_EQ(GetUserNumber(kCategories, L"CatColor.Work"), 0U);
    EXPECT_FALSE(HasValue(HKEY_CURRENT_USER, kCategories, L"CatFilter.Work"));
    EXPECT_EQ(GetUserNumber(kCategories, L"CatColor.Gone"), 7U) << "not of this device, but kept";
}

TEST_F(CategoryStoreTest, LoadsIconsOfTheIconsFolder) {
    folder_->SetCategories("1\t0\tHome\n2\t0\tWork\n3\t0\t..\\Icons\\star\n");
    folder_->Write(L"CategoryIcons\\Home.bmp", BmpFile(1, 1, 0));
    folder_->Write(L"Icons\\star.bmp", BmpFile(1, 1, 0));
    Load();
    EXPECT_TRUE(store_.FindCategory(L"Home")->icon);
    EXPECT_FALSE(store_.FindCategory(L"Work")->icon);
    EXPECT_FALSE(store_.FindCategory(L"..\\Icons\\star")->icon) << "of another folder";
}

TEST_F(CategoryStoreTest, ReplacesIcons) {
    const std::string old = BmpFile(1, 1, 1);
    const std::string fresh = BmpFile(2, 2, 2);
    const std::wstring home = L"New\\Home.bmp";
    const std::wstring star = folder_->PathOf(L"Icons\\star.bmp");
    folder_->Write(L"Icons\\star.bmp", fresh);
    Load();
    settingsStore.OVIconsFolder.Set(folder_->PathOf(L"New\\").c_str());
    EXPECT_TRUE(ReplaceCategoryIcon(L"Home", star.c_str()));
    EXPECT_EQ(folder_->Read(home), fresh) << "in a folder that was not there";
    folder_->Write(home, old);
    SetFileAttributes(folder_->PathOf(home).c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_TRUE(ReplaceCategoryIcon(L"Home", star.c_str()));
    EXPECT_EQ(folder_->Read(home), fresh);
    EXPECT_EQ(folder_->Read(L"Icons\\star.bmp"), fresh);
    for (const wchar_t* nothing : {L"\\No such file.bmp", L""}) {
        folder_->Write(home, old);
        EXPECT_FALSE(ReplaceCategoryIcon(L"Home", nothing));
        EXPECT_FALSE(folder_->Has(home)) << nothing;
    }
    for (const wchar_t* name : {L"..\\Icons\\star", L"a/b", L"a:b", L"a*", L"a?", L"a\nb", L""}) {
        EXPECT_STREQ(CategoryIconPath(name).CStr(), L"") << name;
        EXPECT_FALSE(ReplaceCategoryIcon(name, L""));
    }
    EXPECT_EQ(folder_->Read(L"Icons\\star.bmp"), fresh);

    // An icon that is its own source stays.
    for (const bool isCopied : {true, false}) {
        // Nothing can be copied to where a folder is.
        if (!isCopied) folder_->Write(home + L".new\\file", "");
        folder_->Write(home, old);
        for (const wchar_t* spelling : {L"new\\HOME.bmp", L"Icons\\..\\New\\Home.bmp"}) {
            EXPECT_TRUE(ReplaceCategoryIcon(L"Home", folder_->PathOf(spelling).c_str()));
            EXPECT_EQ(folder_->Read(home), old) << isCopied;
        }
    }
    EXPECT_FALSE(ReplaceCategoryIcon(L"Home", star.c_str()));
    EXPECT_FALSE(folder_->Has(home) || folder_->Has(home + L".old"));
    EXPECT_EQ(folder_->Read(L"Icons\\star.bmp"), fresh);
}

TEST_F(CategoryStoreTest, FindsSelections) {
    folder_->SetCategories("1\t0\tHome\n");
    SetText(HKEY_CURRENT_USER, kCalendar, L"CalendarSelCategory", L"Home");
    SetUserNumber(kCalendar, L"CalendarSelFilter", 3);
    SetUserNumber(L"Software\\Teskel\\Orvane\\Tasks", L"TasksSelFilter", 32);
    SetText(HKEY_CURRENT_USER, L"Software\\Teskel\\Orvane\\Contacts", L"ContactsSelCategory",
            L"home");
    SetUserNumber(L"Software\\Teskel\\Orvane\\SEvents", L"SEventsSelFilter", 33);
    Load();
    EXPECT_EQ(store_.calendarSelection.category, store_.FindCategory(L"Home"));
    EXPECT_EQ(store_.calendarSelection.filter, nullptr);
    EXPECT_EQ(store_.tasksSelection.filter, store_.FindFilter(32));
    EXPECT_EQ(store_.contactsSelection.category, nullptr);
    EXPECT_EQ(store_.specialEventsSelection.filter, nullptr) << "there is no filter 33";
}

TEST_F(CategoryStoreTest, KeepsFiltersInTheirFile) {
    Load();
    EXPECT_STREQ(store_.FindFilter(32)->title.CStr(), L"Filter 32") << "no file";
    for (const wchar_t* title : {L"Home", L"Work"}) {
        store_.FindFilter(2)->title = title;
        store_.SaveFilterFile();
    }
    CategoryStore other;
    other.LoadCategoryStore();
    EXPECT_STREQ(other.FindFilter(2)->title.CStr(), L"Work");

    // One that cannot be deleted is not written to.
    const std::string before = *folder_->Read(L"OVFilters.txt");
    SetFileAttributes(folder_->PathOf(L"OVFilters.txt").c_str(), FILE_ATTRIBUTE_READONLY);
    store_.ResetFilters();
    store_.SaveFilterFile();
    EXPECT_EQ(folder_->Read(L"OVFilters.txt"), before);

    settingsStore.OVFiltersFileFolder.Set(L"\\No such folder");
    store_.SaveFilterFile();
    other.LoadCategoryStore();
    EXPECT_STREQ(other.FindFilter(2)->title.CStr(), L"Filter 2");
}

} // namespace
