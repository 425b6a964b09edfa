// A settings page as the program opens it: over a main window, from the store, with a registry of
// the test's own.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "files/icon_set.h"
#include "pages/settings_page.h"
#include "settings/settings_store.h"
#include "shell/page_factory.h"
#include "shell/services/application.h"
#include "shell/services/handles.h"
#include "shell/services/scaling.h"
#include "tests/support/registry_fixture.h"
#include "tests/support/window_support.h"

class PageFixture : public RegistryFixture {
  protected:
    // The page of a row of the page list, on a main window as a screen of 240 by 320 units has it.
    explicit PageFixture(int row) : row_(row) {}

    void SetUp() override {
        RegistryFixture::SetUp();
        application.instance = GetModuleHandle(nullptr);
        SetVgaMode(false); // As at start, by the screen's density.
        owner_ = CreateWindowEx(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 0, Scale(26), Scale(240),
                                Scale(268), nullptr, nullptr, application.instance, nullptr);
    }

    void TearDown() override {
        DestroyWindow(owner_);
        iconSet.Release();
        if (application.displayLibrary) FreeLibrary(application.displayLibrary);
        application.displayLibrary = nullptr;
        if (application.languageLibrary) FreeLibrary(application.languageLibrary);
        application.languageLibrary = nullptr;
        RegistryFixture::TearDown();
    }

    // The installed display library and the icons, as at start.
    static void LoadArt() {
        application.displayLibrary =
            LoadLibrary(Scale(1) > 1 ? L"\\Program Files\\Teskel\\Orvane\\HighDpiRes.dll"
                                     : L"\\Program Files\\Teskel\\Orvane\\LowDpiRes.dll");
        ASSERT_TRUE(application.displayLibrary);
        iconSet.LoadIconSet(WideString());
    }

    // Loads the store as at start, opens the page, and gives its window.
    HWND Open() {
        settingsStore.Load(application.languageLibrary);
        page_.reset(CreatePage(owner_, row_));
        EXPECT_TRUE(page_ && page_->hwnd);
        return page_->hwnd;
    }

    void Close() {
        ClosePage(*page_);
        page_.reset();
    }

    void ShowTab(int tab) const {
        SendMessage(page_->tabStrip, TCM_SETCURFOCUS, static_cast<WPARAM>(tab), 0);
    }

    bool IsEnabled(int id) const { return IsWindowEnabled(GetDlgItem(page_->hwnd, id)); }

    // A text of the language library; every one that a test asks for must be there.
    static std::wstring Text(UINT id) {
        wchar_t text[512] = L"";
        EXPECT_GT(LoadString(application.languageLibrary, id, text, 512), 0) << id;
        return text;
    }

    // Whether a part of the page shows this text alone: drawn over it, nothing changes.
    [[nodiscard]] bool ShowsText(const RECT& part, const std::wstring& text, UINT format) const {
        HWND window = page_->hwnd;
        UpdateWindow(window);
        const auto font = reinterpret_cast<HFONT>(SendMessage(page_->tabStrip, WM_GETFONT, 0, 0));
        HDC dc = GetDC(window);
        const std::vector<uint32_t> shown = PixelsIn(dc, part);
        FillRect(dc, &part, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
        const std::vector<uint32_t> blank = PixelsIn(dc, part);
        {
            const SelectScope pageFont(dc, font);
            RECT place = part;
            DrawText(dc, text.c_str(), -1, &place, format);
        }
        const std::vector<uint32_t> drawn = PixelsIn(dc, part);
        ReleaseDC(window, dc);
        EXPECT_NE(drawn, blank);
        return shown == drawn;
    }

    HWND owner_ = nullptr;
    std::unique_ptr<SettingsPage> page_;

  private:
    static std::vector<uint32_t> PixelsIn(HDC dc, const RECT& part) {
        const LONG width = part.right - part.left;
        const LONG height = part.bottom - part.top;
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof(info.bmiHeader);
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        const UniqueBitmap bitmap(CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        const UniqueDc copy(CreateCompatibleDC(dc));
        const SelectScope selected(copy.Get(), bitmap.Get());
        BitBlt(copy.Get(), 0, 0, width, height, dc, part.left, part.top, SRCCOPY);
        GdiFlush();
        const auto* pixels = static_cast<const uint32_t*>(bits);
        return {pixels, pixels + width * height};
    }

    int row_;
};
