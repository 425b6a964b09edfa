#pragma once

#include <windows.h>

#include "ui/modal_loop.h"

// A full-screen dialog made from a template among the program's own resources. It runs in the
// program's own loop: the platform's would trap the directional pad in a drop-down list.
class TemplateDialog : protected ModalLoop {
  protected:
    TemplateDialog() = default;
    ~TemplateDialog() = default;

    // Runs it over `owner`, which is disabled meanwhile. Gives what Finish was given; IDCANCEL when
    // it cannot be made or goes another way.
    int RunTemplate(HWND owner, UINT dialogTemplate, UINT titleId);

    // The dialog fills the screen by now, its controls in the program's font.
    virtual void OnInit(HWND dialog) = 0;
    virtual void Layout(HWND dialog) = 0;
    virtual void OnCommand(HWND dialog, UINT id) = 0;
    // True when it has painted the dialog itself.
    virtual bool OnPaint(HWND dialog);
    virtual void OnDestroy();

  private:
    static INT_PTR CALLBACK DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR Dispatch(HWND dialog, UINT message, WPARAM wParam);
    void FillScreen(HWND dialog) const;

    UINT titleId_ = 0;
};
