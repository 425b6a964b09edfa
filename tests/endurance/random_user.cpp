#include "tests/endurance/random_user.h"

#include <aygshell.h>
#include <commctrl.h>
#include <stand_in.h>

#include <cstdio>

#include "resource_ids.h"

namespace {
RandomUser* current;

std::wstring ClassOf(HWND window) {
    wchar_t name[64] = L"";
    GetClassName(window, name, 64);
    return name;
}

bool IsOfThisThread(HWND window) {
    return window && GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId();
}

// The window that has the user's attention: the topmost that is not disabled by another. Bars and
// panels of the shell stand beside it.
HWND FrontWindow() {
    const auto visit = [](HWND window, LPARAM found) -> BOOL {
        if (!IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
        const std::wstring name = ClassOf(window);
        if (name.starts_with(L"StandIn") || name == L"ToolTipWindow" || name == L"ComboLBox")
            return TRUE;
        *reinterpret_cast<HWND*>(found) = window;
        return FALSE;
    };
    HWND front = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), visit, reinterpret_cast<LPARAM>(&front));
    return front;
}

// What can be tapped in a window; of a class where one is given.
std::vector<HWND> ControlsOf(HWND front, const wchar_t* className = nullptr) {
    std::vector<HWND> controls;
    const auto visit = [](HWND window, LPARAM found) -> BOOL {
        if (IsWindowVisible(window) && IsWindowEnabled(window))
            reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
        return TRUE;
    };
    EnumChildWindows(front, visit, reinterpret_cast<LPARAM>(&controls));
    if (className) {
        std::erase_if(controls, [&](HWND window) {
            return lstrcmpi(ClassOf(window).c_str(), className) != 0;
        });
    }
    return controls;
}

LPARAM Packed(POINT place) {
    return MAKELPARAM(place.x, place.y);
}
} // namespace

RandomUser::RandomUser(uint32_t seed)
    : seed_(seed), timer_(SetTimer(nullptr, 0, USER_TIMER_MINIMUM, OnTimer)) {
    current = this;
}

RandomUser::~RandomUser() {
    KillTimer(nullptr, timer_);
    StandInSetScreen(0, 0);
    current = nullptr;
}

void RandomUser::Begin(HWND mainWindow, int steps) {
    mainWindow_ = mainWindow;
    lastStep_ = stepsMade_ + steps;
}

void CALLBACK RandomUser::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    if (current) current->TakeStep();
}

void RandomUser::TakeStep() {
    HWND front = FrontWindow();
    if (!front) return;
    if (IsActing()) {
        // Each step from the start, so that one that went another way leaves the next ones alone.
        random_.seed(seed_ * 1'000'003 + static_cast<uint32_t>(++stepsMade_));
        Act(front);
    } else {
        // A menu or an open list is what the key closes first, a message box is told no.
        PostMessage(GetFocus() ? GetFocus() : front, WM_KEYDOWN, VK_ESCAPE, 0);
        const bool isMessage = GetDlgItem(front, IDNO) != nullptr;
        PostMessage(front, WM_COMMAND, isMessage ? IDNO : IDOK, 0);
    }
}

void RandomUser::Act(HWND front) {
    struct Habit {
        int share; // Of a hundred steps.
        void (RandomUser::*act)(HWND front);
    };
    constexpr Habit kHabits[] = {
        {36, &RandomUser::TapControl}, {10, &RandomUser::TapScreen},
        {20, &RandomUser::PressKey},   {4, &RandomUser::TypeCharacters},
        {9, &RandomUser::ChooseEntry}, {8, &RandomUser::ChangeTab},
        {4, &RandomUser::ReplaceText}, {6, &RandomUser::Answer},
        {2, &RandomUser::TurnScreen},  {1, &RandomUser::ShowInputPanel},
    };
    int choice = Below(100);
    const Habit* habit = kHabits;
    while (choice >= habit->share)
        choice -= habit++->share;
    (this->*habit->act)(front);
}

int RandomUser::Below(int limit) {
    return static_cast<int>(random_() % static_cast<uint32_t>(limit));
}

HWND RandomUser::Pick(const std::vector<HWND>& windows) {
    return windows.empty() ? nullptr
                           : windows[static_cast<size_t>(Below(static_cast<int>(windows.size())))];
}

void RandomUser::Note(const std::string& step, HWND window) const {
    std::printf("seed %u step %d: %s %ls %d in %ls\n", seed_, stepsMade_.load(), step.c_str(),
                ClassOf(window).c_str(), GetDlgCtrlID(window),
                ClassOf(GetAncestor(window, GA_ROOT)).c_str());
    std::fflush(stdout);
}

void RandomUser::TapControl(HWND front) {
    HWND control = Pick(ControlsOf(front));
    RECT place{};
    if (!control || !GetWindowRect(control, &place) || IsRectEmpty(&place)) return;
    TapAt({place.left + Below(place.right - place.left),
           place.top + Below(place.bottom - place.top)});
}

// Reaches the bars, the open lists and menus.
void RandomUser::TapScreen(HWND) {
    TapAt({Below(GetSystemMetrics(SM_CXSCREEN)), Below(GetSystemMetrics(SM_CYSCREEN))});
}

// Straight to the window that stands there, or to the one that has caught the stylus.
void RandomUser::TapAt(POINT place) {
    HWND window = GetCapture() ? GetCapture() : WindowFromPoint(place);
    if (!IsOfThisThread(window) || !IsWindowEnabled(GetAncestor(window, GA_ROOT))) return;
    const LRESULT part = SendMessage(window, WM_NCHITTEST, 0, Packed(place));
    if (part == HTVSCROLL || part == HTHSCROLL) {
        Note("scroll", window);
        PostMessage(window, WM_NCLBUTTONDOWN, static_cast<WPARAM>(part), Packed(place));
        PostMessage(window, WM_LBUTTONUP, 0, Packed(place));
        return;
    }
    ScreenToClient(window, &place);
    const int kind = Below(10);
    Note(kind == 0 ? "drag" : kind == 1 ? "double tap" : "tap", window);
    PostMessage(window, WM_LBUTTONDOWN, MK_LBUTTON, Packed(place));
    if (kind == 0) {
        for (int i = 0; i < 3; ++i) {
            place.x += Below(41) - 20;
            place.y += Below(41) - 20;
            PostMessage(window, WM_MOUSEMOVE, MK_LBUTTON, Packed(place));
        }
    }
    PostMessage(window, WM_LBUTTONUP, 0, Packed(place));
    if (kind != 1) return;
    PostMessage(window, WM_LBUTTONDBLCLK, MK_LBUTTON, Packed(place));
    PostMessage(window, WM_LBUTTONUP, 0, Packed(place));
}

void RandomUser::PressKey(HWND) {
    constexpr WPARAM kKeys[] = {VK_DOWN,   VK_DOWN,   VK_DOWN,  VK_UP,     VK_UP,
                                VK_LEFT,   VK_LEFT,   VK_RIGHT, VK_RIGHT,  VK_TAB,
                                VK_RETURN, VK_RETURN, VK_SPACE, VK_PRIOR,  VK_NEXT,
                                VK_HOME,   VK_END,    VK_BACK,  VK_DELETE, VK_ESCAPE};
    HWND focus = GetFocus();
    if (!IsOfThisThread(focus)) return;
    const WPARAM key = kKeys[Below(static_cast<int>(std::size(kKeys)))];
    // Where it leads to the end of the program, Escape is pressed as seldom as ok.
    if (key == VK_ESCAPE && focus == mainWindow_) return;
    Note("key " + std::to_string(key), focus);
    PostMessage(focus, WM_KEYDOWN, key, 0);
    PostMessage(focus, WM_KEYUP, key, 0);
}

void RandomUser::TypeCharacters(HWND) {
    constexpr wchar_t kCharacters[] = L"0123456789abcXYZ \\/:*.%&äßЖ\x200F";
    HWND focus = GetFocus();
    if (!IsOfThisThread(focus)) return;
    Note("type", focus);
    for (int count = 1 + Below(4); count > 0; --count)
        PostMessage(focus, WM_CHAR,
                    kCharacters[Below(static_cast<int>(std::size(kCharacters)) - 1)], 0);
}

void RandomUser::ChooseEntry(HWND front) {
    HWND combo = Pick(ControlsOf(front, WC_COMBOBOX));
    const auto count = combo ? static_cast<int>(SendMessage(combo, CB_GETCOUNT, 0, 0)) : 0;
    if (count == 0) return TapControl(front);
    Note("choose", combo);
    SendMessage(combo, CB_SETCURSEL, static_cast<WPARAM>(Below(count)), 0);
    PostMessage(GetParent(combo), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(combo), CBN_SELCHANGE),
                reinterpret_cast<LPARAM>(combo));
}

void RandomUser::ChangeTab(HWND front) {
    HWND strip = Pick(ControlsOf(front, WC_TABCONTROL));
    const auto count = strip ? static_cast<int>(SendMessage(strip, TCM_GETITEMCOUNT, 0, 0)) : 0;
    if (count == 0) return TapControl(front);
    Note("tab", strip);
    PostMessage(strip, TCM_SETCURFOCUS, static_cast<WPARAM>(Below(count)), 0);
}

std::wstring RandomUser::SomeText() {
    constexpr const wchar_t* kPieces[] = {
        L"",      L"0",   L"7",   L"23",  L"4294967296",    L"-1",
        L"mine",  L"\\",  L"..",  L"*.*", L"%s%n",          L"&",
        L"Größe", L"Дом", L"a b", L"\"",  L"Program Files", L"hh:mm"};
    std::wstring text;
    for (int count = Below(4); count > 0; --count)
        text += kPieces[Below(static_cast<int>(std::size(kPieces)))];
    return Below(20) == 0 ? std::wstring(300, L'w') + text : text;
}

void RandomUser::ReplaceText(HWND front) {
    HWND edit = Pick(ControlsOf(front, WC_EDIT));
    if (!edit) return TapControl(front);
    Note("write into", edit);
    SetWindowText(edit, SomeText().c_str());
}

// Confirms or cancels; rarely what would end the program.
void RandomUser::Answer(HWND front) {
    if (front == mainWindow_ && Below(20) != 0) {
        constexpr WPARAM kCommands[] = {IDC_ABOUT, IDC_EXPORT_BACKUP, IDC_IMPORT_BACKUP};
        const WPARAM command = kCommands[Below(static_cast<int>(std::size(kCommands)))];
        Note("command " + std::to_string(command), front);
        PostMessage(front, WM_COMMAND, command, 0);
        return;
    }
    constexpr WPARAM kAnswers[] = {IDOK, IDOK, IDCANCEL, IDYES, IDNO};
    const WPARAM answer = kAnswers[Below(static_cast<int>(std::size(kAnswers)))];
    const bool hasButton =
        answer == IDOK || answer == IDCANCEL || GetDlgItem(front, static_cast<int>(answer));
    Note("answer " + std::to_string(answer), front);
    if (hasButton) PostMessage(front, WM_COMMAND, answer, 0);
}

void RandomUser::TurnScreen(HWND front) {
    Note("turn", front);
    StandInSetScreen(GetSystemMetrics(SM_CYSCREEN), GetSystemMetrics(SM_CXSCREEN));
}

void RandomUser::ShowInputPanel(HWND front) {
    Note("panel", front);
    SipShowIM(Below(2) == 0 ? SIPF_OFF : SIPF_ON);
}
