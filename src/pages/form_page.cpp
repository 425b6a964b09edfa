#include "pages/form_page.h"

#include "shell/services/resource_strings.h"

namespace {
constexpr int kTopMargin = 8;
constexpr int kPathLimit = 260; // Characters.
constexpr int kTextLimit = 255;
// The parts of a path row, from its first id.
constexpr UINT kPathEdit = 1;
constexpr UINT kPathClear = 2;
constexpr UINT kPathBrowse = 3;

bool HasRow(HWND window, const FormRow& row) {
    return Item(window, row.id) != nullptr;
}

void FillChoices(HWND combo, std::span<const UINT> choices) {
    for (const UINT text : choices)
        AddEntry(combo, LanguageText(text).CStr());
}

bool IsShownChecked(const FormRow& row) {
    const uint32_t value = (settingsStore.*row.setting).value;
    return row.kind == RowKind::Switch ? value != 0 : value == 1;
}

void ShowNumber(HWND combo, const FormRow& row) {
    if (!SelectData(combo, (settingsStore.*row.setting).value) && !row.keepsOthers)
        SelectData(combo, row.fallback);
}

void SaveBox(HWND window, const FormRow& row) {
    const bool isChecked = IsBoxChecked(window, row.id);
    if (row.keepsOthers && isChecked == IsShownChecked(row)) return;
    (settingsStore.*row.setting).Set(isChecked ? 1 : 0);
}

void SaveNumber(HWND window, const FormRow& row) {
    const int index = SelectedIndex(window, row.id);
    if (row.keepsOthers && index < 0) return;
    HWND combo = Item(window, row.id);
    (settingsStore.*row.setting)
        .Set(row.kind == RowKind::Number ? SelectedData(combo) : static_cast<uint32_t>(index));
}

// A stored text that is longer than the page takes stays until the user changes it.
void SaveText(StringSetting& setting, HWND edit, int limit) {
    if (ControlText(edit) != setting.value) setting.Set(ControlText(edit, limit).CStr());
}
} // namespace

int FormPage::GetTabCount() const {
    return static_cast<int>(tables_.tabs.size());
}

UINT FormPage::GetTabTitleId(int index) const {
    return tables_.tabs[static_cast<size_t>(index)].title;
}

void FormPage::CreateControls(HWND window) {
    PlaceRows(window, [](const FormRow& row) { return !row.exists || row.exists(); });
    for (const FormRow& row : tables_.rows) {
        if (HasRow(window, row)) LoadRow(window, row);
    }
    ApplyRules(window);
}

LRESULT FormPage::Layout(HWND window) {
    PlaceRows(window, [window](const FormRow& row) { return HasRow(window, row); });
    return 0;
}

template <typename Wanted>
void FormPage::PlaceRows(HWND window, Wanted isWanted) {
    for (size_t tab = 0; tab < tables_.tabs.size(); ++tab) {
        RowLayout layout(window, normalFont, kTopMargin);
        for (const FormRow& row : tables_.rows) {
            if (row.tab != tab || !isWanted(row)) continue;
            PlaceRow(window, row, layout);
            layout.Skip(row.gapAfter);
        }
    }
}

void FormPage::PlaceRow(HWND window, const FormRow& row, RowLayout& layout) {
    const WideString text = LanguageText(row.text);
    switch (row.kind) {
    case RowKind::Check:
    case RowKind::Switch:
        layout.AddCheck(row.id, text.CStr());
        break;
    case RowKind::Choice:
    case RowKind::Number:
    case RowKind::CustomChoice:
        layout.AddCombo(row.labelId, text.CStr(), row.id);
        break;
    case RowKind::Path:
        layout.AddPath(row.id, text.CStr(), kPathLimit);
        break;
    case RowKind::Text:
        layout.AddText(row.column, row.labelId, text.CStr(), row.id, kTextLimit);
        break;
    case RowKind::Custom:
        PlaceCustomRow(window, row, layout);
        break;
    }
}

void FormPage::LoadRow(HWND window, const FormRow& row) {
    HWND control = Item(window, row.id);
    switch (row.kind) {
    case RowKind::Check:
    case RowKind::Switch:
        SendMessage(control, BM_SETCHECK, IsShownChecked(row), 0);
        break;
    case RowKind::Choice:
        FillChoices(control, row.choices);
        if (row.fillChoices) row.fillChoices(control);
        SelectIndex(control, (settingsStore.*row.setting).value);
        break;
    case RowKind::Number:
        row.fillChoices(control);
        ShowNumber(control, row);
        break;
    case RowKind::Path:
        SetDlgItemText(window, static_cast<int>(row.id + kPathEdit),
                       (settingsStore.*row.path).value.CStr());
        break;
    case RowKind::Text:
        SetWindowText(control, (settingsStore.*row.path).value.CStr());
        break;
    case RowKind::CustomChoice:
    case RowKind::Custom:
        LoadCustomRow(window, row);
        break;
    }
}

void FormPage::ShowTab(HWND window, int showCommand) {
    const int current = CurrentTab();
    if (current < 0 || current >= GetTabCount()) return;
    const FormTab& tab = tables_.tabs[static_cast<size_t>(current)];
    ShowControlRange(window, tab.firstId, tab.lastId, showCommand);
}

void FormPage::SaveValues(HWND window, WPARAM) {
    ShowTab(window, SW_HIDE);
    SaveRows(window);
}

void FormPage::SaveRows(HWND window) {
    for (const FormRow& row : tables_.rows) {
        // What the platform offers may have changed since: only what the page shows is saved.
        if (HasRow(window, row)) SaveRow(window, row);
    }
}

void FormPage::SaveRow(HWND window, const FormRow& row) {
    switch (row.kind) {
    case RowKind::Check:
    case RowKind::Switch:
        SaveBox(window, row);
        break;
    case RowKind::Choice:
    case RowKind::Number:
        SaveNumber(window, row);
        break;
    case RowKind::Path:
        SaveText(settingsStore.*row.path, Item(window, row.id + kPathEdit), kPathLimit);
        break;
    case RowKind::Text:
        SaveText(settingsStore.*row.path, Item(window, row.id), kTextLimit);
        break;
    case RowKind::CustomChoice:
    case RowKind::Custom:
        SaveCustomRow(window, row);
        break;
    }
}

LRESULT FormPage::OnCommand(HWND window, UINT, WPARAM wParam, LPARAM lParam) {
    const UINT notification = HIWORD(wParam);
    // Only what a control tells counts; an accelerator or a menu has no window.
    if (!lParam || (notification != BN_CLICKED && notification != CBN_SELCHANGE)) return 0;
    if (const FormRow* row = PathRowOfButton(LOWORD(wParam)))
        OnPathButton(window, *row, LOWORD(wParam));
    else
        ApplyRules(window);
    return 0;
}

const FormRow* FormPage::PathRowOfButton(UINT id) const {
    for (const FormRow& row : tables_.rows) {
        if (row.kind == RowKind::Path && (id == row.id + kPathClear || id == row.id + kPathBrowse))
            return &row;
    }
    return nullptr;
}

void FormPage::OnPathButton(HWND window, const FormRow& row, UINT id) {
    const UINT edit = row.id + kPathEdit;
    WideString path;
    if (id == row.id + kPathBrowse) {
        path = ControlText(Item(window, edit), kPathLimit);
        // The page may be closed and gone when the user is done: nothing below touches it.
        if (!BrowsePath(window, row, path)) return;
    }
    SetWindowText(Item(window, edit), path.CStr());
}

void FormPage::ApplyRules(HWND window) const {
    for (const EnablingRule& rule : tables_.rules) {
        EnableControlRange(window, rule.firstId, rule.lastId, rule.isEnabled(window));
    }
}

void FormPage::PlaceCustomRow(HWND, const FormRow&, RowLayout&) {}

void FormPage::LoadCustomRow(HWND, const FormRow&) {}

void FormPage::SaveCustomRow(HWND, const FormRow&) {}

bool FormPage::BrowsePath(HWND, const FormRow&, WideString&) {
    return false;
}
