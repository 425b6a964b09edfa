// The screen's density and fonts, as far as settings know them: nothing is drawn.
#include <unistd.h>

#include <cstring>

#include "handles.h"
#include "host.h"

namespace {

constexpr uint32_t kScreen = 0x5000; // The handle of the screen's device context.
constexpr int kDensity = 96;

struct LogicalFont {
    int32_t numbers[5];
    uint8_t marks[8];
    char16_t face[32];
};
static_assert(sizeof(LogicalFont) == 92);

struct Font final : Object {
    static constexpr Kind kKind = Kind::Graphic;
    explicit Font(const LogicalFont& description) : Object(kKind), font(description) {}

    LogicalFont font;
};

uint32_t GetDC(uint32_t) {
    return kScreen;
}

uint32_t ReleaseDC(uint32_t, uint32_t context) {
    return context == kScreen;
}

uint32_t GetDeviceCaps(uint32_t, uint32_t which) {
    constexpr uint32_t kDensityX = 88, kDensityY = 90;
    if (which != kDensityX && which != kDensityY) Fail("the screen's property %u", which);
    return kDensity;
}

uint32_t CreateFontIndirectW(const LogicalFont* font) {
    return handles.Add(std::make_shared<Font>(*font));
}

uint32_t GetObjectW(uint32_t handle, uint32_t size, uint8_t* buffer) {
    const auto* font = Opened<Font>(handle);
    if (!font || size < sizeof font->font) return 0;
    memcpy(buffer, &font->font, sizeof font->font);
    return sizeof font->font;
}

uint32_t DeleteObject(uint32_t handle) {
    return Opened<Font>(handle) && handles.Remove(handle);
}

// Pictures are not loaded here, only missed.
uint32_t SHLoadDIBitmap(const char16_t* path) {
    if (access(HostPathOf(path).c_str(), F_OK) == 0)
        Fail("the picture %s is to be loaded", Utf8(path).c_str());
    return 0;
}

} // namespace

const std::vector<HostEntry>& FontCalls() {
    static const std::vector<HostEntry> entries = {
        SERVE(GetDC),      SERVE(ReleaseDC),    SERVE(GetDeviceCaps), SERVE(CreateFontIndirectW),
        SERVE(GetObjectW), SERVE(DeleteObject), SERVE(SHLoadDIBitmap)};
    return entries;
}
