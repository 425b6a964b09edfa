#include "preview/item_sample.h"

#include <gtest/gtest.h>
#include <oleauto.h>

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "files/icon_set.h"
#include "preview/clock.h"
#include "preview/item_icons.h"
#include "shell/services/application.h"
#include "shell/services/scaling.h"
#include "tests/settings/store_fixture.h"

namespace {

using Pixels = std::vector<uint32_t>;

// What a paint function leaves on a black page.
template <typename Paint>
Pixels Picture(int width, Paint paint) {
    const int height = ScaleY(ItemSample::kHeight);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    const UniqueDc dc(CreateCompatibleDC(nullptr));
    const UniqueBitmap bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    const SelectScope scope(dc.Get(), bitmap.Get());
    paint(dc.Get());
    GdiFlush();
    const auto* pixels = static_cast<const uint32_t*>(bits);
    return {pixels, pixels + static_cast<size_t>(width) * height};
}

struct Change {
    DwordSetting SettingsStore::*setting;
    uint32_t value;
};

class ItemSampleTest : public StoreFixture {
  protected:
    void SetUp() override {
        StoreFixture::SetUp();
        SetVgaMode(false);
        store_ = LoadStore();
        sample_ = std::make_unique<ItemSample>(*store_);
        library_.Reset(LoadLibrary(L"\\Program Files\\Teskel\\Orvane\\LowDpiRes.dll"));
        application.displayLibrary = library_.Get();
        ASSERT_TRUE(library_);
        iconSet.LoadIconSet(WideString());
    }
    void TearDown() override {
        iconSet.Release();
        application.displayLibrary = nullptr;
        StoreFixture::TearDown();
    }

    Pixels Appointment() {
        return Picture(kWidth, [this](HDC dc) {
            sample_->PaintAppointment(dc, 0, kWidth, L"Subject", L"Place");
        });
    }
    Pixels Task() {
        return Picture(kWidth, [this](HDC dc) { sample_->PaintTask(dc, 0, kWidth, L"Subject"); });
    }

    // A change shows at once, and so does taking it back.
    template <typename Paint>
    void ExpectShown(const std::vector<Change>& changes, Paint paint) {
        const Pixels before = paint();
        for (size_t i = 0; i < changes.size(); ++i) {
            DwordSetting& setting = (*store_).*changes[i].setting;
            const uint32_t old = setting.value;
            setting.value = changes[i].value;
            const Pixels after = paint();
            EXPECT_TRUE(after != before) << "change " << i;
            sample_ = std::make_unique<ItemSample>(*store_);
            EXPECT_TRUE(paint() == after) << "change " << i << ", shown by a new sample";
            setting.value = old;
            EXPECT_TRUE(paint() == before) << "change " << i;
        }
    }

    static constexpr int kWidth = 480;
    UniqueModule library_;
    std::unique_ptr<SettingsStore> store_;
    std::unique_ptr<ItemSample> sample_;
};

TEST_F(ItemSampleTest, ShowsEveryChangeAtOnce) {
    std::set<Pixels> formats;
    for (uint32_t format = 1; format <= 12; ++format) {
        store_->ApptDisplayFormat.value = format;
        formats.insert(Appointment());
    }
    EXPECT_EQ(formats.size(), 12U);

    store_->ApptDisplayFormat.value = 1;
    store_->FontCalApptBusy.logFont.lfHeight = 20;
    store_->FontTskNoDue.logFont.lfHeight = 20;
    ExpectShown({{&SettingsStore::ApptLeftAlignIcon1, 4},
                 {&SettingsStore::ApptLeftAlignIcon2, 8},
                 {&SettingsStore::TaskLeftAlignIcon1, 4}, // Widens the common column.
                 {&SettingsStore::ClrApptRightIcons, 479 - 256},
                 {&SettingsStore::ClrApptRightIcons, 479 - 1},
                 {&SettingsStore::IndentItems, 1},
                 {&SettingsStore::LeadingRects, 0},
                 {&SettingsStore::LeadingRects, 2},
                 {&SettingsStore::Force2DigitsTImeFrmt, 1},
                 {&SettingsStore::FontGnrlSize, 18},
                 {&SettingsStore::FontGnrlUseAdvncd, 1},
                 {&SettingsStore::UseShadowColor, 1},
                 {&SettingsStore::GeneralFontColor, 0x0000FF},
                 {&SettingsStore::ClrStatusBusy, 0x0000FF}},
                [this] { return Appointment(); });
    ExpectShown({{&SettingsStore::TaskTabLeftAlignIcon1, 1},
                 {&SettingsStore::TaskTabLeftAlignIcon2, 2},
                 {&SettingsStore::TasksRightIcons, 0},
                 {&SettingsStore::FontGnrlUseAdvncd, 1},
                 {&SettingsStore::IndentItems, 1}},
                [this] { return Task(); });
}

TEST_F(ItemSampleTest, EachFlagHasItsOwnIcon) {
    constexpr int kSide = 12;
    const auto drawn = [](uint32_t flag) {
        return Picture(kSide, [flag](HDC dc) { DrawItemIcon(dc, 0, 0, flag); });
    };
    const Pixels nothing = drawn(0);
    uint32_t flag = 1;
    for (const UINT number : {290, 287, 292, 289, 286, 291, 294, 288, 321}) {
        const UniqueBitmap bitmap(LoadBitmap(library_.Get(), MAKEINTRESOURCE(number)));
        const Pixels expected = Picture(kSide, [&](HDC dc) {
            TransparentImage(dc, 0, 0, Scale(kSide), Scale(kSide), bitmap.Get(), 0, 0, kSide, kSide,
                             RGB(255, 255, 255));
        });
        EXPECT_TRUE(expected != nothing && drawn(flag) == expected) << flag;
        flag *= 2;
    }
    EXPECT_TRUE(drawn(3) == nothing && drawn(flag) == nothing);
}

TEST_F(ItemSampleTest, NeedsNeitherIconsNorRoom) {
    iconSet.Release();
    const Pixels bare = Task();
    EXPECT_TRUE(bare != Pixels(bare.size(), bare[0])) << "the text is there without the icons";
    for (const int width : {0, -1}) {
        const Pixels page = Picture(10, [&](HDC dc) {
            sample_->PaintTask(dc, 0, width, L"Subject");
            sample_->PaintAppointment(dc, 0, width, L"Subject", L"Place");
        });
        EXPECT_TRUE(page == Pixels(page.size(), 0));
    }
}

TEST_F(ItemSampleTest, ListStandsOnTheTodayScreensPicture) {
    // One pixel.
    constexpr uint8_t kPicture[] = {'G', 'I', 'F', '8', '9', 'a', 1, 0,    1, 0, 0x80, 0,
                                    0,   255, 0,   0,   0,   0,   0, ',',  0, 0, 0,    0,
                                    1,   0,   1,   0,   0,   2,   2, 0x44, 1, 0, ';'};
    constexpr wchar_t kSecond[] = L"\\windows\\stwater.gif";
    EXPECT_EQ(ListBackground().Get(), nullptr);
    {
        const HANDLE file =
            CreateFile(kSecond, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        DWORD written = 0;
        EXPECT_TRUE(WriteFile(file, kPicture, sizeof kPicture, &written, nullptr));
        CloseHandle(file);
    }
    ListBackground background;
    const HBITMAP picture = background.Get();
    DeleteFile(kSecond);
    EXPECT_NE(picture, nullptr);
    EXPECT_EQ(background.Get(), picture) << "it is loaded once";
}

TEST(Clock, AgreesWithThePlatformsCalendar) {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    double date = 0;
    ASSERT_TRUE(SystemTimeToVariantTime(&now, &date));
    EXPECT_EQ(Today(), static_cast<int>(date));

    EXPECT_EQ(TimeOfDayText(37216.5, TimePicture(true, false)), L"12:00P");
    EXPECT_EQ(TimeOfDayText(37216.375, TimePicture(false, true)), L"09:00");
    EXPECT_EQ(TimeOfDayText(37216 + 17.0 / 24 + 5.0 / 1440, TimePicture(false, false)), L"17:05");
    EXPECT_EQ(TimeOfDayText(37216 - 1e-9, TimePicture(false, false)), L"0:00");
}

} // namespace
