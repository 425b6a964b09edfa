#include <cstdarg>
#include <cwchar>
#include <iterator>

#include "shell/services/wide_string.h"

// One buffer for all formatting is enough for a program of one thread, and spares its small stack.
// Its last character is never written and so ends a text that is cut.
void WideString::Format(const wchar_t* format, ...) {
    static wchar_t shared[1024];

    va_list arguments;
    va_start(arguments, format);
    // Not the standard vswprintf, whose %s is a narrow text in this toolkit. The platform's own
    // call takes a wide one; a text that just fits, or does not, it leaves without a terminator.
    _vsnwprintf(shared, std::size(shared) - 1, format, arguments);
    va_end(arguments);
    Assign(shared);
}
