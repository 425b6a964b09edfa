// The language libraries as the program meets them on a device: each complete, and short enough for
// the places its texts stand in.
#include <windows.h>

#include <gtest/gtest.h>

#include <cwchar>
#include <cwctype>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "resource_ids.h"
#include "shell/services/handles.h"

namespace {

const std::wstring kInstallFolder = L"\\Program Files\\Teskel\\Orvane\\";

constexpr const wchar_t* kLanguages[] = {
#include "language_table.inc"
};

struct TextName {
    const char* name;
    UINT id;
};
constexpr TextName kTexts[] = {
#include "resource_text_table.inc"
};

std::string Narrow(const std::wstring& text) {
    std::string bytes(text.size() * 3, '\0');
    const int count =
        WideCharToMultiByte(CP_UTF8, 0, text.c_str(), static_cast<int>(text.size()), bytes.data(),
                            static_cast<int>(bytes.size()), nullptr, nullptr);
    bytes.resize(static_cast<size_t>(count));
    return bytes;
}

std::wstring Text(HMODULE library, UINT id) {
    wchar_t text[1024];
    const int length = LoadStringW(library, id, text, 1024);
    return std::wstring(text, static_cast<size_t>(length));
}

struct Language {
    std::string file;
    UniqueModule library;
};

std::vector<Language> LoadLanguages() {
    std::vector<Language> languages;
    for (const wchar_t* name : kLanguages) {
        const std::wstring path = kInstallFolder + L"LangRes\\" + name;
        languages.push_back({Narrow(name), UniqueModule(LoadLibraryW(path.c_str()))});
    }
    return languages;
}

// The widths that the program's two fonts give a text, in pixels of a 96-dpi screen.
class TextMeasure {
  public:
    explicit TextMeasure(LONG weight) : dc_(CreateCompatibleDC(nullptr)) {
        LOGFONTW font = {};
        font.lfHeight = 12;
        font.lfWeight = weight;
        wcscpy(font.lfFaceName, L"Tahoma");
        font_.Reset(CreateFontIndirectW(&font));
        previous_ = SelectObject(dc_.Get(), font_.Get());
    }
    TextMeasure(const TextMeasure&) = delete;
    TextMeasure& operator=(const TextMeasure&) = delete;
    ~TextMeasure() { SelectObject(dc_.Get(), previous_); }

    [[nodiscard]] bool HasTahoma() const {
        wchar_t face[LF_FACESIZE];
        return GetTextFaceW(dc_.Get(), LF_FACESIZE, face) > 0 && wcscmp(face, L"Tahoma") == 0;
    }
    [[nodiscard]] int Width(const std::wstring& text) const {
        SIZE size = {};
        GetTextExtentPoint32W(dc_.Get(), text.c_str(), static_cast<int>(text.size()), &size);
        return size.cx;
    }

  private:
    UniqueFont font_;
    UniqueDc dc_;
    HGDIOBJ previous_ = nullptr;
};

// Breaks a text at its spaces as a list view does with captions below large icons.
std::vector<std::wstring> WrappedLines(const std::wstring& text, const TextMeasure& measure,
                                       int width) {
    std::vector<std::wstring> lines(1);
    for (size_t start = 0; start < text.size();) {
        const size_t end = std::min(text.find(L' ', start), text.size());
        const std::wstring word = text.substr(start, end - start);
        const std::wstring longer = lines.back().empty() ? word : lines.back() + L' ' + word;
        if (lines.back().empty() || measure.Width(longer) <= width)
            lines.back() = longer;
        else
            lines.push_back(word);
        start = end + 1;
    }
    return lines;
}

// The conversions of a format, each from its '%' to its letter.
std::vector<std::wstring> FormatMarks(const std::wstring& text) {
    std::vector<std::wstring> marks;
    for (size_t at = text.find(L'%'); at != std::wstring::npos; at = text.find(L'%', at)) {
        const size_t end = std::min(text.find_first_of(L"%diuxXcsS", at + 1), text.size() - 1);
        marks.push_back(text.substr(at, end - at + 1));
        at = end + 1;
    }
    return marks;
}

class LanguageLibraries : public testing::Test {
  protected:
    void SetUp() override {
        languages_ = LoadLanguages();
        for (const Language& language : languages_) {
            ASSERT_TRUE(language.library) << language.file;
            if (language.file == "OVEngRc.dll") english_ = language.library.Get();
        }
        ASSERT_NE(english_, nullptr);
    }

    std::vector<Language> languages_;
    HMODULE english_ = nullptr;
};

TEST(ResourceIds, NoTwoTextsShareANumber) {
    std::map<UINT, const char*> names;
    for (const TextName& text : kTexts) {
        const auto [other, fresh] = names.emplace(text.id, text.name);
        EXPECT_TRUE(fresh) << text.name << " and " << other->second << " are both " << text.id;
    }
}

TEST_F(LanguageLibraries, HoldEveryText) {
    for (const Language& language : languages_) {
        for (const TextName& text : kTexts)
            EXPECT_FALSE(Text(language.library.Get(), text.id).empty())
                << language.file << " lacks " << text.name;
    }
}

TEST_F(LanguageLibraries, AgreeOnFormatMarks) {
    for (const Language& language : languages_) {
        for (const TextName& text : kTexts)
            EXPECT_EQ(FormatMarks(Text(language.library.Get(), text.id)),
                      FormatMarks(Text(english_, text.id)))
                << language.file << " " << text.name;
    }
}

// UTF-8 read as a single-byte encoding leaves these behind; a label would swallow an ampersand.
TEST_F(LanguageLibraries, ArriveInTheRightEncoding) {
    for (const Language& language : languages_) {
        const HMODULE library = language.library.Get();
        EXPECT_EQ(Text(library, IDS_ABOUT_RIGHTS).substr(0, 2), L"\u00A9 ") << language.file;
        for (const TextName& text : kTexts) {
            const std::wstring value = Text(library, text.id);
            EXPECT_EQ(value.find_first_of(L"\u00C2\u00C3\uFFFD&"), std::wstring::npos)
                << language.file << " " << text.name << ": " << Narrow(value);
        }
    }
}

// --- Widths -------------------------------------------------------------------------------------

// The page list's columns are at least 80 units wide, of which the list view keeps 12 free of text.
constexpr int kPageCaption = 80 - 12;

const std::vector<UINT> kPageNames = {
    IDS_PAGE_GENERAL,  IDS_PAGE_CALENDAR, IDS_PAGE_TASKS, IDS_PAGE_NOTES,
    IDS_PAGE_CONTACTS, IDS_PAGE_MESSAGES, IDS_PAGE_FONTS, IDS_PAGE_SPECIAL_EVENTS,
    IDS_PAGE_COLOURS,  IDS_PAGE_PIM,      IDS_PAGE_TABS,  IDS_PAGE_CATEGORY,
};

struct WidthLimit {
    const char* place;
    int pixels;
    std::vector<UINT> ids;
};

const WidthLimit kLabelLimits[] = {
    {"label of a combo row",
     98,
     {IDS_DPAD_ACTION,
      IDS_NAME_FORMAT,
      IDS_SEARCH_BAR,
      IDS_NOTES_PREVIEW,
      IDS_SEVENTS_SHOW,
      IDS_SEVENTS_ALERT,
      IDS_SEVENTS_DATE_FORMAT,
      IDS_SEVENTS_DAY_SPAN,
      IDS_SEVENTS_FILTER_ALERT,
      IDS_SEVENTS_CATEGORY_1,
      IDS_SEVENTS_CATEGORY_2,
      IDS_SEVENTS_CATEGORY_3,
      IDS_SEVENTS_CATEGORY_4,
      IDS_PIM_APPLICATION,
      IDS_PIM_APPOINTMENTS,
      IDS_PIM_TASKS,
      IDS_CONTACTS_LAYOUT,
      IDS_CONTACTS_PHONE_WIDTH,
      IDS_GENERAL_ON_CLICK,
      IDS_GENERAL_ON_DOUBLE_CLICK,
      IDS_GENERAL_HEIGHT,
      IDS_GENERAL_HEIGHT_LANDSCAPE,
      IDS_GENERAL_LANGUAGE,
      IDS_GENERAL_FILTER_ALIGN,
      IDS_GENERAL_DPAD_MODE,
      IDS_GENERAL_DPAD_COMPLETE,
      IDS_GENERAL_DPAD_SCROLLING,
      IDS_GENERAL_LOADING_DELAY,
      IDS_TASKS_DATE_FORMAT,
      IDS_TASKS_FUTURE_LIMIT,
      IDS_TITLES_BREAK_LINE,
      IDS_TITLES_FOLD_START,
      IDS_TASKS_CUSTOM_DATE_SHOW,
      IDS_FONTS_SIZE,
      IDS_FONTS_TITLE_SIZE,
      IDS_FONTS_FACE,
      IDS_FONTS_SHADOW,
      IDS_FONT_STYLE_SIZE,
      IDS_FONT_STYLE_COLOUR,
      IDS_FONTS_COLOUR,
      IDS_CALENDAR_DAYS,
      IDS_CALENDAR_WEEKS,
      IDS_CALENDAR_TEXT_COLOUR,
      IDS_CALENDAR_PASSED,
      IDS_CALENDAR_BARS,
      IDS_CALENDAR_CONFLICTS,
      IDS_CALENDAR_WEATHER_LAYOUT,
      IDS_CALENDAR_WEATHER_TAP,
      IDS_TABS_MODE,
      IDS_TABS_GESTURES,
      IDS_TABS_EFFECT,
      IDS_TABS_TIME_OUT,
      IDS_TABS_DEFAULT}},
    {"label above a text", 98, {IDS_TASKS_CUSTOM_DATE_START, IDS_TASKS_CUSTOM_DATE_DUE}},
    {"label of an icon chooser",
     62,
     {IDS_APPOINTMENT_LEFT_ICON_1, IDS_APPOINTMENT_LEFT_ICON_2, IDS_APPOINTMENT_RIGHT_ICONS,
      IDS_TASK_LEFT_ICON_1, IDS_TASK_LEFT_ICON_2, IDS_TASK_RIGHT_ICONS}},
    {"icon chooser",
     120,
     {IDS_ICON_NONE, IDS_ICON_NOTE, IDS_ICON_REMINDER, IDS_ICON_IMPORTANCE, IDS_ICON_RECURRING,
      IDS_ICON_PRIVATE, IDS_ICON_REGENERATED, IDS_ICON_LINK, IDS_ICON_ATTENDEES,
      IDS_ICON_CATEGORY}},
    {"label on a line of its own",
     200,
     {IDS_GENERAL_SKIN_PATH, IDS_CATEGORY_ICONS_FOLDER, IDS_NOTES_FOLDERS, IDS_CONTACTS_ALPHABETS}},
    {"button of a file dialog", 100, {IDS_FOLDER_UP, IDS_CANCEL}},
    {"label in a file dialog", 42, {IDS_FILE_NAME, IDS_FILE_TYPE}},
    {"text in an empty list", 214, {IDS_FOLDER_EMPTY, IDS_FILE_EMPTY, IDS_ICON_PICKER_EMPTY}},
    {"check box",
     198,
     {IDS_TAP_OPENS,
      IDS_PREVIEW_ON_OPEN,
      IDS_NOTES_FILES_NOTES,
      IDS_NOTES_FILES_TEXT,
      IDS_NOTES_FILES_RICH_TEXT,
      IDS_NOTES_FILES_DOCUMENTS,
      IDS_NOTES_FILES_WORKBOOKS,
      IDS_NOTES_FILES_PRESENTATIONS,
      IDS_MESSAGES_MARK_READ,
      IDS_PIM_OVERRIDE_ICONS,
      IDS_PIM_OVERRIDE_COLOURS,
      IDS_PIM_LEAVE_RUNNING,
      IDS_PIM_HIDE_LETTERS,
      IDS_CONTACTS_CATEGORY_COLOUR,
      IDS_CONTACTS_HIDE_NO_PICTURE,
      IDS_CALENDAR_HIDE_EMPTY_DAYS,
      IDS_CALENDAR_HIDE_EMPTY_LINE,
      IDS_CALENDAR_SPECIAL_EVENTS,
      IDS_CALENDAR_SORT_TASKS,
      IDS_CALENDAR_COUNT_YEARS,
      IDS_CALENDAR_HIDE_ALL_DAY_ICON,
      IDS_GENERAL_AUTO_HEIGHT,
      IDS_GENERAL_SOUND,
      IDS_GENERAL_GOOFY_MODE,
      IDS_GENERAL_INDENT_ITEMS,
      IDS_GENERAL_REMOVE_TABS_BAR,
      IDS_GENERAL_REMOVE_SETTINGS_BUTTON,
      IDS_GENERAL_REMOVE_SEPARATING_LINE,
      IDS_GENERAL_DPAD_ENABLED,
      IDS_GENERAL_DPAD_DOUBLE_CLICK_TAB,
      IDS_GENERAL_EXCLUSIVE_DPAD,
      IDS_GENERAL_DOUBLE_CLICK_SCROLL,
      IDS_GENERAL_FULL_SCROLLING,
      IDS_GENERAL_VGA_MODE,
      IDS_GENERAL_THIN_LINES,
      IDS_GENERAL_REMOVE_HIGHLIGHT,
      IDS_TASKS_HIDE_COMPLETED,
      IDS_TASKS_HIDE_PAST_COMPLETED,
      IDS_TASKS_CONFIRM,
      IDS_TASKS_NO_UNDATED_PREFIX,
      IDS_TASKS_HIDE_UNDATED,
      IDS_TITLES_FOLDING,
      IDS_TITLES_COUNTERS,
      IDS_TASKS_CUSTOM_DATE,
      IDS_TABS_DEFAULT_ON_STARTUP,
      IDS_FONTS_PER_ITEM,
      IDS_FONTS_CLEAR_TYPE,
      IDS_FONT_STYLE_BOLD,
      IDS_FONT_STYLE_ITALIC,
      IDS_FONT_STYLE_UNDERLINE,
      IDS_FONT_STYLE_STRIKE_OUT}},
    {"choice of a combo",
     100,
     {IDS_CHOICE_OFF,
      IDS_DPAD_OPEN,
      IDS_DPAD_MENU,
      IDS_NAME_AS_FILED,
      IDS_NAME_FIRST_LAST,
      IDS_NAME_LAST_FIRST,
      IDS_SEARCH_BAR_NONE,
      IDS_SEARCH_BAR_BUILT_IN,
      IDS_NOTES_PREVIEW_HIDE,
      IDS_NOTES_PREVIEW_SHOW,
      IDS_NOTES_PREVIEW_AS_LEFT,
      IDS_SEVENTS_SHOW_BIRTHDAYS,
      IDS_SEVENTS_SHOW_ANNIVERSARIES,
      IDS_SEVENTS_SHOW_BOTH,
      IDS_SEVENTS_DATE_DEVICE,
      IDS_PIM_DEVICE,
      IDS_PIM_POCKET_INFORMANT,
      IDS_PIM_AGENDA_ONE,
      IDS_PIM_AGENDA_FUSION,
      IDS_PIM_TESKEL_CALENDAR,
      IDS_PIM_NO_REMINDER,
      IDS_CONTACTS_LAYOUT_ONE_LINE,
      IDS_CONTACTS_LAYOUT_TWO_LINES,
      IDS_CONTACTS_LAYOUT_PICTURES,
      IDS_GENERAL_ON_CLICK_OPEN,
      IDS_GENERAL_ON_CLICK_MENU,
      IDS_GENERAL_ON_CLICK_SELECT,
      IDS_GENERAL_ON_DOUBLE_CLICK_NOTHING,
      IDS_GENERAL_ON_DOUBLE_CLICK_OPEN,
      IDS_GENERAL_ON_DOUBLE_CLICK_MENU,
      IDS_ALIGN_LEFT,
      IDS_ALIGN_CENTRE,
      IDS_ALIGN_RIGHT,
      IDS_GENERAL_DPAD_MODE_ITEMS,
      IDS_GENERAL_DPAD_MODE_SCROLL,
      IDS_GENERAL_DPAD_COMPLETE_NOTHING,
      IDS_GENERAL_DPAD_COMPLETE_MENU,
      IDS_GENERAL_DPAD_COMPLETE_OPEN,
      IDS_GENERAL_DPAD_SCROLL_LINE,
      IDS_GENERAL_DPAD_SCROLL_ITEM,
      IDS_GENERAL_DPAD_SCROLL_PAGE,
      IDS_LANGUAGE_NAME,
      IDS_FUTURE_LIMIT_NONE,
      IDS_FUTURE_LIMIT_DAY,
      IDS_FUTURE_LIMIT_2_DAYS,
      IDS_FUTURE_LIMIT_3_DAYS,
      IDS_FUTURE_LIMIT_WEEK,
      IDS_FUTURE_LIMIT_2_WEEKS,
      IDS_FUTURE_LIMIT_MONTH,
      IDS_FUTURE_LIMIT_3_MONTHS,
      IDS_BREAK_LINE_NONE,
      IDS_BREAK_LINE_PLAIN,
      IDS_BREAK_LINE_DOTTED,
      IDS_BREAK_LINE_SHADED,
      IDS_FOLDING_ALL,
      IDS_FOLDING_NONE,
      IDS_FOLDING_AS_LEFT,
      IDS_TASKS_CUSTOM_DATE_SHOW_START,
      IDS_TASKS_CUSTOM_DATE_SHOW_DUE,
      IDS_TASKS_CUSTOM_DATE_SHOW_BOTH,
      IDS_FONTS_SHADOW_NONE,
      IDS_FONTS_SHADOW_BELOW_RIGHT,
      IDS_FONTS_SHADOW_BELOW_LEFT,
      IDS_FONTS_SHADOW_ABOVE_RIGHT,
      IDS_FONTS_SHADOW_ABOVE_LEFT,
      IDS_DASHBOARD_TAB_TASKS,
      IDS_DASHBOARD_TAB_NOTES,
      IDS_DASHBOARD_TAB_CONTACTS,
      IDS_DASHBOARD_TAB_MAIL,
      IDS_DASHBOARD_TAB_SPECIAL_EVENTS,
      IDS_DASHBOARD_TAB_CALENDAR,
      IDS_TABS_MODE_ICONS,
      IDS_TABS_MODE_NAMES,
      IDS_TABS_GESTURES_OFF,
      IDS_TABS_GESTURES_BAR,
      IDS_TABS_GESTURES_ANYWHERE,
      IDS_TABS_EFFECT_NONE,
      IDS_TABS_EFFECT_SLIDE,
      IDS_TABS_TIME_OUT_10_SECONDS,
      IDS_TABS_TIME_OUT_30_SECONDS,
      IDS_TABS_TIME_OUT_1_MINUTE,
      IDS_TABS_TIME_OUT_5_MINUTES,
      IDS_TABS_TIME_OUT_15_MINUTES,
      IDS_TABS_TIME_OUT_1_HOUR}},
    {"choice of an option",
     97,
     {IDS_CALENDAR_WEEKS_DEVICE,
      IDS_CALENDAR_WEEKS_JANUARY,
      IDS_CALENDAR_WEEKS_FOUR_DAYS,
      IDS_CALENDAR_WEEKS_FULL,
      IDS_CALENDAR_TEXT_COLOUR_FONT,
      IDS_CALENDAR_TEXT_COLOUR_APPOINTMENTS,
      IDS_CALENDAR_TEXT_COLOUR_ALL,
      IDS_CALENDAR_PASSED_SHOW,
      IDS_CALENDAR_PASSED_HIDE,
      IDS_CALENDAR_BARS_NONE,
      IDS_CALENDAR_BARS_STATUS,
      IDS_CALENDAR_BARS_CATEGORY,
      IDS_CALENDAR_CONFLICTS_NONE,
      IDS_CALENDAR_CONFLICTS_TIME,
      IDS_CALENDAR_CONFLICTS_ITEM,
      IDS_CALENDAR_WEATHER_LAYOUT_ONE_LINE,
      IDS_CALENDAR_WEATHER_LAYOUT_TWO_LINES,
      IDS_CALENDAR_WEATHER_LAYOUT_LARGE_ICONS,
      IDS_CALENDAR_WEATHER_LAYOUT_ICONS_ONLY,
      IDS_CALENDAR_WEATHER_TAP_NOTHING,
      IDS_CALENDAR_WEATHER_TAP_OPEN,
      IDS_CALENDAR_TASKS_COMPLETED_NONE,
      IDS_CALENDAR_TASKS_COMPLETED_TODAY,
      IDS_CALENDAR_TASKS_COMPLETED_FROM_TODAY,
      IDS_CALENDAR_TASKS_COMPLETED_ALL,
      IDS_CALENDAR_TASKS_SORT_DUE,
      IDS_CALENDAR_TASKS_SORT_START,
      IDS_CALENDAR_TASKS_SORT_IMPORTANCE,
      IDS_CALENDAR_TASKS_SORT_SUBJECT,
      IDS_CALENDAR_TASKS_SORT_CATEGORY,
      IDS_CALENDAR_TASKS_SORT_COMPLETION,
      IDS_CALENDAR_TASKS_SORT_DEVICE,
      IDS_CALENDAR_TASKS_SKIP_NONE,
      IDS_CALENDAR_TASKS_SKIP_SATURDAY,
      IDS_CALENDAR_TASKS_SKIP_SUNDAY,
      IDS_CALENDAR_TASKS_SKIP_BOTH,
      IDS_CALENDAR_DAYS_TIME_LINES_NONE,
      IDS_CALENDAR_DAYS_TIME_LINES_TODAY,
      IDS_CALENDAR_DAYS_TIME_LINES_ALL,
      IDS_CALENDAR_MONTH_TAP_GO,
      IDS_CALENDAR_MONTH_TAP_OPEN,
      IDS_CALENDAR_MONTH_TAP_NEW,
      IDS_CALENDAR_MONTH_TAP_NOTHING,
      IDS_CALENDAR_MONTH_TIME_LINES_NONE,
      IDS_CALENDAR_MONTH_TIME_LINES_PLAIN,
      IDS_CALENDAR_MONTH_TIME_LINES_COLOURS,
      IDS_CALENDAR_MONTH_DPAD_NONE,
      IDS_CALENDAR_MONTH_DPAD_WEEKS,
      IDS_CALENDAR_MONTH_DPAD_DAYS,
      IDS_CALENDAR_MAIL_FORMAT_NEW,
      IDS_CALENDAR_MAIL_FORMAT_NEW_ALL,
      IDS_CALENDAR_MAIL_FORMAT_ACCOUNTS,
      IDS_CALENDAR_MAIL_FORMAT_KINDS,
      IDS_CALENDAR_MAIL_PROGRAM_DEVICE,
      IDS_CALENDAR_MAIL_PROGRAM_OWN}},
    {"title in the order of titles",
     130,
     {IDS_CALENDAR_TITLE_OVERDUE, IDS_CALENDAR_TITLE_UNDATED, IDS_CALENDAR_TITLE_MAIL,
      IDS_CALENDAR_TITLE_SPECIAL_EVENTS, IDS_CALENDAR_TITLE_WEATHER, IDS_CALENDAR_TITLE_DAYS}},
    {"button beside a list", 50, {IDS_MOVE_UP, IDS_MOVE_DOWN}},
    {"button below a list", 72, {IDS_REMOVE, IDS_ADD}},
    {"unit of a reminder behind its number",
     82,
     {IDS_PIM_MINUTES, IDS_PIM_HOUR, IDS_PIM_HOURS, IDS_PIM_DAY}},
    {"button beside the list of tabs", 68, {IDS_TABS_ADD, IDS_TABS_REMOVE}},
    {"label above a list", 214, {IDS_TABS_PLUGIN}},
    {"button beside a path or a swatch",
     36,
     {IDS_CLEAR, IDS_BROWSE, IDS_FONTS_EDIT, IDS_FONT_STYLE_SET, IDS_COLOURS_EDIT}},
    {"button of the schemes", 74, {IDS_COLOURS_LOAD, IDS_COLOURS_DELETE, IDS_COLOURS_SAVE}},
    {"button of the colour picker", 54, {IDS_PICKER_DEFAULT, IDS_CANCEL}},
    {"label in the colour picker",
     40,
     {IDS_PICKER_RED, IDS_PICKER_GREEN, IDS_PICKER_BLUE, IDS_PICKER_HTML}},
    {"label of the picker's sample", 78, {IDS_PICKER_SELECTED}},
    {"button of half the width",
     100,
     {IDS_CATEGORY_ICON, IDS_CATEGORY_COLOUR, IDS_ICON_PICKER_NONE}},
    {"button of a quarter of a wide page", 74, {IDS_FILTER_TICK_ALL, IDS_FILTER_TICK_NONE}},
    {"button beside the filters", 66, {IDS_FILTER_RENAME}},
    {"label of the filters", 36, {IDS_FILTER}},
    {"label on half a wide page", 62, {IDS_FILTER_SENSITIVITY}},
    {"choice on half a wide page",
     78,
     {IDS_FILTER_SENSITIVITY_ALL, IDS_FILTER_SENSITIVITY_PUBLIC, IDS_FILTER_SENSITIVITY_PRIVATE}},
    {"check box on half a wide page", 146, {IDS_FILTER_VISIBLE, IDS_FILTER_UNCATEGORIZED}},
    {"text of the filter-name dialog", 204, {IDS_FILTER_NAME}},
    {"button of the filter-name dialog", 72, {IDS_FILTER_NAME_OK, IDS_FILTER_NAME_CANCEL}},
    {"colour swatch", 40, {IDS_COLOUR_NONE}},
};

// A page's tabs stand side by side, so it is their sum that counts; each tab's frame adds 6 pixels.
const WidthLimit kTabStripLimits[] = {
    {"General",
     195,
     {IDS_TAB_GENERAL, IDS_TAB_GENERAL_APPEARANCE, IDS_TAB_GENERAL_DISPLAY, IDS_TAB_GENERAL_DPAD,
      IDS_TAB_MISCELLANEOUS}},
    {"Calendar",
     185,
     {IDS_TAB_GENERAL, IDS_TAB_CALENDAR_APPOINTMENTS, IDS_TAB_CALENDAR_TASKS,
      IDS_TAB_CALENDAR_DAY_TITLES, IDS_TAB_CALENDAR_ICONS, IDS_TAB_CALENDAR_MONTH,
      IDS_TAB_CALENDAR_MAIL, IDS_TAB_CALENDAR_WEATHER, IDS_TAB_MISCELLANEOUS}},
    {"Tasks",
     200,
     {IDS_TAB_TASKS_GENERAL, IDS_TAB_TITLES, IDS_TAB_TASKS_ICONS, IDS_TAB_TASKS_DATES}},
    {"Notes", 200, {IDS_TAB_GENERAL, IDS_TAB_TITLES, IDS_TAB_NOTES_FILES, IDS_TAB_NOTES_FOLDERS}},
    {"Contacts",
     200,
     {IDS_TAB_CONTACTS_DISPLAY, IDS_TAB_CONTACTS_ACTIONS, IDS_TAB_CONTACTS_ALPHABETS}},
    {"Messages", 200, {IDS_TAB_GENERAL, IDS_TAB_TITLES}},
    {"Special events", 200, {IDS_TAB_SEVENTS_DISPLAY, IDS_TAB_SEVENTS_FILTERS, IDS_TAB_TITLES}},
    {"Fonts, one for all items", 200, {IDS_TAB_FONTS_GENERAL, IDS_TAB_FONTS_ITEM_COLOURS}},
    {"Fonts, one per item", 200, {IDS_TAB_FONTS_GENERAL, IDS_TAB_FONTS_ITEM_FONTS}},
    {"Colours", 200, {IDS_TAB_COLOURS_ITEMS, IDS_TAB_COLOURS_SCHEMES}},
    {"the colour picker", 200, {IDS_PICKER_TAB_FIELD, IDS_PICKER_TAB_VALUES}},
    {"PIM", 200, {IDS_TAB_PIM_APPLICATION, IDS_TAB_PIM_OPTIONS}},
    {"Tabs", 200, {IDS_TAB_GENERAL, IDS_TAB_TABS_ORDER, IDS_TAB_TABS_DEFAULT}},
    {"Categories",
     200,
     {IDS_TAB_CATEGORY_CATEGORIES, IDS_TAB_CATEGORY_FILTERS, IDS_TAB_MISCELLANEOUS}},
};

TEST_F(LanguageLibraries, FitTheirPlaces) {
    const TextMeasure normal(FW_DONTCARE);
    ASSERT_TRUE(normal.HasTahoma());
    for (const Language& language : languages_) {
        for (const WidthLimit& limit : kLabelLimits) {
            for (const UINT id : limit.ids) {
                const std::wstring text = Text(language.library.Get(), id);
                EXPECT_LE(normal.Width(text), limit.pixels)
                    << language.file << ", " << limit.place << ": " << Narrow(text);
            }
        }
        for (const WidthLimit& page : kTabStripLimits) {
            int sum = 0;
            for (const UINT id : page.ids)
                sum += normal.Width(Text(language.library.Get(), id));
            EXPECT_LE(sum, page.pixels) << language.file << ", tabs of " << page.place;
        }
    }
}

// The texts of an option are known by their names: X its row, X_LABEL its box or the label of its
// drop-down list, X_TIP what explains it.
TEST_F(LanguageLibraries, FitOptionsAndTheirPanel) {
    const TextMeasure normal(FW_DONTCARE);
    std::map<std::string, UINT> ids;
    for (const TextName& text : kTexts)
        ids[text.name] = text.id;
    int options = 0;
    for (const Language& language : languages_) {
        const auto width = [&](UINT id) { return normal.Width(Text(language.library.Get(), id)); };
        for (const auto& [name, id] : ids) {
            if (!ids.contains(name + "_TIP")) continue;
            ++options;
            EXPECT_LE(width(id), 190) << language.file << ", row " << name;
            const std::wstring tip = Text(language.library.Get(), ids[name + "_TIP"]);
            EXPECT_LE(WrappedLines(tip, normal, 216).size(), 3U) << language.file << " " << name;
            if (!ids.contains(name + "_LABEL")) continue;
            const std::wstring label = Text(language.library.Get(), ids[name + "_LABEL"]);
            EXPECT_LE(normal.Width(label), label.back() == L':' ? 103 : 198)
                << language.file << ", label " << name;
        }
    }
    EXPECT_GE(options, 2 * 52);
}

// What is above a sample, and the rows of the list below it, whose scroll bar takes 16 pixels.
TEST_F(LanguageLibraries, DescribeFontsAndColoursInTheirPlaces) {
    constexpr int kLine = 220;
    constexpr int kListRow = kLine - 16 - 12;
    const TextMeasure normal(FW_DONTCARE);
    for (const Language& language : languages_) {
        const auto width = [&](UINT id) { return normal.Width(Text(language.library.Get(), id)); };
        const int header = std::max(width(IDS_FONTS_HEADER_FONT), width(IDS_FONTS_HEADER_COLOUR));
        for (UINT id = IDS_FONT_GENERAL_ABOUT; id <= IDS_FONT_EVENTS_4_ABOUT; ++id)
            EXPECT_LE(header + width(id), kLine) << language.file << " " << id;
        for (const UINT id :
             {IDS_FONT_NOTES, IDS_FONT_NOTES_TITLES, IDS_FONT_CONTACTS, IDS_FONT_CONTACTS_TITLES,
              IDS_FONT_MESSAGES_UNREAD, IDS_FONT_MESSAGES_READ, IDS_FONT_MESSAGES_TITLES,
              IDS_FONT_EVENTS_TITLES_ABOUT})
            EXPECT_LE(header + width(id), kLine) << language.file << " " << id;
        for (UINT id = IDS_FONT_GENERAL; id <= IDS_FONT_EVENTS_4; ++id)
            EXPECT_LE(width(id), kListRow) << language.file << " " << id;
        for (UINT id = IDS_COLOUR_SEPARATOR; id <= IDS_COLOUR_STATUS_OUT_OF_OFFICE; ++id)
            EXPECT_LE(width(id), kListRow) << language.file << " " << id;
        EXPECT_LE(width(IDS_FONT_EVENTS_TITLES), kListRow) << language.file;
        const auto lines = [&](UINT id) {
            return WrappedLines(Text(language.library.Get(), id), normal, kLine).size();
        };
        EXPECT_LE(lines(IDS_COLOURS_SCHEMES), 3U) << language.file;
        for (UINT id = IDS_COLOUR_SEPARATOR_ABOUT; id <= IDS_COLOUR_STATUS_OUT_OF_OFFICE_ABOUT;
             ++id)
            EXPECT_LE(lines(id), 3U) << language.file << " " << id;
    }
}

TEST_F(LanguageLibraries, NamePagesInAtMostTwoLines) {
    const TextMeasure bold(FW_BOLD);
    ASSERT_TRUE(bold.HasTahoma());
    for (const Language& language : languages_) {
        for (const UINT id : kPageNames) {
            const std::wstring name = Text(language.library.Get(), id);
            const std::vector<std::wstring> lines = WrappedLines(name, bold, kPageCaption);
            EXPECT_LE(lines.size(), 2U) << language.file << ": " << Narrow(name);
            for (const std::wstring& line : lines)
                EXPECT_LE(bold.Width(line), kPageCaption) << language.file << ": " << Narrow(line);
        }
    }
}

// --- The menu -----------------------------------------------------------------------------------

constexpr UINT kSeparator = 0;

struct MenuEntry {
    UINT command; // kSeparator for a separator.
    std::wstring text;
};

std::vector<MenuEntry> Entries(HMENU menu) {
    std::vector<MenuEntry> entries;
    const int count = GetMenuItemCount(menu);
    for (int i = 0; i < count; ++i) {
        wchar_t text[256] = L"";
        MENUITEMINFOW item = {};
        item.cbSize = sizeof item;
        item.fMask = MIIM_FTYPE | MIIM_ID | MIIM_STRING;
        item.dwTypeData = text;
        item.cch = 256;
        GetMenuItemInfoW(menu, static_cast<UINT>(i), TRUE, &item);
        const bool separator = (item.fType & MFT_SEPARATOR) != 0;
        entries.push_back({separator ? kSeparator : item.wID, text});
    }
    return entries;
}

std::vector<UINT> Commands(HMENU menu) {
    std::vector<UINT> commands;
    for (const MenuEntry& entry : Entries(menu))
        commands.push_back(entry.command);
    return commands;
}

// Each entry but a separator has one letter to choose it by, its own among its neighbours.
void ExpectDistinctMnemonics(HMENU menu, const std::string& file) {
    std::set<wint_t> letters;
    for (const MenuEntry& entry : Entries(menu)) {
        if (entry.command == kSeparator) continue;
        const size_t mark = entry.text.find(L'&');
        ASSERT_NE(mark, std::wstring::npos) << file << ": " << Narrow(entry.text);
        const wint_t letter = towupper(entry.text[mark + 1]);
        EXPECT_TRUE(iswalpha(letter)) << file << ": " << Narrow(entry.text);
        EXPECT_TRUE(letters.insert(letter).second) << file << ": " << Narrow(entry.text);
        EXPECT_EQ(entry.text.find(L'&', mark + 1), std::wstring::npos) << Narrow(entry.text);
    }
}

TEST_F(LanguageLibraries, HoldTheMainMenu) {
    for (const Language& language : languages_) {
        UniqueMenu menu(LoadMenuW(language.library.Get(), MAKEINTRESOURCEW(IDM_MAIN)));
        ASSERT_TRUE(menu) << language.file;
        ASSERT_EQ(GetMenuItemCount(menu.Get()), 2) << language.file;
        const HMENU first = GetSubMenu(menu.Get(), 0);
        const HMENU second = GetSubMenu(menu.Get(), 1);
        EXPECT_EQ(Commands(first), (std::vector<UINT>{IDOK, IDCANCEL})) << language.file;
        EXPECT_EQ(Commands(second),
                  (std::vector<UINT>{IDC_EXPORT_BACKUP, kSeparator, IDC_IMPORT_BACKUP, kSeparator,
                                     IDC_ABOUT, kSeparator, IDC_OPEN_OPTIONS}))
            << language.file;
        ExpectDistinctMnemonics(menu.Get(), language.file);
        ExpectDistinctMnemonics(first, language.file);
        ExpectDistinctMnemonics(second, language.file);
    }
}

TEST_F(LanguageLibraries, HoldTheMenuOfTheFontsPage) {
    for (const Language& language : languages_) {
        UniqueMenu menu(LoadMenuW(language.library.Get(), MAKEINTRESOURCEW(IDM_FONTS)));
        ASSERT_TRUE(menu) << language.file;
        ExpectDistinctMnemonics(menu.Get(), language.file);
        EXPECT_EQ(Commands(GetSubMenu(menu.Get(), 0)), (std::vector<UINT>{IDC_SAME_SIZE}));
    }
}

TEST_F(LanguageLibraries, HoldTheFilterNameDialog) {
    for (const Language& language : languages_) {
        HMODULE library = language.library.Get();
        HRSRC found = FindResourceW(library, MAKEINTRESOURCEW(IDD_FILTER_NAME), RT_DIALOG);
        ASSERT_TRUE(found) << language.file;
        const auto* form = static_cast<const DLGTEMPLATE*>(LoadResource(library, found));
        HWND dialog = CreateDialogIndirectW(nullptr, form, nullptr, nullptr);
        ASSERT_TRUE(dialog) << language.file;
        for (const int id : {419, 1590, IDOK, IDCANCEL})
            EXPECT_TRUE(GetDlgItem(dialog, id)) << language.file << " " << id;
        DestroyWindow(dialog);
    }
}

} // namespace
