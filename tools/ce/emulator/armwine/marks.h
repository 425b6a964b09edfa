// Parts of a run whose instructions are told apart. A driver says where one ends by a message to
// the program's thread, which the program never sees.
#pragma once

#include <windows.h>

// Counts from now on, into a file: for each part the line "mark" with its name and then what was
// executed in it.
void CountInto(const char* file);

// Whether the message is a driver's, which ends a part.
bool TakeMark(const MSG& message);

// Ends a part.
void WriteMark(const char* name);
