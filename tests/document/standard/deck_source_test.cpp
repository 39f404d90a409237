#include "document/standard/deck_source.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

TEST(EditedSource, KeepsTheBytesOfLinesThatAreAsTheyWere)
{
    const std::string rows[][4] = {
        {"<wml>\r\n <p>\xC3\xA4\xE2\x86\x92</p>\n</wml>", "", "", ""},
        {"<wml>\n <p>\xC3\xA4\xE2\x86\x92</p>\n a\r\n</wml>\n", " a", " \xC3\xA4",
            "<wml>\n <p>\xC3\xA4\xE2\x86\x92</p>\n \xC3\xA4\n</wml>\n"},
        {"<?xml version=\"1.0\" encoding=\"iso-8859-1\"?>\n\xE4?\n", "?\r\n",
            "\xC3\xB6\xE2\x86\x92\r\n",
            "<?xml version=\"1.0\" encoding=\"iso-8859-1\"?>\n\xE4\xF6&#8594;\n"},
        {"\xE2\x80\xA8 und \xE2\x86\x92\n", "", "", ""},
        {"a\nb\nc", "b\r\n", "", "a\nc"},
        {"a\rb", "b", "b\r\nneu", "a\rb\rneu"},
        {"", "", "neu\nzwei", "neu\r\nzwei"},
    };
    for (const auto& [file, before, after, wanted] : rows) {
        SCOPED_TRACE(file);
        auto shown = shownSource(file);
        std::string lines; // as a text field has them
        for (std::size_t at = 0; at < shown.size(); ++at) {
            const bool isPair = shown.compare(at, 2, "\r\n") == 0;
            const bool isEnd = shown[at] == '\r' || shown[at] == '\n';
            isEnd ? lines.append("\r\n") : lines.append(1, shown[at]);
            at += isPair ? 1 : 0;
        }
        EXPECT_EQ(editedSource(file, lines), file);
        lines.replace(lines.find(before), before.size(), after);
        EXPECT_EQ(editedSource(file, lines), wanted.empty() ? file : wanted);
    }
}

} // namespace
} // namespace quillmere
