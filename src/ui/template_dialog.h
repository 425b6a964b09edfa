#pragma once

#include <windows.h>

#include "ui/modal_loop.h"

// A dialog made from a template. It runs in the program's own loop: the platform's would trap the
// directional pad in a drop-down list or a field.
class TemplateDialog : protected ModalLoop {
  protected:
    TemplateDialog() = default;
    ~TemplateDialog() = default;

    // Runs the template of a module over `owner`, which is disabled meanwhile. Gives what Finish
    // was given; IDCANCEL when it cannot be made or goes another way.
    int RunTemplate(HWND owner, HMODULE module, UINT dialogTemplate);

    // For OnInit: spreads the dialog over the screen, with the navigation bar's ok button and
    // without the input panel, its controls in the program's font.
    static void FillScreen(HWND dialog, UINT titleId);

    // Layout follows it, as it follows every change of the dialog's size or the screen's.
    virtual void OnInit(HWND dialog) = 0;
    virtual void Layout(HWND dialog) = 0;
    virtual void OnCommand(HWND dialog, UINT id) = 0;
    // True when it has painted the dialog itself.
    virtual bool OnPaint(HWND dialog);
    virtual void OnDestroy();

  private:
    static INT_PTR CALLBACK DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR Dispatch(HWND dialog, UINT message, WPARAM wParam);
};
