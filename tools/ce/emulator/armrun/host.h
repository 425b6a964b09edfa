// The parts of the system that the program below its windows calls, each as a table of functions.
#pragma once

#include <string>
#include <vector>

#include "serve.h"

const std::vector<HostEntry>& RegistryCalls();
const std::vector<HostEntry>& FileCalls();
const std::vector<HostEntry>& MemoryCalls();
const std::vector<HostEntry>& TextCalls();
const std::vector<HostEntry>& SystemCalls();
const std::vector<HostEntry>& LibraryCalls();
const std::vector<HostEntry>& FontCalls();
const std::vector<HostEntry>& ObjectStoreCalls();
const std::vector<HostEntry>& PlannedFaultCalls();

// The host's folder that is the device's root.
extern std::string deviceRoot;

// Where the program is.
uint32_t ProgramBase();

// The host's path of a file of the device.
std::string HostPathOf(std::u16string_view path);

// Memory of the program's, zeroed; null when there is none left.
uint8_t* Allocate(uint32_t size);
void Release(uint8_t* block);
// How much memory the program may take, as addresses.
void SetHeap(uint32_t begin, uint32_t end);

std::u16string Lower(std::u16string_view text);
std::string Utf8(std::u16string_view text);
std::u16string Utf16(std::string_view text);

// Puts a text and its end where there is room for `size` characters; cut when it is longer.
void PutText(char16_t* buffer, uint32_t size, std::u16string_view text);
