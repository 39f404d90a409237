#include "document/wml/wml_elements.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

TEST(WmlElements, RowsAreInOrderAndFoundByName)
{
    std::size_t index = 0;
    for (const auto& rule : wmlElementRules()) {
        EXPECT_EQ(static_cast<std::size_t>(rule.element), index++) << rule.name;
        EXPECT_EQ(wmlElement(rule.name), rule.element);
        EXPECT_EQ(rule.isEmpty, rule.children == 0) << rule.name; // no element has text alone
    }
    EXPECT_EQ(wmlElement("PostField"), WmlElement::PostField);
    for (const auto* const name : {"", "par", "b2", "postfields", "wm", "card:x", "\xFC"})
        EXPECT_EQ(wmlElement(name), WmlElement::Other) << name;
    EXPECT_EQ(knownAttribute(WmlElement::Card, "onEnterForward"), "onenterforward");
    EXPECT_EQ(knownAttribute(WmlElement::Card, "href"), "");
}

} // namespace
} // namespace quillmere
