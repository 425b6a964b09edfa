#pragma once

// Every value of the Colors key, in load order: COLORREFs, of which 0xFFFFFFFF stands for the
// dashboard's own colour. The names are spelt as the dashboard spells them.
// clang-format off
#define COLOUR_SETTINGS(Dword)                    \
    Dword(SeperatorLineClr, kNoColour, Saved)     \
    Dword(ShadowFontColor, kNoColour, Saved)      \
    Dword(GeneralFontColor, kNoColour, Saved)     \
    Dword(HighlightBgClr, kNoColour, Saved)       \
    Dword(HighlightTextClr, kNoColour, Saved)     \
    Dword(TimeLinesBgClr, kNoColour, Saved)       \
    Dword(TimeLinesDfltClr, kNoColour, Saved)     \
    Dword(ClrBreakingLineClr, kNoColour, Saved)   \
    Dword(ClrPopupClrBg, kNoColour, Saved)        \
    Dword(ClrPopupCurr, kNoColour, Saved)         \
    Dword(ClrPopupHighlight, kNoColour, Saved)    \
    Dword(TskBreakingLineClr, kNoColour, Saved)   \
    Dword(ClrStatusFree, kNoColour, Saved)        \
    Dword(ClrStatusBusy, kNoColour, Saved)        \
    Dword(ClrStatusTentative, kNoColour, Saved)   \
    Dword(ClrStatusOutofoffice, kNoColour, Saved)
// clang-format on
