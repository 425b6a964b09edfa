#pragma once

#include <windows.h>

#include <aygshell.h>

#include "ui/modal_loop.h"

// A full-screen window that has the user's attention until it is done: the frame of the program's
// own dialogs. A derived class builds the controls and answers the commands; IDOK comes from the
// navigation bar's ok button, IDCANCEL from the Escape key.
class ModalWindow : private ModalLoop {
  public:
    // Shows the window over `owner`, which is disabled meanwhile, and runs until it is done. Gives
    // what Finish was given; IDCANCEL when the window cannot be made or is closed another way.
    int Run(HWND owner, const wchar_t* className, const wchar_t* title);

  protected:
    ModalWindow() = default;
    ~ModalWindow() = default;

    virtual void CreateControls(HWND window) = 0;
    virtual void OnCommand(HWND window, UINT id, UINT notification) = 0;
    virtual void OnNotify(HWND window, const NMHDR& header);
    // The mark of a track bar was moved.
    virtual void OnScroll(HWND window, HWND bar);
    using ModalLoop::OnKey;
    // Places the controls after the window's size changed.
    virtual void Layout(HWND window);
    virtual void OnPaint(HWND window, HDC dc);

    // Ends Run with the given answer as soon as the current message is done.
    using ModalLoop::Finish;

  private:
    static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void OnCreate(HWND window);

    SHACTIVATEINFO activateInfo_{};
};
