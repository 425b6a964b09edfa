#pragma once

#include <windows.h>

#include <atomic>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

// Works the windows of this thread by random input that a person could give: taps, keys, choices,
// texts, ok and cancel, a screen that turns. It acts by a timer, so that every loop of the program
// is worked, and only when nothing else waits to be handled. Each step is printed, with the seed:
// the same seed on a device in the same state gives the same input.
class RandomUser {
  public:
    explicit RandomUser(uint32_t seed);
    RandomUser(const RandomUser&) = delete;
    RandomUser& operator=(const RandomUser&) = delete;
    ~RandomUser();

    // How much input a program's main window and what it opens get before they are closed with ok.
    void Begin(HWND mainWindow, int steps);
    [[nodiscard]] int StepsMade() const { return stepsMade_; }
    [[nodiscard]] bool IsActing() const { return StepsMade() < lastStep_; }

  private:
    static void CALLBACK OnTimer(HWND window, UINT message, UINT_PTR timer, DWORD time);
    void TakeStep();
    void Act(HWND front);
    void TapControl(HWND front);
    void TapScreen(HWND front);
    void TapAt(POINT place);
    void PressKey(HWND front);
    void TypeCharacters(HWND front);
    void ChooseEntry(HWND front);
    void ChangeTab(HWND front);
    void ReplaceText(HWND front);
    void Answer(HWND front);
    void TurnScreen(HWND front);
    void ShowInputPanel(HWND front);

    int Below(int limit);
    HWND Pick(const std::vector<HWND>& windows);
    std::wstring SomeText();
    void Note(const std::string& step, HWND window) const;

    uint32_t seed_;
    std::mt19937 random_;
    HWND mainWindow_ = nullptr;
    UINT_PTR timer_;
    std::atomic<int> stepsMade_ = 0; // A watchdog looks on.
    int lastStep_ = 0;
};
