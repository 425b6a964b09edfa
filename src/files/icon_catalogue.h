#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "shell/services/wide_string.h"

// The icon files, bitmaps in the icon folders, that a picture can be chosen from: sorted by name
// without regard to capitals; icons of one name stand in the order in which they were found.
class IconCatalogue {
  public:
    // Finds the icons of the program's own folder, of the additional icons folder, and of the
    // folders that the icon sets register. Does nothing when that was done before, unless the
    // additional folder is another one now. Shows the wait cursor.
    void BuildIconCatalogue();
    // Adds the .bmp files of a folder (with or without a trailing backslash); none when it cannot
    // be searched.
    void AddIconFolder(const WideString& folder);

    [[nodiscard]] size_t Count() const { return icons_.size(); }
    // The file's name without its extension.
    [[nodiscard]] const WideString& Name(size_t index) const { return icons_[index].name; }
    [[nodiscard]] WideString Path(size_t index) const;
    // The icon of a path, in capitals or not.
    [[nodiscard]] std::optional<size_t> Find(const WideString& path) const;

  private:
    struct Icon {
        WideString name;
        size_t folder; // Of folders_.
    };

    std::vector<Icon> icons_;
    std::vector<WideString> folders_;
    bool isBuilt_ = false;
    WideString additionalFolder_; // That it was built with.
};

extern IconCatalogue iconCatalogue;
