#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

// Works the next dialog of a window class from inside its own loop: one step at each turn of a
// timer, while this lives, or the test fails. A dialog that the last step leaves open is cancelled,
// as a test must not hang.
class DialogSteps {
  public:
    using Step = std::function<void(HWND dialog)>;

    DialogSteps(const wchar_t* className, std::vector<Step> steps);
    DialogSteps(const DialogSteps&) = delete;
    DialogSteps& operator=(const DialogSteps&) = delete;
    ~DialogSteps();

  private:
    static void CALLBACK OnTimer(HWND window, UINT message, UINT_PTR timer, DWORD time);
    void TakeStep();

    const wchar_t* className_;
    std::vector<Step> steps_;
    size_t next_ = 0;
    bool busy_ = false; // A step's own loop, as of a message box, turns the timer as well.
    UINT_PTR timer_;
};

// Steps that press a button, such as IDOK, and that write into a field before.
DialogSteps::Step Answer(WPARAM button);
DialogSteps::Step Write(int id, const std::wstring& text, WPARAM button = IDOK);

// The texts of a list view's rows, parted by "|".
std::wstring RowsOf(HWND list);
// Selects the row with a text, as a tap does before it acts; nothing when there is none.
void SelectRow(HWND list, const std::wstring& text);
