#include "shell/services/font_holder.h"

namespace {

FontCatalogue fontCatalogue = nullptr;

} // namespace

void SetFontCatalogue(FontCatalogue catalogue) {
    fontCatalogue = catalogue;
}

void FontHolder::Init(int fontId) {
    font_.Reset();
    fontId_ = fontId;
}

HFONT FontHolder::Get() {
    if (!font_ && fontCatalogue != nullptr) {
        const LOGFONT description = fontCatalogue(fontId_);
        font_.Reset(CreateFontIndirect(&description));
    }
    return font_.Get();
}

void FontHolder::Release() {
    font_.Reset();
}
