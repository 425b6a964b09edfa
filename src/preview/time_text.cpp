#include "preview/time_text.h"

#include <cmath>

namespace {

constexpr wchar_t kMultiDay[] = L"MultiDay";

struct Minutes {
    int64_t start;
    int64_t end;
    int64_t dayStart;
    int64_t dayEnd;

    explicit Minutes(const AppointmentTime& time)
        : start(MinuteOf(time.start)),
          end(MinuteOf(time.end)),
          dayStart(time.day * kMinutesPerDay),
          dayEnd(dayStart + kMinutesPerDay) {}

    [[nodiscard]] bool StartsBeforeDay() const { return start < dayStart; }
    [[nodiscard]] bool EndsAfterDay() const { return end >= dayEnd; }
    [[nodiscard]] bool EndsAtMidnight() const { return end % kMinutesPerDay == 0; }
};

// The first day shows where the appointment ends when that is on the day, at a midnight or in the
// same night.
bool FirstDayShowsEnd(const Minutes& minutes, uint32_t humanHours) {
    return !minutes.EndsAfterDay() || minutes.EndsAtMidnight() ||
           minutes.dayEnd + int64_t{humanHours} * 60 > minutes.end;
}

WideString FullText(const AppointmentTime& time, const Minutes& minutes) {
    const bool lastDay = minutes.StartsBeforeDay();
    const bool showsEnd = lastDay || FirstDayShowsEnd(minutes, time.humanHours);
    WideString text(lastDay ? kMultiDay : time.startText);
    text.Append(L"-");
    text.Append(showsEnd ? time.endText : kMultiDay);
    return text;
}

WideString ShortText(const AppointmentTime& time, const Minutes& minutes) {
    if (!minutes.StartsBeforeDay()) return time.startText;
    WideString text(L">");
    text.Append(time.endText);
    return text;
}

} // namespace

int64_t MinuteOf(VariantTime time) {
    return static_cast<int64_t>(std::floor(time * kMinutesPerDay + 0.5));
}

WideString TimeText(const AppointmentTime& time, TimeForm form) {
    const Minutes minutes(time);
    if (minutes.StartsBeforeDay() && minutes.EndsAfterDay()) return kMultiDay;
    return form == TimeForm::Short ? ShortText(time, minutes) : FullText(time, minutes);
}

const wchar_t* TimePicture(bool twelveHourClock, bool twoDigits) {
    if (twelveHourClock) return twoDigits ? L"hh:mmt" : L"h:mmt";
    return twoDigits ? L"HH:mm" : L"H:mm";
}
