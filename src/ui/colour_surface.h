#pragma once

#include <windows.h>

#include <cstdint>

#include "settings/setting.h"
#include "shell/services/handles.h"
#include "ui/colour_model.h"

// The colour that a picker's controls show and change together.
class ColourChoice {
  public:
    // Of a colour the lower three bytes count; 0xFFFFFFFF is none.
    explicit ColourChoice(uint32_t colour) { Set(colour); }

    void Set(uint32_t colour);
    void Set(const HueShade& shade);

    [[nodiscard]] uint32_t Colour() const { return colour_; }
    [[nodiscard]] bool IsNone() const { return colour_ == kNoColour; }
    // The colour again, or the last one for none. A hue outlives the colours that have none.
    [[nodiscard]] const HueShade& Shade() const { return shade_; }

  private:
    uint32_t colour_ = kNoColour;
    HueShade shade_{0, kFullShade, kFullShade / 2};
};

// The window class, which the key navigation treats as one control, and what it sends for an arrow
// key (wParam): false when the mark cannot go further that way.
inline constexpr wchar_t kColourSurfaceClass[] = L"ColourSurface";
inline constexpr UINT kMessageStepColour = WM_USER + 1;

// The notification code of WM_COMMAND when the user chose a colour on a surface.
inline constexpr UINT kColourChosen = 1;

// A child window that shows colours to choose from, by pen or by the arrow keys.
class ColourSurface {
  public:
    ColourSurface(const ColourSurface&) = delete;
    ColourSurface& operator=(const ColourSurface&) = delete;

    // Makes the window at no place yet. The surface outlives it.
    void Create(HWND parent, UINT id);
    void Redraw() const;

  protected:
    // `choice` is shown and changed; it outlives the surface.
    explicit ColourSurface(ColourChoice& choice) : choice_(choice) {}
    ~ColourSurface() = default;

    // Within `area`, in pixels of the window; so are points, which never lie outside.
    virtual void Paint(HDC dc, const RECT& area) = 0;
    // Chooses what stands at a point; false where that is nothing.
    virtual bool ChooseAt(POINT point, const RECT& area) = 0;
    // Answers an arrow key: whether there was anywhere to go.
    virtual bool Step(UINT key) = 0;
    // Chooses what the mark is on, by Enter or Space; false where the mark itself is the choice.
    virtual bool ChooseMarked();

    // Redraws the surface and tells the parent.
    void TellChosen() const;

    [[nodiscard]] bool HasFocus() const { return GetFocus() == window_; }

    ColourChoice& choice_;

  private:
    static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void OnPaint();
    void OnPointer(LPARAM position);
    [[nodiscard]] RECT Area() const;

    HWND window_ = nullptr;
};

// Thirty colours to tap. Keys move a mark over them; Enter or Space takes the marked one.
class ColourPalette final : public ColourSurface {
  public:
    explicit ColourPalette(ColourChoice& choice) : ColourSurface(choice) {}

    // In ten columns of three shades each, or in rows of two colours' shades: 10 by 3 or 6 by 5.
    void ShowWide(bool isWide);
    [[nodiscard]] int Columns() const;
    [[nodiscard]] int Rows() const;

  protected:
    void Paint(HDC dc, const RECT& area) override;
    bool ChooseAt(POINT point, const RECT& area) override;
    bool Step(UINT key) override;
    bool ChooseMarked() override;

  private:
    [[nodiscard]] uint32_t ColourAt(int cell) const;
    [[nodiscard]] RECT CellPlace(int cell, const RECT& area) const;

    bool isWide_ = true;
    int marked_ = 0;
};

// Hues from left to right, saturation from below up, at half the lightness.
class HueField final : public ColourSurface {
  public:
    explicit HueField(ColourChoice& choice) : ColourSurface(choice) {}

  protected:
    void Paint(HDC dc, const RECT& area) override;
    bool ChooseAt(POINT point, const RECT& area) override;
    bool Step(UINT key) override;

  private:
    void Render(HDC dc, SIZE size);
    [[nodiscard]] HueShade VisibleShade() const;

    UniqueBitmap picture_; // Made once for each size.
    SIZE size_{};
};

// The chosen hue from black at the bottom to white at the top.
class LightnessBar final : public ColourSurface {
  public:
    explicit LightnessBar(ColourChoice& choice) : ColourSurface(choice) {}

  protected:
    void Paint(HDC dc, const RECT& area) override;
    bool ChooseAt(POINT point, const RECT& area) override;
    bool Step(UINT key) override;
};
