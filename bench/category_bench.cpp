// What loading and saving the device's categories and filters costs beyond the calls that it
// cannot spare.

#include <windows.h>

#include <stand_in.h>

#include <cstdio>
#include <memory>
#include <string>

#include "bench/own_registry.h"
#include "bench/timing.h"
#include "files/category_store.h"
#include "files/file_stream.h"
#include "settings/settings_store.h"

namespace {

constexpr int kCategories = 5000;
constexpr int kRounds = 15;
constexpr wchar_t kFolder[] = L"\\category_bench";
constexpr wchar_t kDatabase[] = L"\\category_bench\\Categories Database.txt";
constexpr wchar_t kFilters[] = L"\\category_bench\\OVFilters.txt";

std::wstring CategoryName(int number) {
    return L"Category " + std::to_wstring(number);
}

void MakeDatabase() {
    CreateDirectory(kFolder, nullptr);
    DeleteFile(kDatabase);
    std::string lines;
    for (int number = kCategories; number > 0; --number) {
        lines += std::to_string(number) + "\t0\tCategory " + std::to_string(number) + "\n";
    }
    NewFile file(kDatabase);
    file.Write(reinterpret_cast<const uint8_t*>(lines.data()), lines.size());
    StandInSetObjectStore(kFolder);
}

// The registry's part of a load, and a look for each icon's file.
void LoadFloor(HKEY key) {
    for (int number = 1; number <= kCategories; ++number) {
        const std::wstring name = CategoryName(number);
        (void)ReadNumber(key, (L"CatColor." + name).c_str(), 0);
        (void)ReadNumber(key, (L"CatFilter." + name).c_str(), 0);
        DeleteObject(SHLoadDIBitmap((std::wstring(kFolder) + L"\\" + name + L".bmp").c_str()));
    }
}

void SaveFloor(HKEY key) {
    for (int number = 1; number <= kCategories; ++number) {
        const std::wstring name = CategoryName(number);
        SetNumberValue(key, (L"CatColor." + name).c_str(), 7);
        SetNumberValue(key, (L"CatFilter." + name).c_str(), 7);
    }
}

} // namespace

int main() {
    const OwnRegistry registry;
    MakeDatabase();
    HMODULE language = nullptr;
    settingsStore.Load(language);
    settingsStore.OVFiltersFileFolder.Set(kFolder);
    settingsStore.OVIconsFolder.Set(kFolder);
    const GroupKey where = KeyOfGroup(SettingGroup::Categories);
    const UniqueKey key(OpenOrCreateKey(where.root, where.path));

    PrintHeading();
    const auto load = [] { categoryStore.LoadCategoryStore(); };
    PrintRow("load of 5000 categories",
             Compare(
                 kRounds, [&] { LoadFloor(key.Get()); }, load),
             1.25);
    for (const auto& category : categoryStore.All())
        category->colour = category->filters = 7;
    PrintRow(
        "save of 5000 categories",
        Compare(
            kRounds, [&] { SaveFloor(key.Get()); }, [] { categoryStore.SaveCategoryRegistry(); }),
        1.25);

    for (uint32_t index = 1; index <= 32; ++index)
        categoryStore.FindFilter(index)->title = std::wstring(2000, L't').c_str();
    categoryStore.SaveFilterFile();
    StandInResetCalls();
    load();
    std::printf("reading 32 titles of 2000 characters takes %lu calls\n",
                StandInCallCount(kReadFileCalls));
    DeleteFile(kFilters);
    DeleteFile(kDatabase);
    RemoveDirectory(kFolder);
    if (language != nullptr) FreeLibrary(language);
    return 0;
}
