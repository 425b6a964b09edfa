#include "files/icon_catalogue.h"

#include <gtest/gtest.h>

#include "settings/settings_store.h"
#include "tests/files/folder_fixture.h"

namespace {

class IconCatalogueTest : public FolderFixture {
  protected:
    void SetInstallPath(const wchar_t* name, const std::wstring& path) {
        SetText(HKEY_CURRENT_USER, std::wstring(kRoot) + L"\\IconSet", name, path);
    }
    void Build() {
        LoadInto(settingsStore);
        catalogue_.BuildIconCatalogue();
    }
    // Each icon's folder below the install folder and its name.
    std::wstring Icons() const {
        const size_t start = folder_->PathOf(L"").size();
        std::wstring icons;
        for (size_t index = 0; index < catalogue_.Count(); ++index)
            icons += std::wstring(catalogue_.Path(index).CStr()).substr(start) + L"|";
        return icons;
    }

    IconCatalogue catalogue_;
};

TEST_F(IconCatalogueTest, SortsTheIconsOfAllFolders) {
    for (const wchar_t* file : {L"Icons\\sun.bmp", L"Icons\\Anchor.BMP", L"Icons\\note.txt",
                                L"Icons\\old.bmpx", L"Icons\\folder.bmp\\x", L"More\\SUN.bmp",
                                L"More\\moon.bmp", L"24\\Sun.bmp", L"12\\sun.bmp"})
        folder_->Write(file, "");
    SetInstallPath(L"InstallPath12", folder_->PathOf(L"12"));
    SetInstallPath(L"InstallPath18", L"\\No such folder");
    SetInstallPath(L"InstallPath24", folder_->PathOf(L"24\\"));
    SetInstallPath(L"InstallPathBlank", L"");
    Build();
    EXPECT_EQ(Icons(), L"Icons\\Anchor.bmp|Icons\\sun.bmp|24\\Sun.bmp|12\\sun.bmp|");
    EXPECT_STREQ(catalogue_.Name(0).CStr(), L"Anchor");

    folder_->Write(L"Icons\\later.bmp", "");
    catalogue_.BuildIconCatalogue();
    EXPECT_EQ(catalogue_.Count(), 4U) << "built once";
    settingsStore.AdditionalIconsFolder.Set(folder_->PathOf(L"More").c_str());
    catalogue_.BuildIconCatalogue();
    EXPECT_EQ(Icons(), L"Icons\\Anchor.bmp|Icons\\later.bmp|More\\moon.bmp|Icons\\sun.bmp|"
                       L"More\\SUN.bmp|24\\Sun.bmp|12\\sun.bmp|");
    EXPECT_EQ(catalogue_.Find(folder_->PathOf(L"more\\sun.BMP").c_str()), 4U);
    EXPECT_EQ(catalogue_.Find(L""), std::nullopt);
}

// Ten thousand icons: a folder of 250, many times over.
TEST_F(IconCatalogueTest, IsQuickWithThousandsOfIcons) {
    for (int file = 0; file < 250; ++file)
        folder_->Write(L"Icons\\icon " + std::to_wstring(file) + L".bmp", "");
    const DWORD start = GetTickCount();
    for (int time = 0; time < 40; ++time)
        catalogue_.AddIconFolder(folder_->PathOf(L"Icons").c_str());
    EXPECT_LT(GetTickCount() - start, 5000U);
    ASSERT_EQ(catalogue_.Count(), 10000U);
}

} // namespace
