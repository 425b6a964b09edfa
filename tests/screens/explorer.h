// Leads through the whole program by its keys: every page, tab and option, every dialog that a
// button or a menu opens, and what opens from there. Knows no page by name.
#pragma once

#include <memory>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "tests/screens/program_thread.h"

class Explorer {
  public:
    // Boxes are ticked and unticked on the way if `ticks` says so.
    Explorer(ProgramThread& program, bool ticks) : program_(program), ticks_(ticks) {}
    virtual ~Explorer() = default;
    Explorer(const Explorer&) = delete;
    Explorer& operator=(const Explorer&) = delete;

    void VisitProgram();

    // The classes of the windows that were visited, dialogs with the id of their first control.
    std::set<std::wstring> visited;

  protected:
    // A window shows a set of controls that it has not shown so far.
    virtual void OnSight(HWND window) = 0;

    // The control of a window that has the focus; the test fails when none has it that can.
    HWND Focused(HWND window);
    // Goes round by keys, past the rows of lists, until the control has the focus.
    void FocusByKeys(HWND window, HWND control);
    // On to the next control (or back), whatever has the focus.
    void Leave(HWND control, bool forward);
    // Where the test is, for what it says of a fault.
    [[nodiscard]] std::string Place(HWND window) const;

    ProgramThread& program_;

  private:
    using Sight = std::vector<std::tuple<int, bool, bool>>; // Each control: id, shown, enabled.

    void VisitPages();
    void VisitMenuEntry(HWND window, WORD softKey, int entry);
    void Visit(HWND window);
    void VisitTab(HWND window);
    void VisitRows(HWND window, HWND list);
    void Look(HWND window);
    void PressButtons(HWND window);
    // What a key opened over a window: visited and left again by Escape.
    void VisitOpened(HWND window);
    void CloseOpened(HWND opened);

    bool ticks_;
    std::set<std::pair<std::wstring, Sight>> sights_;
    std::set<std::tuple<std::wstring, int, int>> pressed_; // Window, tab, control.
};

// The window's tab strip, or null, and its selected tab.
[[nodiscard]] HWND StripOf(HWND window);
[[nodiscard]] int TabOf(HWND window);
