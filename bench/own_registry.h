#pragma once

#include <windows.h>

#include "settings/registry_tree.h"
#include "settings/registry_values.h"
#include "shell/services/handles.h"

// The registry of the user and of the machine, for the benchmark's time: empty keys of its own.
class OwnRegistry {
  public:
    OwnRegistry() {
        DeleteKeyTree(HKEY_CURRENT_USER, kPath);
        user_.Reset(OpenOrCreateKey(HKEY_CURRENT_USER, L"Software\\OVOptions benchmark\\User"));
        machine_.Reset(
            OpenOrCreateKey(HKEY_CURRENT_USER, L"Software\\OVOptions benchmark\\Machine"));
        RegOverridePredefKey(HKEY_CURRENT_USER, user_.Get());
        RegOverridePredefKey(HKEY_LOCAL_MACHINE, machine_.Get());
    }
    OwnRegistry(const OwnRegistry&) = delete;
    OwnRegistry& operator=(const OwnRegistry&) = delete;
    ~OwnRegistry() {
        RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
        DeleteKeyTree(HKEY_CURRENT_USER, kPath);
    }

  private:
    static constexpr wchar_t kPath[] = L"Software\\OVOptions benchmark";

    UniqueKey user_;
    UniqueKey machine_;
};
