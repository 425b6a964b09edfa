// Exporting and importing trees of three sizes, each as a process of its own, without its start:
// ours, the bare registry calls that it cannot spare, and Wine's own tools.

#include <windows.h>

#include <psapi.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "bench/timing.h"
#include "files/category_store.h"
#include "files/file_stream.h"
#include "files/settings_backup.h"
#include "settings/registry_tree.h"
#include "settings/registry_values.h"
#include "shell/services/handles.h"

namespace {

constexpr wchar_t kBackup[] = L"\\backup_bench.ovsb";
constexpr wchar_t kForeign[] = L"\\backup_bench.reg";
constexpr int kValuesPerKey = 50;

std::wstring KeyName(int number) {
    return std::wstring(kSettingsKey) + L"\\Group" + std::to_wstring(number / 100) + L"\\Key" +
           std::to_wstring(number);
}

// Every second value is a text.
void MakeTree(int values) {
    constexpr wchar_t kText[] = L"\\My Documents\\A folder\\A file.txt";
    for (int number = 0; number < values; number += kValuesPerKey) {
        const UniqueKey key(
            OpenOrCreateKey(HKEY_CURRENT_USER, KeyName(number / kValuesPerKey).c_str()));
        for (int index = 0; index < kValuesPerKey; ++index) {
            const std::wstring name = L"Value" + std::to_wstring(index);
            if (index % 2 == 0) {
                SetTextValue(key.Get(), name.c_str(), kText);
            } else {
                SetNumberValue(key.Get(), name.c_str(), static_cast<uint32_t>(number));
            }
        }
    }
}

void EnumerateTree(HKEY parent, const wchar_t* path) {
    const UniqueKey key(OpenOrCreateKey(parent, path));
    wchar_t name[256];
    BYTE data[256];
    for (DWORD index = 0;; ++index) {
        DWORD length = 256;
        DWORD size = sizeof data;
        DWORD type = 0;
        if (RegEnumValue(key.Get(), index, name, &length, nullptr, &type, data, &size) !=
            ERROR_SUCCESS) {
            break;
        }
    }
    WideString subkey;
    for (DWORD index = 0; SubkeyName(key.Get(), index, subkey) == ERROR_SUCCESS; ++index)
        EnumerateTree(key.Get(), subkey.CStr());
}

void DeleteTree() {
    DeleteKeyTree(HKEY_CURRENT_USER, kSettingsKey);
}

void Export() {
    ReplacementFile file(kBackup);
    WriteBackup(categoryStore, file);
    file.Commit();
}

bool Import() {
    FileSource file(kBackup);
    return ReadBackup(file, categoryStore);
}

// What a child process does, by its first word; its exit code is its peak of memory in KB.
int RunChild(const char* task, int values) {
    if (strcmp(task, "loop-export") == 0) EnumerateTree(HKEY_CURRENT_USER, kSettingsKey);
    if (strcmp(task, "loop-import") == 0) MakeTree(values);
    if (strcmp(task, "export") == 0) Export();
    if (strcmp(task, "import") == 0 && !Import()) return 0;
    PROCESS_MEMORY_COUNTERS memory = {};
    GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory);
    return static_cast<int>(memory.PeakWorkingSetSize / 1024);
}

// Runs a command to its end; gives its exit code.
DWORD Run(std::wstring command) {
    STARTUPINFO startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    PROCESS_INFORMATION process = {};
    if (!CreateProcess(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                       &startup, &process)) {
        return 0;
    }
    WaitForSingleObject(process.hProcess, 60000);
    DWORD code = 0;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return code;
}

std::wstring Self(const wchar_t* task, int values) {
    wchar_t program[MAX_PATH] = L"";
    GetModuleFileName(nullptr, program, MAX_PATH);
    return L"\"" + std::wstring(program) + L"\" " + task + L" " + std::to_wstring(values);
}

struct Measured {
    Comparison againstLoop;
    double foreign;
    DWORD peak; // KB
};

template <typename Prepare>
Measured Measure(int rounds, Prepare prepare, const std::wstring& loop, const std::wstring& ours,
                 const std::wstring& foreign) {
    std::vector<double> times[3];
    DWORD peak = 0;
    for (int round = 0; round < rounds; ++round) {
        prepare();
        times[0].push_back(Milliseconds([&] { Run(loop); }));
        prepare();
        DWORD used = 0;
        times[1].push_back(Milliseconds([&] { used = Run(ours); }));
        if (used == 0) std::printf("ours failed; its times mean nothing\n");
        peak = std::max(peak, used);
        prepare();
        times[2].push_back(Milliseconds([&] { Run(foreign); }));
    }
    return {{Median(times[0]), Median(times[1])}, Median(times[2]), peak};
}

void PrintTree(const char* what, int values, const char* tool, const Measured& measured) {
    char row[64];
    std::snprintf(row, sizeof row, "%s of %d values / bare calls", what, values);
    PrintRow(row, measured.againstLoop, 1.15);
    std::snprintf(row, sizeof row, "%s of %d values / %s", what, values, tool);
    PrintRow(row, {measured.foreign, measured.againstLoop.ours}, 1.0);
}

void PrintGrowth(const char* what, const Measured& small, const Measured& large) {
    char row[64];
    std::snprintf(row, sizeof row, "%s of 50000 / of 5000", what);
    PrintRow(row, {small.againstLoop.ours, large.againstLoop.ours}, 11.0);
    std::snprintf(row, sizeof row, "its peak of memory, KB");
    PrintRow(row, {static_cast<double>(small.peak), static_cast<double>(large.peak)}, 1.1);
}

// What each takes beyond its start, which is what it takes for an empty tree.
Measured Beyond(Measured start, const Measured& measured) {
    return {{measured.againstLoop.floor - start.againstLoop.floor,
             measured.againstLoop.ours - start.againstLoop.ours},
            measured.foreign - start.foreign,
            measured.peak};
}

Measured MeasureExport(int rounds, int values) {
    return Measure(
        rounds, [] {}, Self(L"loop-export", values), Self(L"export", values),
        L"regedit /E C:" + std::wstring(kForeign) + L" HKEY_CURRENT_USER\\" + kSettingsKey);
}

Measured MeasureImport(int rounds, int values) {
    return Measure(rounds, DeleteTree, Self(L"loop-import", values), Self(L"import", values),
                   L"reg import C:" + std::wstring(kForeign));
}

void CompareTrees() {
    constexpr int kSizes[] = {0, 500, 5000, 50000};
    constexpr int kRounds[] = {41, 41, 11, 5};
    Measured exports[4];
    Measured imports[4];
    for (int index = 0; index < 4; ++index) {
        const int values = kSizes[index];
        DeleteTree();
        const UniqueKey root(OpenOrCreateKey(HKEY_CURRENT_USER, kSettingsKey));
        MakeTree(values);
        exports[index] = MeasureExport(kRounds[index], values);
        imports[index] = MeasureImport(kRounds[index], values);
        if (index == 0) continue;
        exports[index] = Beyond(exports[0], exports[index]);
        imports[index] = Beyond(imports[0], imports[index]);
        PrintTree("export", values, "regedit /E", exports[index]);
        PrintTree("import", values, "reg import", imports[index]);
    }
    PrintGrowth("export", exports[2], exports[3]);
    PrintGrowth("import", imports[2], imports[3]);
    DeleteTree();
    DeleteFile(kBackup);
    DeleteFile(kForeign);
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 3) return RunChild(argv[1], atoi(argv[2]));
    if (UniqueKey(OpenExistingKey(HKEY_CURRENT_USER, kSettingsKey))) {
        std::printf("it deletes the settings: run it by bench/run, on a device of its own\n");
        return 1;
    }
    PrintHeading();
    CompareTrees();
    return 0;
}
