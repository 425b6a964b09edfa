#include "fuzz/fuzzing.h"
#include "shell/services/number_text.h"

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::vector<wchar_t> exact = TextOf(data, size);
    const uint32_t number = NumberFromDecimalText({exact.data(), exact.size()});
    const std::wstring text(exact.begin(), exact.end());
    const auto asSigned = static_cast<int32_t>(number);
    Require(NumberFromDecimalText(DecimalText(asSigned).View()) == number, "shown as signed");
    Require(NumberFromDecimalText(std::to_wstring(number)) == number, "shown as unsigned");
    Require(NumberFromText(L"0x" + text) == NumberFromText(L"0x" + text + L"\xFF11"), "its end");
    return 0;
}
