#include "preview/list_background.h"

#include <aygshell.h>

HBITMAP ListBackground::Get() {
    if (loaded_) return picture_.Get();
    loaded_ = true;
    picture_.Reset(SHLoadImageFile(L"\\Windows\\tdywater.gif"));
    if (!picture_) picture_.Reset(SHLoadImageFile(L"\\windows\\stwater.gif"));
    return picture_.Get();
}
