#pragma once

#include <windows.h>

#include <atomic>
#include <cstdint>
#include <deque>
#include <random>
#include <string>
#include <vector>

// Works the windows of this thread by random input that a person could give: taps, keys, choices,
// texts, ok and cancel, a screen that turns. It acts by a timer, so that every loop of the program
// is worked, and only when nothing else waits to be handled. The same seed on a device in the same
// state gives the same input.
class RandomUser {
  public:
    explicit RandomUser(uint32_t seed);
    RandomUser(const RandomUser&) = delete;
    RandomUser& operator=(const RandomUser&) = delete;
    ~RandomUser();

    // The window that turns with the screen, and how much input it and what it opens get before
    // they are closed with ok.
    void Begin(HWND mainWindow, int steps);
    [[nodiscard]] int StepsMade() const { return stepsMade_; }
    [[nodiscard]] bool IsActing() const { return StepsMade() < lastStep_; }

    // The seed and the latest steps.
    [[nodiscard]] std::string Story() const;

  private:
    static void CALLBACK OnTimer(HWND window, UINT message, UINT_PTR timer, DWORD time);
    void TakeStep();
    void Act(HWND front);
    void TapControl(HWND front);
    void TapScreen();
    void TapAt(POINT place);
    void PressKey();
    void TypeCharacters();
    void ChooseEntry(HWND front);
    void ChangeTab(HWND front);
    void ReplaceText(HWND front);
    void Answer(HWND front);
    void TurnScreen();
    void ShowInputPanel();

    int Below(int limit);
    HWND Pick(const std::vector<HWND>& windows);
    std::wstring SomeText();
    void Note(const std::string& step, HWND window);

    uint32_t seed_;
    std::mt19937 random_;
    HWND mainWindow_ = nullptr;
    UINT_PTR timer_;
    std::atomic<int> stepsMade_ = 0; // A watchdog looks on.
    int lastStep_ = 0;
    bool isTurned_ = false;
    std::deque<std::string> latest_;
};
