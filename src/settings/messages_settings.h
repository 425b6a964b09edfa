#pragma once

// Every value of the Messages key, in load order. The dashboard maintains the values that are only
// read here: what it remembers of its selection, sorting and folding.
// clang-format off
#define MESSAGES_SETTINGS(Dword, Text)        \
    Dword(MsgsDPadActionOverride, 1, Saved)   \
    Dword(MsgsOpenOnClick, 0, Saved)          \
    Dword(MsgsPreviewWhenOpen, 0, Saved)      \
    Dword(MsgsMrkReadOnPrev, 1, Saved)        \
    Dword(MsgsBreakLineStyle, 3, Saved)       \
    Dword(MsgsIncldCounters, 1, Saved)        \
    Dword(MsgsIncldFoldBttns, 1, Saved)       \
    Dword(MessagesSlideOutOpen, 1, ReadOnly)  \
    Dword(MessagesSort, 0, ReadOnly)          \
    Dword(MessagesSortDirection, 1, ReadOnly) \
    Text(FoldingStateAcct, L"", ReadOnly)     \
    Dword(MsgsShowReadMessages, 1, ReadOnly)  \
    Dword(MsgsShowEmptyAccounts, 0, ReadOnly)
// clang-format on
