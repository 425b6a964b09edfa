#include "files/backup_reader.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/memory_stream.h"

namespace {

// Keeps what it receives as one text.
class Recorder final : public BackupReceiver {
  public:
    bool BeginKey(std::wstring_view path) override {
        log += L"[" + std::wstring(path) + L"]";
        return path != L"refused";
    }
    void SetText(std::wstring_view name, std::wstring_view text) override {
        log += std::wstring(name) + L"='" + std::wstring(text) + L"';";
    }
    void SetNumber(std::wstring_view name, uint32_t number) override {
        log += std::wstring(name) + L"=" + std::to_wstring(number) + L";";
    }
    void SetCategory(const BackupCategory& category) override {
        log += L"<" + std::wstring(category.name) + Number(category.filters) +
               Number(category.colour) + L">";
    }
    void SetFilter(const BackupFilter& filter) override {
        log += L"{" + std::wstring(filter.title.value_or(L"?")) + Number(filter.index) +
               Number(filter.visible) + Number(filter.includeUncategorized) + L"}";
    }

    std::wstring log;

  private:
    static std::wstring Number(std::optional<uint32_t> number) {
        return number ? L" " + std::to_wstring(*number) : L" ?";
    }
};

TEST(BackupReader, ReadsSections) {
    struct Case {
        const char* what;
        std::string file;
        const wchar_t* log;
        bool succeeds;
    };
    const Case cases[] = {
        {"LF and CR LF",
         "\n[A]\n\"t\"=\"x\"\n\"n\"=dword:-1\r\n\r\n[A\\B]\r\n\"tt\"=\"\"\r\n\"t\"=\"\"\r\n",
         L"[A]t='x';n=4294967295;[A\\B]tt='';='';", true},
        {"empty", "", L"", false},
        {"no empty line", "[A]\n\"n\"=dword:1\n", L"", false},
        {"a byte order mark", "\xEF\xBB\xBF\n[A]\n", L"", false},
        {"lines before a header", "\n;hello\n\n[A]\n\"n\"=dword:1\n", L"[A]n=1;", true},
        {"a refused key", "\n[A]\n\n[refused]\n\"n\"=dword:1\n\n[B]\n", L"[A][refused]", false},
        {"nonsense in a key", "\n[A]\nhello\n\"n\"=hex:00\n[B]\n\"n\"=dword:1\n", L"[A]n=1;", true},
        {"a malformed text", "\n[A]\n\"a\"=\"b\n\"c\"=\"d\"\n", L"[A]='';c='d';", true},
        {"text before number", "\n[A]\n\"a\"=\"\"=dword:5\"\n", L"[A]a='\"=dword:5';", true},
        {"a line that fills the buffer ends the section",
         "\n[A]\n" + std::string(1023, 'x') + "\n\"n\"=dword:1\n", L"[A]", true},
        {"categories",
         "\n[::Categories::]\n\"Category\"=\"W\"\n\"FiltersFlag\"=dword:5\n"
         "\"Color\"=dword:255\n\"Category\"=\"X\"\n\"F\"=dword:1\n"
         "\"Extra\"=dword:2\n\"cOLOR\"=dword:3\n",
         L"<W 5 255><X 1 3>", true},
        {"a category without a colour swallows what follows",
         "\n[::Categories::]\n\"Category\"=\"W\"\n\"F\"=dword:5\n\"Category\"=\"X\"\n"
         "\"F\"=dword:6\n\"Color\"=dword:7\n\n[A]\n",
         L"<W 5 6>", true},
        {"a category cut short", "\n[::Categories::]\n\"Category\"=\"W\"\n\"F\"=dword:5\n", L"",
         true},
        {"filters",
         "\n[::Filters::]\n\"FilterName\"=\"a \"b\"\"\n\"Index\"=dword:2\n"
         "\"VisibleState\"=dword:0\n\"Other\"=dword:9\nbad\nbad\n\"V\"=dword:1\n"
         "\"U\"=dword:1\n\n[A]\n\n[::filters::]\n",
         L"{a \"b\" 2 0 9}{? ? 1 1}[A][::filters::]", true},
    };
    for (const Case& c : cases) {
        MemorySource source(c.file, 7);
        Recorder recorder;
        EXPECT_EQ(ReadBackup(source, recorder), c.succeeds) << c.what;
        EXPECT_EQ(recorder.log, c.log) << c.what;
    }
}

} // namespace
