#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

#include "files/category_store.h"
#include "shell/services/wide_string.h"

// Schemes: named snapshots of the dashboard's colours and fonts and of the categories' colours,
// one file each in the install folder's "Schemes".

// The files' names with their extension, in the file system's order.
[[nodiscard]] std::vector<WideString> SchemeFileNames();

[[nodiscard]] bool SchemeExists(const wchar_t* name);

// Saves what the registry holds at this moment, under a name without extension that no scheme has.
// A file that cannot be made is not reported, and what came about of one is gone.
void WriteScheme(const wchar_t* name, const CategoryStore& categories);

enum class SchemeOutcome : uint8_t { Read, CannotOpen, Damaged };

// Puts a scheme's colours and fonts in place of those in the registry, and what it says of the
// categories into `categories`. With a damaged file the old colours and fonts are gone all the
// same; one that cannot be opened changes nothing.
[[nodiscard]] SchemeOutcome ReadScheme(const wchar_t* fileName, CategoryStore& categories);

// A failure is not reported.
void DeleteSchemeFile(const wchar_t* fileName);
