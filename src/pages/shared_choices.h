#pragma once

#include <windows.h>

#include "resource_ids.h"

// Choices that several pages offer, by the ids of their texts.

// How far ahead tasks are shown.
inline constexpr UINT kFutureLimitChoices[] = {IDS_FUTURE_LIMIT_NONE,   IDS_FUTURE_LIMIT_DAY,
                                               IDS_FUTURE_LIMIT_2_DAYS, IDS_FUTURE_LIMIT_3_DAYS,
                                               IDS_FUTURE_LIMIT_WEEK,   IDS_FUTURE_LIMIT_2_WEEKS,
                                               IDS_FUTURE_LIMIT_MONTH,  IDS_FUTURE_LIMIT_3_MONTHS};
// The line between groups.
inline constexpr UINT kBreakLineChoices[] = {IDS_BREAK_LINE_NONE, IDS_BREAK_LINE_PLAIN,
                                             IDS_BREAK_LINE_DOTTED, IDS_BREAK_LINE_SHADED};
// How groups stand when the dashboard comes up.
inline constexpr UINT kFoldingChoices[] = {IDS_FOLDING_ALL, IDS_FOLDING_NONE, IDS_FOLDING_AS_LEFT};
// How a contact's name is written.
inline constexpr UINT kNameChoices[] = {IDS_NAME_AS_FILED, IDS_NAME_FIRST_LAST,
                                        IDS_NAME_LAST_FIRST};
// What the action button does with an item.
inline constexpr UINT kDPadActionChoices[] = {IDS_DPAD_OPEN, IDS_DPAD_MENU};
