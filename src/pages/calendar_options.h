#pragma once

#include <span>

#include "pages/option_lists.h"

// The Calendar page's option lists and what belongs to their options, by control ids.

inline constexpr UINT kCalendarTaskList = 1230;
inline constexpr UINT kCalendarDayList = 1231;
inline constexpr UINT kCalendarMonthList = 1232;
inline constexpr UINT kCalendarMailList = 1233;
inline constexpr UINT kCalendarMiscellaneousList = 1234;
inline constexpr UINT kCalendarTitleOrder = 1250; // Three ids, shown by the option of that name.

[[nodiscard]] std::span<const OptionList> CalendarOptionLists();
