#pragma once

#include <windows.h>

#include <aygshell.h>

// A full-screen window that has the user's attention until it is done: the frame of the program's
// own dialogs. A derived class builds the controls and answers the commands; IDOK comes from the
// navigation bar's ok button, IDCANCEL from the Escape key.
class ModalWindow {
  public:
    ModalWindow(const ModalWindow&) = delete;
    ModalWindow& operator=(const ModalWindow&) = delete;

    // Shows the window over `owner`, which is disabled meanwhile, and runs until it is done. Gives
    // what Finish was given; IDCANCEL when the window cannot be made or is closed another way.
    int Run(HWND owner, const wchar_t* className, const wchar_t* title);
    // The same with a dialog of the program's own resources: its controls are there, in the
    // program's font, when CreateControls is called to fill them. It runs in the program's loop, as
    // Up and Down would not leave a drop-down list in the platform's.
    int RunDialog(HWND owner, UINT dialogTemplate, const wchar_t* title);

  protected:
    ModalWindow() = default;
    ~ModalWindow() = default;

    virtual void CreateControls(HWND window) = 0;
    virtual void OnCommand(HWND window, UINT id, UINT notification) = 0;
    virtual void OnNotify(HWND window, const NMHDR& header);
    // A key pressed in one of the window's controls, before the navigation keys see it; false to
    // let it go on.
    virtual bool OnKey(HWND window, const MSG& message);
    // Places the controls after the window's size changed.
    virtual void Layout(HWND window);
    virtual void OnPaint(HWND window, HDC dc);

    // Ends Run with the given answer as soon as the current message is done.
    void Finish(int answer);

  private:
    static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static INT_PTR CALLBACK DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
    // False for a message that is the platform's to handle.
    bool Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void OnCreate(HWND window);
    int RunOver(HWND owner);
    void RunLoop();

    HWND window_ = nullptr;
    SHACTIVATEINFO activateInfo_{};
    int answer_ = 0; // 0 while the window runs.
};
