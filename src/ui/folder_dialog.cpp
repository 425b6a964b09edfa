#include "ui/folder_dialog.h"

#include "shell/services/scaling.h"
#include "ui/folder_view.h"
#include "ui/modal_window.h"

namespace {
class FolderDialog final : public ModalWindow {
  public:
    explicit FolderDialog(const WideString& start) : view_(start, nullptr) {}
    [[nodiscard]] WideString Folder() const {
        return view_.Folder().IsEmpty() ? WideString(L"\\") : view_.Folder();
    }

  protected:
    void CreateControls(HWND window) override;
    void OnCommand(HWND window, UINT id, UINT notification) override;
    void OnNotify(HWND window, const NMHDR& header) override;
    void Layout(HWND window) override;

  private:
    FolderView view_;
};

void FolderDialog::CreateControls(HWND window) {
    view_.Create(window);
    view_.TakeFocus();
}

void FolderDialog::Layout(HWND) {
    view_.Layout(ScaleY(2 * FolderView::kMargin + FolderView::kRowHeight));
}

void FolderDialog::OnCommand(HWND, UINT id, UINT) {
    if (view_.OnCommand(id)) return;
    if (id == IDOK || id == IDCANCEL) Finish(static_cast<int>(id));
}

void FolderDialog::OnNotify(HWND, const NMHDR& header) {
    view_.OnNotify(header);
}
} // namespace

bool SelectFolder(HWND owner, const wchar_t* title, WideString& path) {
    FolderDialog dialog(path);
    if (dialog.Run(owner, L"SelectFolderWin", title) != IDOK) return false;
    path = dialog.Folder();
    return true;
}
