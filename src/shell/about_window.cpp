#include "shell/about_window.h"

#include "resource_ids.h"
#include "shell/main_window.h"
#include "shell/services/application.h"
#include "shell/services/handles.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "ui/controls.h"
#include "ui/modal_window.h"

namespace {
constexpr wchar_t kVersion[] = OV_VERSION;
constexpr int kIconSize = 32;
constexpr int kMargin = 16;
constexpr int kLineHeight = 18;
constexpr int kDescriptionTop = 68;
constexpr int kButtonWidth = 75;
constexpr int kButtonHeight = 22;
constexpr int kRightsHeight = 32;

class AboutWindow final : public ModalWindow {
  protected:
    void CreateControls(HWND window) override;
    void OnCommand(HWND window, UINT id, UINT notification) override;
    void Layout(HWND window) override;
    void OnPaint(HWND window, HDC dc) override;

  private:
    UniqueIcon icon_;
};

void AboutWindow::CreateControls(HWND window) {
    icon_.Reset(static_cast<HICON>(LoadImage(application.instance, MAKEINTRESOURCE(IDI_PROGRAM),
                                             IMAGE_ICON, Scale(kIconSize), ScaleY(kIconSize), 0)));
    CreateControl(window, L"BUTTON", LanguageText(IDS_OK).CStr(), WS_TABSTOP | BS_DEFPUSHBUTTON,
                  IDOK, {}, application.normalFont);
}

void AboutWindow::Layout(HWND window) {
    const SIZE size = ClientSize(window);
    PlaceControl(Item(window, IDOK),
                 {(size.cx - Scale(kButtonWidth)) / 2, size.cy - ScaleY(kMargin + kButtonHeight),
                  Scale(kButtonWidth), ScaleY(kButtonHeight)});
    InvalidateRect(window, nullptr, TRUE);
}

void AboutWindow::OnCommand(HWND, UINT id, UINT) {
    if (id == IDOK || id == IDCANCEL) Finish(static_cast<int>(id));
}

void DrawLine(HDC dc, HFONT font, const wchar_t* text, RECT place, UINT format) {
    const SelectScope selected(dc, font);
    DrawText(dc, text, -1, &place, format | DT_NOPREFIX);
}

void AboutWindow::OnPaint(HWND window, HDC dc) {
    RECT client{};
    GetClientRect(window, &client);
    const int left = Scale(kMargin);
    const int top = ScaleY(kMargin);
    const int right = client.right - left;
    const int textLeft = left + Scale(kIconSize) + left;
    DrawIconEx(dc, left, top, icon_.Get(), Scale(kIconSize), ScaleY(kIconSize), 0, nullptr,
               DI_NORMAL);
    SetBkMode(dc, TRANSPARENT);
    DrawLine(dc, application.boldFont, kProgramTitle,
             {textLeft, top, right, top + ScaleY(kLineHeight)}, DT_SINGLELINE);
    WideString version = LanguageText(IDS_ABOUT_VERSION);
    version.Append(L" ");
    version.Append(kVersion);
    DrawLine(dc, application.normalFont, version.CStr(),
             {textLeft, top + ScaleY(kLineHeight), right, top + 2 * ScaleY(kLineHeight)},
             DT_SINGLELINE);
    const int buttonTop = client.bottom - ScaleY(kMargin + kButtonHeight);
    DrawLine(dc, application.normalFont, LanguageText(IDS_ABOUT_DESCRIPTION).CStr(),
             {left, ScaleY(kDescriptionTop), right, buttonTop}, DT_WORDBREAK);
    DrawLine(dc, application.normalFont, LanguageText(IDS_ABOUT_RIGHTS).CStr(),
             {left, buttonTop - ScaleY(kRightsHeight), right, buttonTop}, DT_WORDBREAK);
}
} // namespace

void ShowAbout(HWND owner) {
    AboutWindow().Run(owner, L"AboutWin", LanguageText(IDS_ABOUT_TITLE).CStr());
}
