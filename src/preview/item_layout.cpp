#include "preview/item_layout.h"

#include <algorithm>

#include "preview/appointment_texts.h"

namespace {

constexpr int kMargin = 1;
constexpr int kIndent = 8;
constexpr int kIconPitch = 13;
constexpr int kLeadingRect = 12;
constexpr int kWithoutTimes = 2;
constexpr int kLabelGap = 4;
constexpr int kIconGap = 2;
constexpr int kNarrowestSubject = 20;

int Indentation(bool indentItems) {
    return indentItems ? kIndent : 0;
}

// From the end of what stands at the left to the beginning of the right icons.
void PlaceSubject(LineLayout& layout, const LineSpace& space, int left, ScaleUnits scale) {
    const int icons = space.rightIcons > 0 ? kIconPitch * space.rightIcons + kIconGap : 0;
    layout.subject = left;
    layout.subjectEnd = std::max(space.right - scale(icons), left + scale(kNarrowestSubject));
}

int BehindLabel(int label, int labelWidth, ScaleUnits scale) {
    return labelWidth > 0 ? label + labelWidth + scale(kLabelGap) : label;
}

} // namespace

int CountIcons(const LeftIcons& icons) {
    return static_cast<int>(std::ranges::count_if(icons, [](uint32_t flag) { return flag != 0; }));
}

const wchar_t* WidestTimeText(uint32_t format) {
    if (!HasTimeColumn(format)) return nullptr;
    return TimeFormOf(format) == TimeForm::Short ? L"XXMultiday:" : L"X22:22-Multiday:";
}

int LeftIconColumn(const ColumnSettings& settings) {
    const int icons =
        std::max(CountIcons(settings.appointmentIcons), CountIcons(settings.taskIcons));
    return kIconPitch * icons + Indentation(settings.indentItems);
}

int TimeColumn(const ColumnSettings& settings, int widestText, ScaleUnits scale) {
    const bool hasTimes = HasTimeColumn(settings.format);
    const int times = hasTimes ? widestText : scale(kWithoutTimes);
    const int rect = hasTimes && settings.leadingRects ? kLeadingRect : 0;
    return times + scale(LeftIconColumn(settings) + rect);
}

LineLayout LayOutAppointment(const LineSpace& space, const ColumnSettings& settings, int timeColumn,
                             int labelWidth, ScaleUnits scale) {
    const int rect = settings.leadingRects ? kLeadingRect : 0;
    const int indented = kMargin + Indentation(settings.indentItems);
    LineLayout layout;
    layout.leadingRect = space.left + scale(indented);
    layout.leftIcons = space.left + scale(indented + rect);
    if (HasTimeColumn(settings.format)) {
        layout.label = space.left + scale(kMargin + LeftIconColumn(settings) + rect);
        PlaceSubject(layout, space, space.left + scale(kMargin) + timeColumn, scale);
    } else {
        // The column does not hold the leading rectangle here.
        layout.label = space.left + scale(kMargin + rect) + timeColumn;
        PlaceSubject(layout, space, BehindLabel(layout.label, labelWidth, scale), scale);
    }
    return layout;
}

LineLayout LayOutTask(const LineSpace& space, bool indentItems, const LeftIcons& icons,
                      int labelWidth, ScaleUnits scale) {
    const int indented = kMargin + Indentation(indentItems);
    LineLayout layout;
    layout.leftIcons = space.left + scale(indented);
    layout.label = space.left + scale(indented + kIconPitch * CountIcons(icons));
    PlaceSubject(layout, space, BehindLabel(layout.label, labelWidth, scale), scale);
    return layout;
}

int LeftIconPlace(int leftIcons, int number, ScaleUnits scale) {
    return leftIcons + scale(kIconPitch * number);
}

int RightIconPlace(int right, int number, ScaleUnits scale) {
    return right - scale(kIconPitch * (number + 1));
}
