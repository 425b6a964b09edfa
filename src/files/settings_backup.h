#pragma once

#include <string_view>

#include "files/byte_stream.h"
#include "files/category_store.h"
#include "files/line_writer.h"

// A backup holds the whole settings tree of the registry, the categories' colours and filters, and
// the filters themselves. A scheme is a backup that holds less.

inline constexpr wchar_t kSettingsKey[] = L"Software\\Teskel\\Orvane";

// A key of HKEY_CURRENT_USER (made where it is missing): its values, and then each subkey with all
// below it. Only texts and numbers are written. A text of more than 127 characters ends the list of
// its key's values; kept on purpose.
void WriteRegistryKeyTree(const wchar_t* keyPath, LineWriter& lines);
void WriteCategoriesSection(const CategoryStore& categories, LineWriter& lines);
void WriteFiltersSection(const CategoryStore& categories, LineWriter& lines);

void WriteBackup(const CategoryStore& categories, ByteSink& file);

// Reads a backup or scheme into the registry, where the section of the settings' own key first
// deletes that key with all below it, and into the categories and filters that `categories` has;
// it never makes new ones. False when the file is none, or a key cannot be made: what came before
// is done then. A registry value that cannot be written is dropped.
[[nodiscard]] bool ReadBackup(ByteSource& file, CategoryStore& categories);
