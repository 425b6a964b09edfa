#include "files/icon_set.h"

#include <initializer_list>
#include <utility>

#include "files/image_loader.h"
#include "resource_ids.h"
#include "shell/services/application.h"

IconSet iconSet;

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);

struct SymbolSource {
    IconSymbol symbol;
    const wchar_t* stem;
    UINT builtIn;
    COLORREF transparentColour;
};

constexpr SymbolSource kSources[IconSet::kSymbolCount] = {
    {IconSymbol::Note, L"note", IDB_SYMBOL_NOTE, kNoColour},
    {IconSymbol::Regenerated, L"regenerated", IDB_SYMBOL_REGENERATED, kNoColour},
    {IconSymbol::Reminder, L"reminder", IDB_SYMBOL_REMINDER, kNoColour},
    {IconSymbol::HighImportance, L"high_importance", IDB_SYMBOL_HIGH_IMPORTANCE, kNoColour},
    {IconSymbol::LowImportance, L"low_importance", IDB_SYMBOL_LOW_IMPORTANCE, kNoColour},
    {IconSymbol::Recurring, L"recurring", IDB_SYMBOL_RECURRING, kNoColour},
    {IconSymbol::Private, L"private", IDB_SYMBOL_PRIVATE, kNoColour},
    {IconSymbol::Link, L"link", IDB_SYMBOL_LINK, kNoColour},
    {IconSymbol::Attendees, L"attendees", IDB_SYMBOL_ATTENDEES, kNoColour},
    {IconSymbol::ActiveTask, L"active_task", IDB_SYMBOL_ACTIVE_TASK, kNoColour},
    {IconSymbol::AllDayAppointment, L"allday_appt", IDB_SYMBOL_ALLDAY_APPT, kNoColour},
    {IconSymbol::AppointmentCounter, L"appt_counter", IDB_SYMBOL_APPT_COUNTER, kNoColour},
    {IconSymbol::TaskCounter, L"task_counter", IDB_SYMBOL_TASK_COUNTER, kNoColour},
    {IconSymbol::MailCounter, L"mail_counter", IDB_SYMBOL_MAIL_COUNTER, kNoColour},
    {IconSymbol::NotesCounter, L"notes_counter", IDB_SYMBOL_NOTES_COUNTER, kNoColour},
    {IconSymbol::ContactsCounter, L"contacts_counter", IDB_SYMBOL_CONTACTS_COUNTER, kNoColour},
    {IconSymbol::TaskChecked, L"task_checked", IDB_SYMBOL_TASK_CHECKED, kRed},
    {IconSymbol::TaskNotChecked, L"task_not_checked", IDB_SYMBOL_TASK_NOT_CHECKED, kRed},
    {IconSymbol::Anniversary, L"anniversary", IDB_SYMBOL_ANNIVERSARY, kNoColour},
    {IconSymbol::Birthday, L"birthday", IDB_SYMBOL_BIRTHDAY, kNoColour},
    {IconSymbol::TabsLeft, L"tabs_left", IDB_SYMBOL_TABS_LEFT, kGreen},
    {IconSymbol::TabsRight, L"tabs_right", IDB_SYMBOL_TABS_RIGHT, kGreen},
    {IconSymbol::Category, L"category_symbol", IDB_SYMBOL_CATEGORY, kNoColour},
    {IconSymbol::AttachedIcon, L"attached_icon_symbol", IDB_SYMBOL_ATTACHED_ICON, kNoColour},
};

UniqueBitmap LoadFirst(const WideString& base, std::initializer_list<const wchar_t*> endings) {
    UniqueBitmap bitmap;
    for (const wchar_t* ending : endings) {
        WideString path(base);
        path.Append(ending);
        bitmap = LoadImageFile(path.CStr());
        if (bitmap) break;
    }
    return bitmap;
}

SymbolImage LoadFromFolder(const WideString& folder, const wchar_t* stem,
                           COLORREF transparentColour) {
    WideString base(folder);
    base.Append(L"\\");
    base.Append(stem);
    SymbolImage image{LoadFirst(base, {L".png", L".tga"}), kClearColour};
    if (!image.bitmap && transparentColour != kNoColour)
        image = {LoadFirst(base, {L".bmp", L"_high.bmp"}), transparentColour};
    return image;
}

// The built-in bitmaps are clear where the files are, and white where those have no such colour.
SymbolImage LoadBuiltIn(UINT resourceId, COLORREF transparentColour) {
    const COLORREF clear = transparentColour == kNoColour ? kClearColour : transparentColour;
    // A null module would mean the platform's own bitmaps.
    if (!application.displayLibrary) return {UniqueBitmap(), clear};
    return {UniqueBitmap(LoadBitmap(application.displayLibrary, MAKEINTRESOURCE(resourceId))),
            clear};
}

} // namespace

void IconSet::LoadIconSet(const WideString& folder) {
    for (const SymbolSource& source : kSources) {
        LoadSymbol(source.symbol, folder, source.stem, source.builtIn, source.transparentColour);
    }
}

bool IconSet::LoadSymbol(IconSymbol slot, const WideString& folder, const wchar_t* stem,
                         UINT resourceId, COLORREF transparentColour) {
    SymbolImage image;
    if (!folder.IsEmpty()) image = LoadFromFolder(folder, stem, transparentColour);
    if (!image.bitmap) image = LoadBuiltIn(resourceId, transparentColour);
    SymbolImage& place = images_[static_cast<size_t>(slot)];
    place = std::move(image);
    return static_cast<bool>(place.bitmap);
}

void IconSet::Release() {
    for (SymbolImage& image : images_)
        image.bitmap.Reset();
}

void IconSet::Draw(HDC dc, IconSymbol symbol, int x, int y, int width, int height) const {
    const SymbolImage& image = (*this)[symbol];
    BITMAP size{};
    if (!image.bitmap || !GetObject(image.bitmap.Get(), sizeof(size), &size)) return;
    TransparentImage(dc, x, y, width, height, image.bitmap.Get(), 0, 0, size.bmWidth, size.bmHeight,
                     image.clearColour);
}
