#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "files/byte_stream.h"

// The sections of a backup that are no registry keys; all others are named by a key's path.
inline constexpr std::wstring_view kCategoriesSection = L"::Categories::";
inline constexpr std::wstring_view kFiltersSection = L"::Filters::";

// One category or filter as a backup gives it; what its lines do not hold is none.
struct BackupCategory {
    std::wstring_view name;
    std::optional<uint32_t> filters;
    std::optional<uint32_t> colour;
};
struct BackupFilter {
    std::optional<uint32_t> index;
    std::optional<std::wstring_view> title;
    std::optional<uint32_t> visible;
    std::optional<uint32_t> includeUncategorized;
};

// Takes what a backup holds, in the file's order. Texts are valid for the call alone.
class BackupReceiver {
  public:
    // A key's section begins; its values follow. False ends the reading as failed.
    [[nodiscard]] virtual bool BeginKey(std::wstring_view path) = 0;
    virtual void SetText(std::wstring_view name, std::wstring_view text) = 0;
    virtual void SetNumber(std::wstring_view name, uint32_t number) = 0;
    virtual void SetCategory(const BackupCategory& category) = 0;
    virtual void SetFilter(const BackupFilter& filter) = 0;

  protected:
    ~BackupReceiver() = default;
};

// Reads a backup or a scheme from its start. False when it is none: the first line is not empty,
// or the receiver refuses a key. Lines that make no sense are passed over, but for a text value
// that is malformed, which is the key's unnamed value with an empty text. The file's own length
// and one line are all that this costs.
[[nodiscard]] bool ReadBackup(ByteSource& file, BackupReceiver& receiver);
