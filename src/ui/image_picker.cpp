#include "ui/image_picker.h"

#include <commctrl.h>

#include <cwchar>
#include <optional>

#include "files/icon_catalogue.h"
#include "resource_ids.h"
#include "shell/services/application.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "ui/controls.h"
#include "ui/list_items.h"
#include "ui/modal_window.h"
#include "ui/thumbnails.h"

namespace {
constexpr UINT kList = 100;
constexpr UINT kEmptyText = 101;
constexpr UINT kNoneButton = 102;
constexpr int kMargin = 6;
constexpr int kRowHeight = 20;
constexpr int kButtonWidth = 108;

class ImagePicker final : public ModalWindow {
  public:
    explicit ImagePicker(const WideString& current);
    [[nodiscard]] const WideString& Chosen() const { return chosen_; }

  protected:
    void CreateControls(HWND window) override;
    void OnCommand(HWND window, UINT id, UINT notification) override;
    void OnNotify(HWND window, const NMHDR& header) override;
    bool OnKey(HWND window, const MSG& message) override;
    void Layout(HWND window) override;

  private:
    [[nodiscard]] int IconCount() const;
    [[nodiscard]] int CurrentRow() const;
    [[nodiscard]] const WideString& NameInRow(int row) const;
    [[nodiscard]] WideString PathInRow(int row) const;
    void CreateList(HWND window);
    void FillItem(LVITEM& item);
    void Confirm(int row);
    void GoToLetter(HWND list, wchar_t letter) const;

    WideString current_;
    WideString currentName_; // What its row says where the catalogue does not hold it.
    std::optional<size_t> currentIcon_;
    int ownRows_; // Rows before the catalogue's: 1 for a current picture that it does not hold.
    WideString chosen_;
    Thumbnails thumbnails_;
};

ImagePicker::ImagePicker(const WideString& current)
    : current_(current),
      currentName_(LanguageText(IDS_ICON_PICKER_CURRENT)),
      currentIcon_(iconCatalogue.Find(current)),
      ownRows_(!current.IsEmpty() && !currentIcon_ ? 1 : 0),
      chosen_(current) {}

int ImagePicker::IconCount() const {
    return ownRows_ + static_cast<int>(iconCatalogue.Count());
}

// The row of the present picture; −1 when there is none.
int ImagePicker::CurrentRow() const {
    if (currentIcon_) return static_cast<int>(*currentIcon_);
    return ownRows_ - 1;
}

const WideString& ImagePicker::NameInRow(int row) const {
    return row < ownRows_ ? currentName_ : iconCatalogue.Name(static_cast<size_t>(row - ownRows_));
}

WideString ImagePicker::PathInRow(int row) const {
    return row < ownRows_ ? current_ : iconCatalogue.Path(static_cast<size_t>(row - ownRows_));
}

void ImagePicker::CreateControls(HWND window) {
    HFONT font = application.normalFont;
    CreateList(window);
    CreateControl(window, L"STATIC", LanguageText(IDS_ICON_PICKER_EMPTY).CStr(), SS_CENTER,
                  kEmptyText, {}, font);
    CreateControl(window, L"BUTTON", LanguageText(IDS_ICON_PICKER_NONE).CStr(), WS_TABSTOP,
                  kNoneButton, {}, font);
    CreateControl(window, L"BUTTON", LanguageText(IDS_CANCEL).CStr(), WS_TABSTOP, IDCANCEL, {},
                  font);
    ShowControlRange(window, kEmptyText, kEmptyText, IconCount() == 0 ? SW_SHOW : SW_HIDE);
}

// The list asks for what it shows, so that it opens at once whatever the number of icons.
void ImagePicker::CreateList(HWND window) {
    // An empty list cannot show that it has the focus, so the keys pass over it.
    const DWORD tabStop = IconCount() == 0 ? 0 : WS_TABSTOP;
    HWND list =
        CreateControl(window, WC_LISTVIEW, L"",
                      tabStop | WS_BORDER | LVS_REPORT | LVS_SINGLESEL | LVS_NOCOLUMNHEADER |
                          LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS | LVS_OWNERDATA,
                      kList, {}, application.normalFont);
    SendMessage(list, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_FULLROWSELECT);
    SendMessage(list, LVM_SETIMAGELIST, LVSIL_SMALL,
                reinterpret_cast<LPARAM>(thumbnails_.Images()));
    AddColumn(list);
    SendMessage(list, LVM_SETITEMCOUNT, static_cast<WPARAM>(IconCount()), 0);
}

void ImagePicker::Layout(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    const int margin = Scale(kMargin);
    const int rowHeight = ScaleY(kRowHeight);
    const int button = Scale(kButtonWidth);
    const int width = client.right - 2 * margin;
    const int buttonTop = client.bottom - ScaleY(kMargin) - rowHeight;
    const auto place = [window](UINT id, const ControlPlace& to) {
        MoveWindow(Item(window, id), to.x, to.y, to.width, to.height, TRUE);
    };
    place(kList, {margin, ScaleY(kMargin), width, buttonTop - 2 * ScaleY(kMargin)});
    place(kEmptyText, {2 * margin, ScaleY(kMargin) + rowHeight, width - 2 * margin, rowHeight});
    place(kNoneButton, {margin, buttonTop, button, rowHeight});
    place(IDCANCEL, {client.right - margin - button, buttonTop, button, rowHeight});
    HWND list = Item(window, kList);
    FitColumn(list);
    // Only now is it known which rows are in sight.
    const int row = SelectedRow(list) >= 0 ? SelectedRow(list) : CurrentRow();
    if (row >= 0) SelectRow(list, row);
}

void ImagePicker::OnCommand(HWND window, UINT id, UINT) {
    if (id == IDCANCEL) Finish(IDCANCEL);
    // Without a selection all stays as it is.
    if (id == IDOK) Confirm(SelectedRow(Item(window, kList)));
    if (id != kNoneButton) return;
    chosen_ = L"";
    Finish(IDOK);
}

void ImagePicker::OnNotify(HWND, const NMHDR& header) {
    if (header.idFrom != kList) return;
    if (header.code == LVN_GETDISPINFO)
        FillItem(reinterpret_cast<NMLVDISPINFO*>(const_cast<NMHDR*>(&header))->item);
    if (header.code == LVN_ITEMACTIVATE) Confirm(FocusedRow(header.hwndFrom));
}

void ImagePicker::FillItem(LVITEM& item) {
    if (item.iItem < 0 || item.iItem >= IconCount()) return;
    if (item.mask & LVIF_TEXT) item.pszText = const_cast<wchar_t*>(NameInRow(item.iItem).CStr());
    if (item.mask & LVIF_IMAGE)
        item.iImage = thumbnails_.ImageOf(item.iItem, PathInRow(item.iItem).CStr());
}

void ImagePicker::Confirm(int row) {
    if (row >= 0) chosen_ = PathInRow(row);
    Finish(IDOK);
}

bool ImagePicker::OnKey(HWND window, const MSG& message) {
    HWND list = Item(window, kList);
    const auto key = static_cast<wchar_t>(message.wParam);
    const bool isLetter = (key >= L'A' && key <= L'Z') || (key >= L'0' && key <= L'9');
    if (message.hwnd != list || !isLetter) return false;
    GoToLetter(list, key);
    return true;
}

// The next icon whose name begins with a letter; the list, which holds no names, cannot find it.
void ImagePicker::GoToLetter(HWND list, wchar_t letter) const {
    const int count = IconCount();
    const int start = FocusedRow(list);
    for (int step = 1; step <= count; ++step) {
        const int row = (start + step) % count;
        if (_wcsnicmp(NameInRow(row).CStr(), &letter, 1) != 0) continue;
        SelectRow(list, row);
        return;
    }
}
} // namespace

bool PickImage(HWND owner, WideString& path) {
    iconCatalogue.BuildIconCatalogue();
    ImagePicker picker(path);
    if (picker.Run(owner, L"ImagePickerWin", LanguageText(IDS_ICON_PICKER_TITLE).CStr()) != IDOK)
        return false;
    path = picker.Chosen();
    return true;
}
