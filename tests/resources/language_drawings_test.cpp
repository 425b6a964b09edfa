// The texts that pages and windows draw themselves, each in the room that it is drawn in.
#include <algorithm>
#include <string>
#include <vector>

#include "resource_ids.h"
#include "tests/resources/language_library.h"
#include "tests/resources/text_room.h"

namespace {

constexpr int kLineHeight = 14; // Of the program's font, in pixels of a 96-dpi screen.

UniqueFont ProgramFont(LONG weight) {
    LOGFONTW font = {};
    font.lfHeight = 12;
    font.lfWeight = weight;
    wcscpy(font.lfFaceName, L"Tahoma");
    return UniqueFont(CreateFontIndirectW(&font));
}

// 0 for none.
UINT Named(const std::string& name) {
    const auto* found =
        std::ranges::find_if(kTexts, [&](const TextName& text) { return name == text.name; });
    return found == std::end(kTexts) ? 0 : found->id;
}

struct Room {
    const char* place;
    int width;
    int lines;
    std::vector<UINT> ids;
};
const Room kRooms[] = {
    {"colour box", 40, 1, {IDS_COLOUR_NONE}},
    {"what schemes are", 220, 3, {IDS_COLOURS_SCHEMES}},
    {"About", 208, 2, {IDS_ABOUT_DESCRIPTION, IDS_ABOUT_RIGHTS}},
    {"icon chooser",
     120,
     1,
     {IDS_ICON_NONE, IDS_ICON_NOTE, IDS_ICON_REMINDER, IDS_ICON_IMPORTANCE, IDS_ICON_RECURRING,
      IDS_ICON_PRIVATE, IDS_ICON_REGENERATED, IDS_ICON_LINK, IDS_ICON_ATTENDEES,
      IDS_ICON_CATEGORY}},
    // Between the start button and the clock.
    {"navigation bar",
     120,
     1,
     {IDS_FONT_STYLE_TITLE, IDS_ICON_PICKER_TITLE, IDS_TABS_ADD_TITLE, IDS_PICKER_TITLE,
      IDS_NOTES_ADD_FOLDER, IDS_ABOUT_TITLE}},
};

class LanguageDrawings : public LanguageLibrary {
  protected:
    [[nodiscard]] int Width(const std::wstring& text) const {
        return WrappedSize(font_.Get(), text, 0x7FFF).cx;
    }

    UniqueFont font_ = ProgramFont(FW_DONTCARE);
};

TEST_P(LanguageDrawings, FitTheirRooms) {
    for (const Room& room : kRooms) {
        Misfits misfits;
        for (const UINT id : room.ids)
            CheckText(font_.Get(), Text(id), {room.width, room.lines * kLineHeight}, misfits);
        EXPECT_EQ(misfits, Misfits()) << room.place;
    }
    const std::wstring format = Text(IDS_CALENDAR_FORMAT);
    for (const UINT id : {IDS_CALENDAR_FORMAT_COLUMN, IDS_CALENDAR_FORMAT_NO_COLUMN})
        EXPECT_LE(Width(format + Text(id)), 206) << Narrow(Text(id));
}

// Above the sample: which font or colour this is, behind a heading. Of a font without a text of its
// own, ending in ABOUT, that is its name.
TEST_P(LanguageDrawings, DescribeFontsAndColours) {
    const int heading =
        std::max(Width(Text(IDS_FONTS_HEADER_FONT)), Width(Text(IDS_FONTS_HEADER_COLOUR)));
    Misfits misfits;
    int fonts = 0;
    int colours = 0;
    for (const auto& [chars, id] : kTexts) {
        const std::string name = chars;
        const bool isAbout = name.ends_with("_ABOUT");
        const bool isFont = name.starts_with("IDS_FONT_") && !name.starts_with("IDS_FONT_STYLE_") &&
                            (isAbout || !Named(name + "_ABOUT"));
        const bool isColour = name.starts_with("IDS_COLOUR_") && isAbout;
        if (isFont) CheckText(font_.Get(), Text(id), {220 - heading, kLineHeight}, misfits);
        if (isColour) CheckText(font_.Get(), Text(id), {220, 3 * kLineHeight}, misfits);
        fonts += isFont;
        colours += isColour;
    }
    EXPECT_EQ(misfits, Misfits());
    EXPECT_EQ(fonts, 33);
    EXPECT_EQ(colours, 16);
}

// A box is at most as wide as the screen and, with a short text, as narrow as that.
TEST_P(LanguageDrawings, CaptionMessageBoxes) {
    constexpr int kWidest = 200;
    constexpr int kBeyondText = 20; // The frame of the box less its close button.
    const std::string ending = "_CAPTION";
    const UniqueFont bold = ProgramFont(FW_BOLD);
    for (const auto& [chars, id] : kTexts) {
        const std::string name = chars;
        if (!name.ends_with(ending)) continue;
        const std::string box = name.substr(0, name.size() - ending.size());
        UINT text = Named(box);
        for (const char* other : {"_QUESTION", "_TEXT", "_REFUSAL"})
            if (const UINT found = Named(box + other)) text = found;
        ASSERT_NE(text, 0u) << name;
        EXPECT_LE(WrappedSize(bold.Get(), Text(id), 0x7FFF).cx,
                  std::min(kWidest, Width(Text(text)) + kBeyondText))
            << Narrow(Text(id));
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, LanguageDrawings, testing::ValuesIn(kLanguages),
                         LanguageTestName);

} // namespace
