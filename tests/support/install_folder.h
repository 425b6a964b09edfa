#pragma once

#include <optional>
#include <string>

// An install folder of this process's own while the object lives, which the machine's registry
// names; with an object store in it. Needs a registry of the test's own.
class InstallFolder {
  public:
    InstallFolder();
    InstallFolder(const InstallFolder&) = delete;
    InstallFolder& operator=(const InstallFolder&) = delete;
    ~InstallFolder();

    // A file's path by its name below the folder.
    [[nodiscard]] std::wstring PathOf(const std::wstring& name) const;
    // Makes the folder where it is missing.
    void Write(const std::wstring& name, const std::string& bytes) const;
    // None when there is no such file.
    [[nodiscard]] std::optional<std::string> Read(const std::wstring& name) const;
    [[nodiscard]] bool Has(const std::wstring& name) const;
    void Remove(const std::wstring& name) const;

    // Sets what the device's database holds: "number<TAB>flag<TAB>name", a line each.
    void SetCategories(const std::string& lines) const;

  private:
    std::wstring programFiles_;
    std::wstring folder_;
};
