#include "ui/file_dialog.h"

#include <aygshell.h>
#include <commctrl.h>

#include "resource_ids.h"
#include "shell/services/application.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "ui/controls.h"
#include "ui/file_name.h"
#include "ui/folder_view.h"
#include "ui/modal_window.h"

namespace {
constexpr UINT kNameLabel = 110;
constexpr UINT kName = 111;
constexpr UINT kTypeLabel = 112;
constexpr UINT kType = 113;
constexpr int kRowGap = 2;
constexpr int kLabelWidth = 46;
constexpr int kLabelDrop = 2; // A label stands this much lower than what it names.
// A window lower than this, as in landscape above the input panel, has no room for the type.
constexpr int kLowWindow = 150;

// Where the next dialog starts: the folder that was shown when a file was last chosen.
WideString startFolder(L"\\My Documents");

bool IsFile(const wchar_t* path) {
    return GetFileAttributes(path) != INVALID_FILE_ATTRIBUTES && !IsFolder(path);
}

enum class FilePurpose { Save, Open };

class FileDialog final : public ModalWindow {
  public:
    FileDialog(FilePurpose purpose, const FileDialogText& text)
        : purpose_(purpose), text_(text), view_(startFolder, text.extension) {}
    // Gives whether the user chose a file.
    bool Select(HWND owner, const wchar_t* className, WideString& path);

  protected:
    void CreateControls(HWND window) override;
    bool OnKey(HWND window, const MSG& message) override;
    void OnCommand(HWND window, UINT id, UINT notification) override;
    void OnNotify(HWND window, const NMHDR& header) override;
    void Layout(HWND window) override;

  private:
    void Confirm(HWND window);

    FilePurpose purpose_;
    FileDialogText text_;
    FolderView view_;
    WideString chosen_;
};

bool FileDialog::Select(HWND owner, const wchar_t* className, WideString& path) {
    const bool confirmed = Run(owner, className, text_.title) == IDOK;
    SipShowIM(SIPF_OFF);
    if (!confirmed) return false;
    startFolder = view_.Folder();
    path = chosen_;
    return true;
}

void FocusName(HWND window) {
    HWND name = Item(window, kName);
    SetFocus(name);
    SendMessage(name, EM_SETSEL, 0, -1);
}

void FileDialog::CreateControls(HWND window) {
    HFONT font = application.normalFont;
    CreateControl(window, L"STATIC", LanguageText(IDS_FILE_NAME).CStr(), SS_LEFT, kNameLabel, {},
                  font);
    HWND name = CreateControl(window, L"EDIT", text_.name, WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL,
                              kName, {}, font);
    SendMessage(name, EM_LIMITTEXT, MAX_PATH - 1, 0);
    CreateControl(window, L"STATIC", LanguageText(IDS_FILE_TYPE).CStr(), SS_LEFT, kTypeLabel, {},
                  font);
    CreateControl(window, L"STATIC", text_.description, SS_LEFT | SS_NOPREFIX, kType, {}, font);
    view_.Create(window);
    if (purpose_ == FilePurpose::Save)
        FocusName(window);
    else
        view_.TakeFocus();
}

// The name stands near the top, where the input panel does not reach.
void FileDialog::Layout(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    const int margin = Scale(FolderView::kMargin);
    const int rowHeight = ScaleY(FolderView::kRowHeight);
    const int fieldLeft = margin + Scale(kLabelWidth);
    int top = ScaleY(FolderView::kMargin + kRowGap) + rowHeight;
    const auto placeRow = [&](UINT labelId, UINT fieldId, int fieldDrop) {
        MoveWindow(Item(window, labelId), margin, top + ScaleY(kLabelDrop), Scale(kLabelWidth),
                   rowHeight - ScaleY(kLabelDrop), TRUE);
        MoveWindow(Item(window, fieldId), fieldLeft, top + fieldDrop,
                   client.right - margin - fieldLeft, rowHeight - fieldDrop, TRUE);
        top += rowHeight + ScaleY(kRowGap);
    };
    placeRow(kNameLabel, kName, 0);
    const bool showType = client.bottom >= ScaleY(kLowWindow);
    ShowControlRange(window, kTypeLabel, kType, showType ? SW_SHOW : SW_HIDE);
    if (showType) placeRow(kTypeLabel, kType, ScaleY(kLabelDrop));
    view_.Layout(top + ScaleY(kRowGap));
}

bool FileDialog::OnKey(HWND window, const MSG& message) {
    if (message.wParam != VK_RETURN) return false;
    const auto control = static_cast<UINT>(GetDlgCtrlID(message.hwnd));
    const WideString file = control == FolderView::kList ? view_.FocusedFile() : WideString();
    if (control != kName && file.IsEmpty()) return false;
    if (!file.IsEmpty()) SetDlgItemText(window, kName, file.CStr());
    Confirm(window);
    return true;
}

void FileDialog::OnCommand(HWND window, UINT id, UINT notification) {
    if (view_.OnCommand(id)) return;
    if (id == IDOK) Confirm(window);
    if (id == IDCANCEL) Finish(IDCANCEL);
    if (id == kName && notification == EN_SETFOCUS) SipShowIM(SIPF_ON);
}

void FileDialog::OnNotify(HWND window, const NMHDR& header) {
    if (view_.OnNotify(header) || header.idFrom != FolderView::kList) return;
    // The panel goes when the list takes over. It stays while a button has the focus: that would
    // move away beneath the stylus that presses it.
    if (header.code == NM_SETFOCUS) SipShowIM(SIPF_OFF);
    // Where a file is opened, ok takes the one that is highlighted. Where one is saved, passing
    // over the files on the way must not cost the name that was typed.
    const bool highlighted = header.code == LVN_ITEMCHANGED && purpose_ == FilePurpose::Open;
    if (!highlighted && header.code != LVN_ITEMACTIVATE) return;
    const WideString file = view_.SelectedFile();
    if (!file.IsEmpty()) SetDlgItemText(window, kName, file.CStr());
}

// Whether a path is free, or the user gives up the file that has it.
bool MayReplace(HWND window, const WideString& path) {
    if (!IsFile(path.CStr())) return true;
    return MessageBox(window, LanguageText(IDS_FILE_REPLACE_QUESTION).CStr(),
                      LanguageText(IDS_FILE_REPLACE_CAPTION).CStr(),
                      MB_YESNO | MB_DEFBUTTON2) == IDYES;
}

void FileDialog::Confirm(HWND window) {
    const WideString name = Trimmed(ControlText(Item(window, kName)));
    const FileNameFault fault = CheckFileName(name);
    if (fault != FileNameFault::None) {
        MessageBox(window,
                   fault == FileNameFault::Missing ? L"File name value is missing"
                                                   : L"File name include illegal characters",
                   L"File Name Error", MB_OK);
        FocusName(window);
        return;
    }
    WideString path = FilePath(view_.Folder(), name, text_.extension);
    if (purpose_ == FilePurpose::Save && !MayReplace(window, path)) {
        FocusName(window);
        return;
    }
    chosen_ = path;
    Finish(IDOK);
}
} // namespace

bool SelectFileToSave(HWND owner, const FileDialogText& text, WideString& path) {
    return FileDialog(FilePurpose::Save, text).Select(owner, L"SaveFileWin", path);
}

bool SelectFileToOpen(HWND owner, const FileDialogText& text, WideString& path) {
    return FileDialog(FilePurpose::Open, text).Select(owner, L"LoadFileWin", path);
}
