// Each row of the file is a fault in itself.

#include "document/wml/wml_mends.h"

#include "document/wml/repaired_file.h"
#include "support/row_file.h"

#include <gtest/gtest.h>

#include <set>

namespace quillmere {
namespace {

std::set<std::string> expectMended(
    const std::string& before, const std::string& after, std::string_view rules)
{
    const auto repaired = repairFile(before);
    EXPECT_EQ(repaired.bytes, after);
    std::string told;
    std::set<std::string> names;
    for (const auto& mend : repaired.mends) {
        told.append(told.empty() ? "" : " ").append(nameOf(mend.rule));
        names.emplace(nameOf(mend.rule));
    }
    EXPECT_EQ(told, rules) << before;
    return names;
}

TEST(WmlMends, MendsEachFaultByItsRule)
{
    std::set<std::string> used;
    for (const auto& row : test::rowsOf("wml_mends.txt"))
        used.merge(expectMended(row.at(0), row.at(1), row.at(2)));
    for (const auto& text : mendTexts())
        EXPECT_TRUE(used.contains(std::string(text.name))) << text.name << " has no row";
}

} // namespace
} // namespace quillmere
