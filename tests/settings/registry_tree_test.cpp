#include "settings/registry_tree.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "shell/services/handles.h"
#include "tests/support/registry_fixture.h"

namespace {

enum class Deletion {
    TakesChildren,  // As the device: a key goes with everything below it.
    RefusesParents, // As a PC: a key that has subkeys does not go.
};
Deletion deletion = Deletion::TakesChildren;
const wchar_t* stuckKey = nullptr; // No call deletes a key of this name, or one above it.

// Both platforms' ways are there: the device's in the stand-in, the PC's below it.
LONG WINAPI DeleteKey(HKEY key, const wchar_t* path) {
    using Call = LONG(WINAPI*)(HKEY, const wchar_t*);
    if (stuckKey != nullptr && wcscmp(path, stuckKey) == 0) return ERROR_ACCESS_DENIED;
    const bool device = deletion == Deletion::TakesChildren && stuckKey == nullptr;
    const HMODULE library = GetModuleHandleW(device ? L"coredll.dll" : L"advapi32.dll");
    FARPROC call = GetProcAddress(library, "RegDeleteKeyW");
    return reinterpret_cast<Call>(reinterpret_cast<void*>(call))(key, path);
}

} // namespace

// Takes the place of the import for everything in this program.
extern "C" {
extern LONG(WINAPI* __imp_RegDeleteKeyW)(HKEY, const wchar_t*);
LONG(WINAPI* __imp_RegDeleteKeyW)(HKEY, const wchar_t*) = DeleteKey;
}

namespace {

class RegistryTreeTest : public RegistryFixture {
  protected:
    void TearDown() override {
        deletion = Deletion::TakesChildren;
        stuckKey = nullptr;
        RegistryFixture::TearDown();
    }
};

void MakeTree() {
    for (const wchar_t* path :
         {L"Top\\a\\b\\c", L"Top\\a\\b2", L"Top\\Contacts\\deep", L"Top\\z z%s", L"Topmost\\a"}) {
        SetNumber(HKEY_CURRENT_USER, path, L"value", 1);
    }
}

TEST_F(RegistryTreeTest, DeletesEverythingBelowAKeyButASubkeyOfExactlyThatName) {
    for (const Deletion way : {Deletion::TakesChildren, Deletion::RefusesParents}) {
        deletion = way;
        MakeTree();
        {
            UniqueKey top;
            RegOpenKeyExW(HKEY_CURRENT_USER, L"Top", 0, KEY_ALL_ACCESS, top.Receive());
            DeleteSubkeys(top.Get(), L"Contacts");
            EXPECT_EQ(GetTree(top.Get()).size(), 3U) << "Contacts, deep, and its value";
            DeleteSubkeys(top.Get(), L"CONTACTS");
            EXPECT_TRUE(GetTree(top.Get()).empty());
        }
        MakeTree();
        EXPECT_TRUE(DeleteKeyTree(HKEY_CURRENT_USER, L"Top"));
        EXPECT_FALSE(HasKey(HKEY_CURRENT_USER, L"Top"));
        EXPECT_TRUE(HasKey(HKEY_CURRENT_USER, L"Topmost\\a"));
        EXPECT_TRUE(DeleteKeyTree(HKEY_CURRENT_USER, L"Top")) << "it is not there";
    }
}

TEST_F(RegistryTreeTest, PassesOverAKeyThatWillNotGo) {
    struct Case {
        const wchar_t* stuck;
        std::set<std::wstring> left;
    };
    const Case cases[] = {
        {L"c", {L"Top\\", L"Top\\a\\", L"Top\\a\\b\\", L"Top\\a\\b\\c\\"}},
        {L"Contacts", {L"Top\\", L"Top\\Contacts\\"}},
    };
    deletion = Deletion::RefusesParents;
    for (const Case& c : cases) {
        MakeTree();
        stuckKey = c.stuck;
        EXPECT_FALSE(DeleteKeyTree(HKEY_CURRENT_USER, L"Top"));
        std::set<std::wstring> left;
        for (const auto& [path, value] : GetTree(HKEY_CURRENT_USER)) {
            if (path.starts_with(L"Top\\")) left.insert(path);
        }
        EXPECT_EQ(left, c.left) << c.stuck;
        stuckKey = nullptr;
        EXPECT_TRUE(DeleteKeyTree(HKEY_CURRENT_USER, L"Top"));
    }
}

} // namespace
