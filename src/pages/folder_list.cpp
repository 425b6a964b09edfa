#include "pages/folder_list.h"

#include <shellapi.h>

#include "shell/services/handles.h"
#include "shell/services/scaling.h"
#include "ui/list_items.h"

namespace {
// Rows are one unit higher than the images, and so high enough for a finger.
constexpr int kRowHeight = 21;
constexpr int kImageSize = 20;
constexpr int kIconSize = 16;
constexpr COLORREF kGround = RGB(255, 255, 255); // Of the list; clear in its images.

UniqueIcon FolderIcon(const WideString& path) {
    SHFILEINFO info{};
    if (path.IsEmpty() ||
        !SHGetFileInfo(path.CStr(), 0, &info, sizeof(info), SHGFI_ICON | SHGFI_SMALLICON)) {
        return UniqueIcon();
    }
    return UniqueIcon(info.hIcon);
}

// The icon in the middle of an image that is as high as a row needs.
UniqueBitmap DrawImage(HICON icon) {
    const int width = Scale(kImageSize);
    const int height = ScaleY(kImageSize);
    const int iconWidth = Scale(kIconSize);
    const int iconHeight = ScaleY(kIconSize);
    HDC screen = GetDC(nullptr);
    const UniqueDc dc(CreateCompatibleDC(screen));
    UniqueBitmap image(CreateCompatibleBitmap(screen, width, height));
    ReleaseDC(nullptr, screen);
    const SelectScope selected(dc.Get(), image.Get());
    const UniqueBrush ground(CreateSolidBrush(kGround));
    const RECT all{0, 0, width, height};
    FillRect(dc.Get(), &all, ground.Get());
    DrawIconEx(dc.Get(), (width - iconWidth) / 2, (height - iconHeight) / 2, icon, iconWidth,
               iconHeight, 0, nullptr, DI_NORMAL);
    return image;
}
} // namespace

void FolderList::Create(HWND page, UINT id, HFONT font) {
    list_ = CreateList(page, id, font, kRowHeight);
    icons_ = ImageList_Create(Scale(kImageSize), ScaleY(kImageSize), ILC_COLORDDB | ILC_MASK, 0, 1);
    const LRESULT previous =
        SendMessage(list_, LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(icons_));
    ImageList_Destroy(reinterpret_cast<HIMAGELIST>(previous));
}

void FolderList::Place(const ControlPlace& place) const {
    PlaceControl(list_, place);
    FitColumn(list_);
}

void FolderList::Fill(std::span<const WideString> paths) {
    for (const WideString& path : paths)
        Append(path);
    OnRowsChanged();
}

bool FolderList::Add(const WideString& path) {
    const bool isNew = Append(path);
    OnRowsChanged();
    return isNew;
}

void FolderList::OnRowsChanged() const {
    FitColumn(list_);
    // An empty list cannot show that it has the focus, so the keys pass over it.
    SetTabStop(list_, !paths_.empty());
}

bool FolderList::Append(const WideString& path) {
    if (known_.contains(path)) return false;
    const UniqueIcon icon = FolderIcon(path);
    if (!icon) return false;
    InsertRow(path, icon.Get());
    paths_.push_back(path);
    known_.insert(path);
    return true;
}

void FolderList::InsertRow(const WideString& path, HICON icon) {
    LVITEM item{};
    item.mask = LVIF_TEXT | LVIF_IMAGE;
    item.iItem = static_cast<int>(paths_.size());
    item.iImage = ImageList_AddMasked(icons_, DrawImage(icon).Get(), kGround);
    item.pszText = const_cast<wchar_t*>(path.CStr());
    SendMessage(list_, LVM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&item));
}

bool FolderList::RemoveSelected() {
    const int row = SelectedRow(list_);
    if (row < 0) return false;
    SendMessage(list_, LVM_DELETEITEM, static_cast<WPARAM>(row), 0);
    ClearSelection(list_);
    known_.erase(paths_[static_cast<size_t>(row)]);
    paths_.erase(paths_.begin() + row);
    OnRowsChanged();
    return true;
}

WideString FolderList::SelectedPath() const {
    const int row = SelectedRow(list_);
    return row < 0 ? WideString() : paths_[static_cast<size_t>(row)];
}
