#include "ui/messages.h"

#include "shell/services/resource_strings.h"

namespace {
int Show(HWND owner, UINT textId, UINT captionId, UINT buttons) {
    return MessageBox(owner, LanguageText(textId).CStr(), LanguageText(captionId).CStr(), buttons);
}
} // namespace

void ShowMessage(HWND owner, UINT textId, UINT captionId) {
    Show(owner, textId, captionId, MB_OK);
}

bool AskYesNo(HWND owner, UINT textId, UINT captionId) {
    return Show(owner, textId, captionId, MB_YESNO) == IDYES;
}
