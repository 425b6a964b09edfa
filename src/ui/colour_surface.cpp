#include "ui/colour_surface.h"

#include <windowsx.h>

#include <algorithm>
#include <vector>

#include "shell/services/application.h"
#include "shell/services/scaling.h"
#include "shell/services/window_class.h"
#include "ui/controls.h"
#include "ui/paint_buffer.h"

namespace {
constexpr int kFrame = 2; // Units around the colours, where the focus shows.

void FillBox(HDC dc, const RECT& box, COLORREF colour) {
    SetBkColor(dc, colour);
    ExtTextOut(dc, 0, 0, ETO_OPAQUE, &box, nullptr, 0, nullptr);
}

void FillInset(HDC dc, RECT box, int inset, COLORREF colour) {
    InflateRect(&box, -inset, -inset);
    FillBox(dc, box, colour);
}

int Width(const RECT& area) {
    return std::max<int>(area.right - area.left, 1);
}

int Height(const RECT& area) {
    return std::max<int>(area.bottom - area.top, 1);
}

// Where a value from 0 to `full` stands on a line of `length` pixels, and back.
int PixelOf(int value, int full, int length) {
    return value * (length - 1) / full;
}

int ValueAt(int pixel, int full, int length) {
    return length < 2 ? 0 : (pixel * full + (length - 1) / 2) / (length - 1);
}

// One step of a value that ends at 0 and kFullShade; false at the end.
bool StepShade(int& value, bool up) {
    constexpr int kStep = kFullShade / 20;
    const int next = std::clamp(up ? value + kStep : value - kStep, 0, kFullShade);
    if (next == value) return false;
    value = next;
    return true;
}
} // namespace

void ColourChoice::Set(uint32_t colour) {
    colour_ = colour == kNoColour ? kNoColour : colour & 0xFFFFFF;
    if (!IsNone()) shade_ = HueShadeOf(colour_, shade_);
}

void ColourChoice::Set(const HueShade& shade) {
    shade_ = shade;
    colour_ = ColourOf(shade);
}

void ColourSurface::Create(HWND parent, UINT id) {
    // A failure means that the class is there already.
    RegisterWindowClass(application.instance, WindowProc, nullptr, kColourSurfaceClass,
                        WHITE_BRUSH);
    window_ = CreateControl(parent, kColourSurfaceClass, L"", WS_TABSTOP, id, {}, nullptr);
    if (window_) SetWindowLongPtr(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

void ColourSurface::Redraw() const {
    if (window_) InvalidateRect(window_, nullptr, FALSE);
}

bool ColourSurface::ChooseMarked() {
    return false;
}

void ColourSurface::TellChosen() const {
    Redraw();
    const auto id = static_cast<UINT>(GetDlgCtrlID(window_));
    SendMessage(GetParent(window_), WM_COMMAND, MAKEWPARAM(id, kColourChosen),
                reinterpret_cast<LPARAM>(window_));
}

RECT ColourSurface::Area() const {
    RECT area{};
    GetClientRect(window_, &area);
    InflateRect(&area, -Scale(kFrame), -Scale(kFrame));
    return area;
}

void ColourSurface::OnPaint() {
    PAINTSTRUCT paint;
    HDC dc = BeginPaint(window_, &paint);
    RECT client{};
    GetClientRect(window_, &client);
    if (!IsRectEmpty(&client)) {
        const PaintBuffer buffer(dc, client);
        if (HasFocus())
            FillBox(buffer.Dc(), client, GetSysColor(COLOR_HIGHLIGHT));
        else
            FillInset(buffer.Dc(), client, Scale(kFrame) - 1, RGB(160, 160, 160));
        Paint(buffer.Dc(), Area());
    }
    EndPaint(window_, &paint);
}

void ColourSurface::OnPointer(LPARAM position) {
    const RECT area = Area();
    if (IsRectEmpty(&area)) return;
    const POINT point{
        std::clamp<LONG>(GET_X_LPARAM(position), area.left, area.right - 1),
        std::clamp<LONG>(GET_Y_LPARAM(position), area.top, area.bottom - 1),
    };
    if (ChooseAt(point, area)) TellChosen();
}

LRESULT ColourSurface::Dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_PAINT:
        OnPaint();
        return 0;
    case WM_ERASEBKGND:
        return 1;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        Redraw();
        return 0;
    case WM_LBUTTONDOWN:
        SetFocus(window);
        SetCapture(window);
        OnPointer(lParam);
        return 0;
    case WM_MOUSEMOVE:
        if (GetCapture() == window) OnPointer(lParam);
        return 0;
    case WM_LBUTTONUP:
        if (GetCapture() == window) ReleaseCapture();
        return 0;
    case WM_KEYDOWN:
        if ((wParam == VK_RETURN || wParam == VK_SPACE) && ChooseMarked()) TellChosen();
        return 0;
    case kMessageStepColour:
        return Step(static_cast<UINT>(wParam));
    case WM_NCDESTROY:
        window_ = nullptr;
        break;
    default:
        break;
    }
    return DefWindowProc(window, message, wParam, lParam);
}

LRESULT CALLBACK ColourSurface::WindowProc(HWND window, UINT message, WPARAM wParam,
                                           LPARAM lParam) {
    auto* self = reinterpret_cast<ColourSurface*>(GetWindowLongPtr(window, GWLP_USERDATA));
    return self ? self->Dispatch(window, message, wParam, lParam)
                : DefWindowProc(window, message, wParam, lParam);
}

// --- The palette ---------------------------------------------------------------------------------

namespace {
constexpr int kColours = 10;
constexpr int kShades = 3;
constexpr int kCells = kColours * kShades;

// Each colour from light to dark.
constexpr COLORREF kPalette[kColours][kShades] = {
    {RGB(255, 255, 255), RGB(128, 128, 128), RGB(0, 0, 0)},
    {RGB(255, 176, 176), RGB(255, 0, 0), RGB(128, 0, 0)},
    {RGB(255, 208, 160), RGB(255, 128, 0), RGB(128, 64, 0)},
    {RGB(255, 255, 176), RGB(255, 224, 0), RGB(128, 112, 0)},
    {RGB(192, 240, 176), RGB(64, 192, 0), RGB(32, 96, 0)},
    {RGB(176, 240, 208), RGB(0, 176, 96), RGB(0, 88, 48)},
    {RGB(176, 240, 255), RGB(0, 176, 224), RGB(0, 88, 112)},
    {RGB(176, 200, 255), RGB(0, 64, 255), RGB(0, 32, 128)},
    {RGB(216, 192, 255), RGB(128, 0, 255), RGB(64, 0, 128)},
    {RGB(255, 192, 240), RGB(255, 0, 192), RGB(128, 0, 96)},
};
} // namespace

void ColourPalette::ShowWide(bool isWide) {
    if (isWide == isWide_) return;
    isWide_ = isWide;
    marked_ = 0;
    Redraw();
}

int ColourPalette::Columns() const {
    return isWide_ ? kColours : 2 * kShades;
}

int ColourPalette::Rows() const {
    return kCells / Columns();
}

uint32_t ColourPalette::ColourAt(int cell) const {
    if (isWide_) return kPalette[cell % kColours][cell / kColours];
    return kPalette[cell / kShades][cell % kShades];
}

RECT ColourPalette::CellPlace(int cell, const RECT& area) const {
    const int column = cell % Columns();
    const int row = cell / Columns();
    return {area.left + column * Width(area) / Columns(), area.top + row * Height(area) / Rows(),
            area.left + (column + 1) * Width(area) / Columns(),
            area.top + (row + 1) * Height(area) / Rows()};
}

void ColourPalette::Paint(HDC dc, const RECT& area) {
    FillBox(dc, area, RGB(255, 255, 255));
    for (int cell = 0; cell < kCells; ++cell) {
        const RECT place = CellPlace(cell, area);
        const uint32_t colour = ColourAt(cell);
        FillInset(dc, place, Scale(1), RGB(160, 160, 160));
        FillInset(dc, place, Scale(1) + 1, colour);
        if (colour != choice_.Colour() && !(HasFocus() && cell == marked_)) continue;
        FillBox(dc, place, RGB(0, 0, 0));
        FillInset(dc, place, Scale(2), RGB(255, 255, 255));
        FillInset(dc, place, Scale(4), colour);
    }
}

bool ColourPalette::ChooseAt(POINT point, const RECT& area) {
    for (int cell = 0; cell < kCells; ++cell) {
        const RECT place = CellPlace(cell, area);
        if (!PtInRect(&place, point)) continue;
        marked_ = cell;
        return ChooseMarked();
    }
    return false;
}

bool ColourPalette::ChooseMarked() {
    choice_.Set(ColourAt(marked_));
    return true;
}

bool ColourPalette::Step(UINT key) {
    const int column = marked_ % Columns();
    int next = marked_;
    if (key == VK_UP) next -= Columns();
    if (key == VK_DOWN) next += Columns();
    if (key == VK_LEFT) next = column > 0 ? marked_ - 1 : -1;
    if (key == VK_RIGHT) next = column + 1 < Columns() ? marked_ + 1 : -1;
    if (next < 0 || next >= kCells) return false;
    marked_ = next;
    Redraw();
    return true;
}

// --- The field -----------------------------------------------------------------------------------

void HueField::Render(HDC dc, SIZE size) {
    if (picture_ && size.cx == size_.cx && size.cy == size_.cy) return;
    size_ = size;
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = size.cy; // From below up, as saturation grows.
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    picture_.Reset(CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!picture_) return;
    std::vector<HuePlace> columns;
    for (int x = 0; x < size.cx; ++x)
        columns.push_back(PlaceOf(ValueAt(x, kFullCircle - 1, static_cast<int>(size.cx))));
    auto* pixel = static_cast<uint32_t*>(bits);
    for (int y = 0; y < size.cy; ++y) {
        const HueRow row(ValueAt(y, kFullShade, static_cast<int>(size.cy)), kFullShade / 2);
        for (const HuePlace& column : columns) {
            const uint32_t colour = row.At(column);
            // A bitmap's pixel has blue in its lowest byte.
            *pixel++ =
                Component(colour, 0) << 16 | Component(colour, 1) << 8 | Component(colour, 2);
        }
    }
}

void HueField::Paint(HDC dc, const RECT& area) {
    const SIZE size{Width(area), Height(area)};
    Render(dc, size);
    if (!picture_) return;
    {
        const UniqueDc source(CreateCompatibleDC(dc));
        const SelectScope picture(source.Get(), picture_.Get());
        BitBlt(dc, area.left, area.top, size.cx, size.cy, source.Get(), 0, 0, SRCCOPY);
    }
    if (choice_.IsNone()) return;
    const HueShade& shade = choice_.Shade();
    const int reach = Scale(5);
    // Whole even at the field's edges.
    const int x = std::clamp<int>(area.left + PixelOf(shade.hue, kFullCircle - 1, Width(area)),
                                  area.left + reach,
                                  std::max<int>(area.left + reach, area.right - reach - 1));
    const int y =
        std::clamp<int>(area.bottom - 1 - PixelOf(shade.saturation, kFullShade, Height(area)),
                        area.top + reach, std::max<int>(area.top + reach, area.bottom - reach - 1));
    const SelectScope hollow(dc, GetStockObject(NULL_BRUSH));
    const struct {
        int radius;
        int pen;
    } rings[] = {{reach, BLACK_PEN}, {reach - 1, WHITE_PEN}, {reach - 2, BLACK_PEN}};
    for (const auto& ring : rings) {
        const SelectScope pen(dc, GetStockObject(ring.pen));
        Ellipse(dc, x - ring.radius, y - ring.radius, x + ring.radius + 1, y + ring.radius + 1);
    }
}

// On black and white every hue looks alike.
HueShade HueField::VisibleShade() const {
    HueShade shade = choice_.Shade();
    if (shade.lightness == 0 || shade.lightness == kFullShade) shade.lightness = kFullShade / 2;
    return shade;
}

bool HueField::ChooseAt(POINT point, const RECT& area) {
    HueShade shade = VisibleShade();
    shade.hue = ValueAt(point.x - area.left, kFullCircle - 1, Width(area));
    shade.saturation = ValueAt(area.bottom - 1 - point.y, kFullShade, Height(area));
    choice_.Set(shade);
    return true;
}

bool HueField::Step(UINT key) {
    constexpr int kStep = 10; // Degrees.
    HueShade shade = VisibleShade();
    if (key == VK_LEFT || key == VK_RIGHT) {
        const int turn = key == VK_RIGHT ? kStep : kFullCircle - kStep;
        shade.hue = (shade.hue + turn) % kFullCircle;
    } else if (!StepShade(shade.saturation, key == VK_UP)) {
        return false;
    }
    choice_.Set(shade);
    TellChosen();
    return true;
}

// --- The lightness -------------------------------------------------------------------------------

void LightnessBar::Paint(HDC dc, const RECT& area) {
    HueShade shade = choice_.Shade();
    const int height = Height(area);
    for (int y = 0; y < height; ++y) {
        shade.lightness = ValueAt(height - 1 - y, kFullShade, height);
        FillBox(dc, {area.left, area.top + y, area.right, area.top + y + 1}, ColourOf(shade));
    }
    if (choice_.IsNone()) return;
    const int y = area.bottom - 1 - PixelOf(choice_.Shade().lightness, kFullShade, height);
    FillBox(dc, {area.left, y - Scale(2), area.right, y + Scale(2)}, RGB(0, 0, 0));
    FillBox(dc, {area.left, y - Scale(1), area.right, y + Scale(1)}, RGB(255, 255, 255));
}

bool LightnessBar::ChooseAt(POINT point, const RECT& area) {
    HueShade shade = choice_.Shade();
    shade.lightness = ValueAt(area.bottom - 1 - point.y, kFullShade, Height(area));
    choice_.Set(shade);
    return true;
}

bool LightnessBar::Step(UINT key) {
    HueShade shade = choice_.Shade();
    if (key != VK_UP && key != VK_DOWN) return false;
    if (!StepShade(shade.lightness, key == VK_UP)) return false;
    choice_.Set(shade);
    TellChosen();
    return true;
}
