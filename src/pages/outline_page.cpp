#include "pages/outline_page.h"

#include "resource_ids.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "ui/controls.h"

namespace {
constexpr UINT kNotice = 1200;
constexpr int kMargin = 10;
constexpr int kNoticeHeight = 40;
} // namespace

int OutlinePage::GetTabCount() const {
    return static_cast<int>(titles_.size());
}

UINT OutlinePage::GetTabTitleId(int index) const {
    return titles_[static_cast<size_t>(index)];
}

void OutlinePage::CreateControls(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    CreateControl(
        window, L"STATIC", LanguageText(IDS_PAGE_OUTLINE).CStr(), SS_LEFT, kNotice,
        {Scale(kMargin), ScaleY(kMargin), client.right - Scale(2 * kMargin), ScaleY(kNoticeHeight)},
        normalFont);
}

void OutlinePage::ShowTab(HWND, int) {} // The notice stands on every tab.

void OutlinePage::SaveValues(HWND, WPARAM) {}
