#pragma once

#include <windows.h>

#include <array>

#include "shell/services/handles.h"

// Small pictures of the rows of a list, made when they are first seen. Only so many are kept as a
// screen can show; a row that was long out of sight is loaded again.
class Thumbnails {
  public:
    Thumbnails();

    // What the list draws from; it stays this object's.
    [[nodiscard]] HIMAGELIST Images() const { return images_.Get(); }
    // The number of the image that shows the picture of a row, blank when there is none;
    // I_IMAGENONE where no image can be made. A row's path must always be the same.
    [[nodiscard]] int ImageOf(int row, const wchar_t* path);

  private:
    static constexpr int kKept = 64; // More rows than any screen has.

    UniqueImageList images_;
    std::array<int, kKept> rows_; // The row that each image shows; −1 for none.
};
