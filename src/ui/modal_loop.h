#pragma once

#include <windows.h>

// Gives one window the user's attention until it is done.
class ModalLoop {
  public:
    ModalLoop(const ModalLoop&) = delete;
    ModalLoop& operator=(const ModalLoop&) = delete;

  protected:
    ModalLoop() = default;
    ~ModalLoop() = default;

    // Handles messages until Finish, with `owner` disabled, and destroys the window. Gives what
    // Finish was given; IDCANCEL for a null window and for one that goes another way.
    int RunOver(HWND owner, HWND window);

    // Ends RunOver with the given answer as soon as the current message is done.
    void Finish(int answer);

    // To be called when the window is destroyed, by whomever.
    void OnDestroyed();

    // A key pressed in one of the window's controls, before the navigation keys see it; false to
    // let it go on.
    virtual bool OnKey(HWND window, const MSG& message);

  private:
    void HandleMessages();
    [[nodiscard]] bool TranslateKey(const MSG& message);

    HWND window_ = nullptr;
    int answer_ = 0; // 0 while the window runs.
};
