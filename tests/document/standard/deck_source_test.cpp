#include "document/standard/deck_source.h"

#include "support/row_file.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

TEST(EditedSource, KeepsTheBytesOfLinesThatAreAsTheyWere)
{
    for (const auto& row : test::rowsOf("edited_sources.txt")) {
        const auto& file = row.at(0);
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
        lines.replace(lines.find(row.at(1)), row.at(1).size(), row.at(2));
        EXPECT_EQ(editedSource(file, lines), row.at(3));
    }
}

} // namespace
} // namespace quillmere
