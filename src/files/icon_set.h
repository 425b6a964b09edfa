#pragma once

#include <windows.h>

#include <array>
#include <cstdint>

#include "settings/setting.h"
#include "shell/services/handles.h"
#include "shell/services/wide_string.h"

// The dashboard's small symbols, in the order in which they are loaded.
enum class IconSymbol : uint8_t {
    Note,
    Regenerated,
    Reminder,
    HighImportance,
    LowImportance,
    Recurring,
    Private,
    Link,
    Attendees,
    ActiveTask,
    AllDayAppointment,
    AppointmentCounter,
    TaskCounter,
    MailCounter,
    NotesCounter,
    ContactsCounter,
    TaskChecked,
    TaskNotChecked,
    Anniversary,
    Birthday,
    TabsLeft,
    TabsRight,
    Category,
    AttachedIcon,
};

// A symbol's picture; pixels of the clear colour are not drawn.
struct SymbolImage {
    UniqueBitmap bitmap;
    COLORREF clearColour = 0;
};

// The pictures of all symbols: from a folder of files named after the symbols, or, where it lacks
// one, those built into the display library. Nothing that cannot be loaded is reported.
class IconSet {
  public:
    static constexpr size_t kSymbolCount = 24;

    // From a folder (without a trailing backslash); an empty one stands for the built-in pictures
    // alone.
    void LoadIconSet(const WideString& folder);
    // One symbol: folder\stem as png or else tga; with a transparent colour also as bmp and as
    // "_high.bmp", in which that colour is not drawn; else the built-in bitmap. kNoColour: none.
    // Gives whether there is a picture now.
    bool LoadSymbol(IconSymbol slot, const WideString& folder, const wchar_t* stem, UINT resourceId,
                    COLORREF transparentColour);
    // Frees all pictures; to be called before the platform's drawing goes.
    void Release();

    [[nodiscard]] const SymbolImage& operator[](IconSymbol symbol) const {
        return images_[static_cast<size_t>(symbol)];
    }
    // Stretches a symbol to a place in pixels; draws nothing for one without a picture.
    void Draw(HDC dc, IconSymbol symbol, int x, int y, int width, int height) const;

  private:
    std::array<SymbolImage, kSymbolCount> images_;
};

extern IconSet iconSet;
