#include "pages/font_style_dialog.h"

#include "pages/font_size_list.h"
#include "resource_ids.h"
#include "shell/services/application.h"
#include "shell/services/handles.h"
#include "shell/services/resource_strings.h"
#include "shell/services/scaling.h"
#include "ui/colour_box.h"
#include "ui/colour_picker.h"
#include "ui/controls.h"
#include "ui/menu_bar.h"
#include "ui/row_layout.h"
#include "ui/template_dialog.h"

namespace {
constexpr LONG kBold = 700;
constexpr LONG kRegular = 100;

constexpr int kRowHeight = 20; // In units.

struct TextOfControl {
    UINT control;
    UINT text;
};
constexpr TextOfControl kTexts[] = {
    {IDC_FONT_COLOUR_LABEL, IDS_FONT_STYLE_COLOUR},
    {IDC_FONT_ITALIC, IDS_FONT_STYLE_ITALIC},
    {IDC_FONT_BOLD, IDS_FONT_STYLE_BOLD},
    {IDC_FONT_UNDERLINE, IDS_FONT_STYLE_UNDERLINE},
    {IDC_FONT_STRIKE_OUT, IDS_FONT_STYLE_STRIKE_OUT},
    {IDC_FONT_SIZE_LABEL, IDS_FONT_STYLE_SIZE},
    {IDC_FONT_SET_COLOUR, IDS_FONT_STYLE_SET},
};

class FontStyleDialog final : private TemplateDialog {
  public:
    FontStyleDialog(LOGFONT& font, COLORREF& colour) : font_(font), colour_(colour) {}
    void Run(HWND owner) { RunTemplate(owner, application.instance, IDD_FONT_STYLE); }

  private:
    void OnInit(HWND dialog) override;
    void Layout(HWND dialog) override;
    void OnCommand(HWND dialog, UINT id) override;
    bool OnPaint(HWND dialog) override;
    void OnDestroy() override;
    void CreateBar(HWND dialog);
    void LoadValues(HWND dialog) const;
    void TakeStyle(HWND dialog) const;
    void SetColour(HWND dialog);
    [[nodiscard]] RECT SwatchPlace(HWND dialog) const;

    LOGFONT& font_;
    COLORREF& colour_;
    HWND bar_ = nullptr;
    UniqueImageList barImages_;
    int colourTop_ = 0; // The upper edge of the colour's row, in pixels.
};

RECT FontStyleDialog::SwatchPlace(HWND dialog) const {
    constexpr int kFromRight = 100;
    constexpr int kWidth = 40;
    const int left = ClientSize(dialog).cx - Scale(kFromRight);
    return {left, colourTop_, left + Scale(kWidth), colourTop_ + ScaleY(kRowHeight)};
}

void FontStyleDialog::Layout(HWND dialog) {
    constexpr int kTop = 8;
    constexpr int kLabelDrop = 3; // A label stands this much lower than what it names.
    constexpr int kLabelEnd = 110;
    constexpr int kSetFromRight = 50;
    constexpr int kSetWidth = 40;
    // The template has made the controls; the rows move them.
    RowLayout rows(dialog, application.normalFont, kTop);
    rows.AddCombo(IDC_FONT_SIZE_LABEL, L"", IDC_FONT_SIZE);
    for (const UINT box : {IDC_FONT_BOLD, IDC_FONT_ITALIC, IDC_FONT_UNDERLINE, IDC_FONT_STRIKE_OUT})
        rows.AddCheck(box, L"");
    colourTop_ = rows.Y();
    const int width = ClientSize(dialog).cx;
    const int height = ScaleY(kRowHeight);
    PlaceControl(Item(dialog, IDC_FONT_COLOUR_LABEL),
                 {0, colourTop_ + ScaleY(kLabelDrop), width - Scale(kLabelEnd), height});
    PlaceControl(Item(dialog, IDC_FONT_SET_COLOUR),
                 {width - Scale(kSetFromRight), colourTop_, Scale(kSetWidth), height});
    InvalidateRect(dialog, nullptr, TRUE);
}

void FontStyleDialog::OnInit(HWND dialog) {
    FillScreen(dialog, IDS_FONT_STYLE_TITLE);
    CreateBar(dialog);
    for (const TextOfControl& entry : kTexts)
        SetDlgItemText(dialog, static_cast<int>(entry.control), LanguageText(entry.text).CStr());
    LoadValues(dialog);
}

void FontStyleDialog::CreateBar(HWND dialog) {
    bar_ = CreateButtonBar(dialog, IDR_FONT_STYLE_BAR);
    if (!bar_) return;
    barImages_ = SetMenuBarImages(bar_);
}

void FontStyleDialog::LoadValues(HWND dialog) const {
    FillFontSizes(Item(dialog, IDC_FONT_SIZE), static_cast<uint32_t>(font_.lfHeight));
    const auto check = [dialog](int id, bool isChecked) {
        SendDlgItemMessage(dialog, id, BM_SETCHECK, isChecked ? BST_CHECKED : BST_UNCHECKED, 0);
    };
    check(IDC_FONT_BOLD, font_.lfWeight == kBold);
    check(IDC_FONT_ITALIC, font_.lfItalic != 0);
    check(IDC_FONT_UNDERLINE, font_.lfUnderline != 0);
    check(IDC_FONT_STRIKE_OUT, font_.lfStrikeOut != 0);
}

void FontStyleDialog::TakeStyle(HWND dialog) const {
    font_.lfItalic = IsBoxChecked(dialog, IDC_FONT_ITALIC) ? 1 : 0;
    font_.lfUnderline = IsBoxChecked(dialog, IDC_FONT_UNDERLINE) ? 1 : 0;
    font_.lfWeight = IsBoxChecked(dialog, IDC_FONT_BOLD) ? kBold : kRegular;
    font_.lfStrikeOut = IsBoxChecked(dialog, IDC_FONT_STRIKE_OUT) ? 1 : 0;
    font_.lfHeight = static_cast<LONG>(ChosenFontSize(Item(dialog, IDC_FONT_SIZE)));
}

void FontStyleDialog::SetColour(HWND dialog) {
    const COLORREF chosen = PickColour(dialog, colour_);
    if (chosen == kPickCancelled) return;
    colour_ = chosen;
    const RECT swatch = SwatchPlace(dialog);
    InvalidateRect(dialog, &swatch, FALSE);
    UpdateWindow(dialog);
}

void FontStyleDialog::OnCommand(HWND dialog, UINT id) {
    switch (id) {
    case IDC_FONT_SET_COLOUR:
        SetColour(dialog);
        break;
    case IDOK:
        TakeStyle(dialog);
        Finish(IDOK);
        break;
    case IDCANCEL:
        Finish(IDCANCEL);
        break;
    default:
        break;
    }
}

bool FontStyleDialog::OnPaint(HWND dialog) {
    PAINTSTRUCT paint;
    HDC dc = BeginPaint(dialog, &paint);
    FillRect(dc, &paint.rcPaint, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    DrawColourBox(dc, SwatchPlace(dialog), colour_, application.normalFont);
    EndPaint(dialog, &paint);
    return true;
}

void FontStyleDialog::OnDestroy() {
    if (bar_) DestroyWindow(bar_);
    bar_ = nullptr;
    barImages_.Reset();
}
} // namespace

void EditFontStyle(HWND owner, LOGFONT& font, COLORREF& colour) {
    FontStyleDialog(font, colour).Run(owner);
}
