#include "preview/appointment_texts.h"

namespace {

enum class LocationPlace { None, BehindSubject, SecondText };

LocationPlace LocationPlaceOf(uint32_t format) {
    switch (format) {
    case 1:
    case 2:
    case 11:
        return LocationPlace::SecondText;
    case 3:
    case 4:
    case 7:
    case 8:
        return LocationPlace::BehindSubject;
    default:
        return LocationPlace::None;
    }
}

void AppendEnclosed(WideString& text, const wchar_t* before, const WideString& inner,
                    const wchar_t* after) {
    if (inner.IsEmpty()) return;
    text.Append(before);
    text.Append(inner.CStr());
    text.Append(after);
}

} // namespace

AppointmentTexts TextsOfAppointment(uint32_t format, const WideString& subject,
                                    const WideString& location, bool allDay,
                                    const WideString& timeText) {
    const WideString time = allDay ? WideString() : timeText;
    AppointmentTexts texts{.label = {}, .subject = subject, .second = {}};
    if (HasSecondLine(format)) {
        AppendEnclosed(texts.second, L"[", time, L"]");
    } else {
        AppendEnclosed(texts.label, L"", time, L":");
    }
    const LocationPlace place = LocationPlaceOf(format);
    if (place == LocationPlace::BehindSubject) {
        AppendEnclosed(texts.subject, L" (", location, L")");
    } else if (place == LocationPlace::SecondText) {
        AppendEnclosed(texts.second, HasSecondLine(format) ? L" (" : L"(", location, L")");
    }
    return texts;
}
