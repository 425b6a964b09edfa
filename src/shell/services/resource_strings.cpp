#include "shell/services/resource_strings.h"

#include <iterator>

#include "shell/services/application.h"

int LoadResString(HMODULE library, UINT id, WideString& text) {
    static wchar_t buffer[1024];

    // The platform takes a null module for the program itself, whose texts are none of the user's.
    const int length = library == nullptr
                           ? 0
                           : LoadString(library, id, buffer, static_cast<int>(std::size(buffer)));
    text.Assign(buffer, length > 0 ? static_cast<size_t>(length) : 0);
    return static_cast<int>(text.Length());
}

WideString LanguageText(UINT id) {
    WideString text;
    LoadResString(application.languageLibrary, id, text);
    return text;
}
