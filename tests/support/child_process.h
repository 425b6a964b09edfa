#pragma once

#include <windows.h>

#include <string>

// Runs a test program, without its report, which would look like this one's.
// Gives its exit code; STILL_ACTIVE when it does not start or end.
inline DWORD RunTests(const std::wstring& program, const std::wstring& arguments) {
    std::wstring command = L"\"" + program + L"\" " + arguments;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES; // None.
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &process))
        return STILL_ACTIVE;
    DWORD code = 0;
    WaitForSingleObject(process.hProcess, 20000);
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return code;
}
