#include "pages/icon_group.h"

#include "shell/services/scaling.h"

namespace {
constexpr int kMargin = 3;
constexpr int kLabelWidth = 63;
constexpr int kGap = 3;
constexpr int kLabelDrop = 5; // A label stands this much lower than its buttons.

uint32_t StoredAt(const IconSlot& slot) {
    return (settingsStore.*slot.setting).value;
}

// One chooser in the columns between two edges of the page; all in pixels.
void PlaceBetween(const IconChooser& chooser, int left, int right, int y) {
    const int height = ScaleY(IconChooser::kHeight);
    const int drop = ScaleY(kLabelDrop);
    const int label = left + Scale(kMargin);
    const int buttons = label + Scale(kLabelWidth) + Scale(kGap);
    chooser.Place({label, y + drop, Scale(kLabelWidth), height - drop},
                  {buttons, y, right - Scale(kMargin) - buttons, height});
}
} // namespace

void IconGroup::Create(HWND page, HFONT font, UINT firstId) {
    const auto create = [&](IconChooser& chooser, const IconSlot& slot, IconChoice choice) {
        chooser.Create(page, font,
                       {.choice = choice,
                        .labelId = firstId,
                        .id = firstId + 1,
                        .text = slot.text,
                        .code = slot.code,
                        .flags = table_.flags},
                       StoredAt(slot));
        firstId += 2;
    };
    create(left1_, table_.left1, IconChoice::One);
    create(left2_, table_.left2, IconChoice::One);
    create(right_, table_.right, IconChoice::Set);
    right_.Withdraw(StoredAt(table_.left1));
    right_.Withdraw(StoredAt(table_.left2));
}

int IconGroup::Place(HWND page, int top) const {
    RECT client{};
    GetClientRect(page, &client);
    const int pitch = ScaleY(IconChooser::kPitch);
    const bool isWide = client.right > client.bottom;
    const int columns = client.right / (isWide ? 2 : 1);
    int y = top;
    PlaceBetween(left1_, 0, columns, y);
    if (!isWide) y += pitch;
    PlaceBetween(left2_, isWide ? columns : 0, client.right, y);
    y += pitch;
    const int setWidth = Scale(2 * kMargin + kLabelWidth + kGap) +
                         static_cast<int>(table_.flags.size()) * Scale(IconChooser::kButtonWidth);
    PlaceBetween(right_, 0, setWidth, y);
    return y + pitch;
}

bool IconGroup::OnMenuSelect(LPARAM code, uint32_t flag) {
    if (code == table_.left1.code)
        ChooseLeft(table_.left1, table_.left2, flag);
    else if (code == table_.left2.code)
        ChooseLeft(table_.left2, table_.left1, flag);
    else
        return false;
    return true;
}

void IconGroup::ChooseLeft(const IconSlot& slot, const IconSlot& other, uint32_t flag) {
    const uint32_t old = StoredAt(slot);
    if (old != StoredAt(other)) right_.Offer(old);
    (settingsStore.*slot.setting).Set(flag);
    if (!flag) return;
    DwordSetting& right = settingsStore.*table_.right.setting;
    if (right.value & flag) right.Set(right.value & ~flag);
    right_.Withdraw(flag);
}

bool IconGroup::OnClick(LPARAM code) {
    if (code != table_.right.code) return false;
    (settingsStore.*table_.right.setting).Set(right_.Value());
    return true;
}
