#pragma once

#include <windows.h>

// The drop-down entries of the Calendar page that are made from the clock, the locale or numbers.
// Each function adds its entries to an empty list.

// Today's date in the pictures of a due date, of a day's title and of the month.
void AddDueDates(HWND combo);
void AddDayTitleDates(HWND combo);
void AddMonthDates(HWND combo);

// Sunday to Saturday, by the locale.
void AddWeekDays(HWND combo);

// The whole hours 0 to 18 as the locale writes times.
void AddStartHours(HWND combo);
// Lengths of 6 to 24 hours.
void AddLengths(HWND combo);
// The whole hours 0 to 8, for a clock of 12 or 24 hours.
void AddDayEnds(HWND combo);

// 1 and 2.
void AddFactors(HWND combo);
// The widths of 6 to 14 units on this screen, with the pixels as data.
void AddIconSizes(HWND combo);
