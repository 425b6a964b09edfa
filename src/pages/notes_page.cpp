#include "pages/notes_page.h"

#include "pages/shared_choices.h"
#include "resource_ids.h"
#include "settings/text_list.h"
#include "shell/services/platform_version.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "ui/folder_dialog.h"
#include "ui/messages.h"

namespace {
// Control ids.
constexpr UINT kSearchBarLabel = 1200;
constexpr UINT kSearchBar = 1201;
constexpr UINT kPreviewLabel = 1202;
constexpr UINT kPreview = 1203;
constexpr UINT kBreakLineLabel = 1204;
constexpr UINT kBreakLine = 1205;
constexpr UINT kFolding = 1206;
constexpr UINT kCounters = 1207;
constexpr UINT kNoteFiles = 1208; // The first of the file types.
constexpr UINT kTextFiles = 1209;
constexpr UINT kRichTextFiles = 1210;
constexpr UINT kDocumentFiles = 1211;
constexpr UINT kWorkbookFiles = 1212;
constexpr UINT kPresentationFiles = 1213;
constexpr UINT kFoldersLabel = 1214;
constexpr UINT kFolders = 1215;
constexpr UINT kRemove = 1216;
constexpr UINT kAdd = 1217;

constexpr wchar_t kFoldersKey[] = L"Folders";

// Of the folders' tab, in units.
constexpr int kListBottom = 54;
constexpr int kButtonGap = 6;
constexpr int kButtonWidth = 80;
constexpr int kButtonHeight = 20;

constexpr FormTab kTabs[] = {
    {IDS_TAB_GENERAL, kSearchBarLabel, kPreview},
    {IDS_TAB_TITLES, kBreakLineLabel, kCounters},
    {IDS_TAB_NOTES_FILES, kNoteFiles, kPresentationFiles},
    {IDS_TAB_NOTES_FOLDERS, kFoldersLabel, kAdd},
};

constexpr UINT kPreviewChoices[] = {IDS_NOTES_PREVIEW_HIDE, IDS_NOTES_PREVIEW_SHOW,
                                    IDS_NOTES_PREVIEW_AS_LEFT};

constexpr FormRow kRows[] = {
    {.tab = 0,
     .kind = RowKind::CustomChoice,
     .labelId = kSearchBarLabel,
     .id = kSearchBar,
     .text = IDS_SEARCH_BAR},
    {.tab = 0,
     .kind = RowKind::Choice,
     .labelId = kPreviewLabel,
     .id = kPreview,
     .text = IDS_NOTES_PREVIEW,
     .choices = kPreviewChoices,
     .setting = &SettingsStore::NotesPreviewNotesState},

    {.tab = 1,
     .kind = RowKind::Choice,
     .labelId = kBreakLineLabel,
     .id = kBreakLine,
     .text = IDS_TITLES_BREAK_LINE,
     .choices = kBreakLineChoices,
     .setting = &SettingsStore::NotesBreakLineStyle},
    {.tab = 1,
     .kind = RowKind::Check,
     .id = kFolding,
     .text = IDS_TITLES_FOLDING,
     .setting = &SettingsStore::NotesIncldFoldBttns},
    {.tab = 1,
     .kind = RowKind::Check,
     .id = kCounters,
     .text = IDS_TITLES_COUNTERS,
     .setting = &SettingsStore::NotesIncldCounters},

    {.tab = 2, .kind = RowKind::Custom, .id = kNoteFiles, .text = IDS_NOTES_FILES_NOTES},
    {.tab = 2, .kind = RowKind::Custom, .id = kTextFiles, .text = IDS_NOTES_FILES_TEXT},
    {.tab = 2, .kind = RowKind::Custom, .id = kRichTextFiles, .text = IDS_NOTES_FILES_RICH_TEXT},
    {.tab = 2, .kind = RowKind::Custom, .id = kDocumentFiles, .text = IDS_NOTES_FILES_DOCUMENTS},
    {.tab = 2, .kind = RowKind::Custom, .id = kWorkbookFiles, .text = IDS_NOTES_FILES_WORKBOOKS},
    {.tab = 2,
     .kind = RowKind::Custom,
     .id = kPresentationFiles,
     .text = IDS_NOTES_FILES_PRESENTATIONS},

    {.tab = 3,
     .kind = RowKind::Custom,
     .labelId = kFoldersLabel,
     .id = kFolders,
     .text = IDS_NOTES_FOLDERS},
};

constexpr FormTables kTables{kTabs, kRows, {}};

// A box may stand for two types, of which the first decides how it is shown.
struct FileTypes {
    UINT id;
    uint32_t shownFor;
    uint32_t saved;
};
constexpr FileTypes kFileTypes[] = {
    {kNoteFiles, 1, 1},      {kTextFiles, 2, 2},        {kRichTextFiles, 4, 4},
    {kDocumentFiles, 8, 72}, {kWorkbookFiles, 16, 144}, {kPresentationFiles, 32, 32},
};

void LoadFileTypes(HWND window) {
    const uint32_t value = settingsStore.NotesScannedFileTypes.value;
    for (const FileTypes& types : kFileTypes) {
        HWND box = Item(window, types.id);
        const bool isOffered = types.id != kPresentationFiles || IsNewerThanCe420();
        EnableWindow(box, isOffered);
        SendMessage(box, BM_SETCHECK, isOffered && (value & types.shownFor), 0);
    }
}

void SaveFileTypes(HWND window) {
    uint32_t value = 0;
    for (const FileTypes& types : kFileTypes) {
        // What the platform does not offer counts as scanned.
        const bool isOffered = IsWindowEnabled(Item(window, types.id));
        if (!isOffered || IsBoxChecked(window, types.id)) value |= types.saved;
    }
    settingsStore.NotesScannedFileTypes.Set(value);
}

// Puts a button below the list.
void PlaceButton(HWND window, UINT id, UINT text, HFONT font, int x, int y) {
    PutControl(window, L"BUTTON", LanguageText(text).CStr(), WS_TABSTOP, id,
               {x, y, Scale(kButtonWidth), ScaleY(kButtonHeight)}, font);
}
} // namespace

NotesPage::NotesPage() : FormPage(kTables) {}

void NotesPage::PlaceCustomRow(HWND window, const FormRow& row, RowLayout& layout) {
    if (row.id == kFolders)
        PlaceFolders(window, row, layout);
    else
        layout.AddCheck(row.id, LanguageText(row.text).CStr());
}

void NotesPage::PlaceFolders(HWND window, const FormRow& row, RowLayout& layout) {
    layout.AddLabel(row.labelId, LanguageText(row.text).CStr());
    if (!Item(window, row.id)) folders_.Create(window, row.id, normalFont);
    const ControlPlace room = layout.RoomAbove(kListBottom);
    folders_.Place(room);
    const int buttons = room.y + room.height + ScaleY(kButtonGap);
    PlaceButton(window, kRemove, IDS_REMOVE, normalFont, room.x, buttons);
    PlaceButton(window, kAdd, IDS_ADD, normalFont, room.x + room.width - Scale(kButtonWidth),
                buttons);
}

void NotesPage::LoadCustomRow(HWND window, const FormRow& row) {
    if (row.id == kSearchBar) {
        searchBar_.Fill(Item(window, kSearchBar));
    } else if (row.id == kNoteFiles) {
        LoadFileTypes(window);
    } else if (row.id == kFolders) {
        const auto paths = ReadTextList(SettingGroup::Notes, kFoldersKey);
        foldersAreKnown_ = paths.has_value();
        if (paths)
            folders_.Fill(*paths);
        else // What is not saved cannot be changed either.
            EnableControlRange(window, kFoldersLabel, kAdd, false);
    }
}

void NotesPage::SaveCustomRow(HWND window, const FormRow& row) {
    if (row.id == kSearchBar) {
        searchBar_.Save();
    } else if (row.id == kNoteFiles) {
        SaveFileTypes(window);
    } else if (row.id == kFolders && foldersAreKnown_) {
        WriteTextList(SettingGroup::Notes, kFoldersKey, folders_.Paths());
    }
}

LRESULT NotesPage::OnCommand(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const bool isClick = HIWORD(wParam) == BN_CLICKED;
    if (isClick && LOWORD(wParam) == kAdd)
        AddFolder(window);
    else if (isClick && LOWORD(wParam) == kRemove)
        RemoveFolder(window);
    else
        return FormPage::OnCommand(window, message, wParam, lParam);
    return 0;
}

void NotesPage::AddFolder(HWND window) {
    WideString path = folders_.SelectedPath();
    // The page may be closed and gone when the user is done: the answer is no then.
    if (!SelectFolder(window, LanguageText(IDS_NOTES_ADD_FOLDER).CStr(), path)) return;
    const size_t length = path.Length();
    if (length > 0 && path.CStr()[length - 1] == L'\\') path.Assign(path.CStr(), length - 1);
    if (!folders_.Add(path))
        ShowMessage(window, IDS_NOTES_FOLDER_REFUSED, IDS_NOTES_FOLDER_REFUSED_CAPTION);
}

void NotesPage::RemoveFolder(HWND window) {
    if (!folders_.RemoveSelected())
        ShowMessage(window, IDS_NOTHING_SELECTED_TEXT, IDS_NOTHING_SELECTED_CAPTION);
}
