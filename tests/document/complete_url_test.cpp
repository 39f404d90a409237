#include "document/complete_url.h"

#include "support/fake_platform.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

TEST(CompleteUrl, OffersWhatIsMissing)
{
    const struct {
        const char *text, *offer; // null: nothing is offered
    } rows[] = {{"www.a.de", "http://www.a.de"}, {" WWW.a.de ", "http://WWW.a.de"},
        {"a.de/b", "http://www.a.de/b"}, {"b.wml", "http://www.b.wml"},
        {R"(a\b)", R"(http://www.a\b)"}, {"HTTP://a/b", nullptr}, {" http:x ", nullptr},
        {"#karte", nullptr}, {" Wort ", nullptr}, {"", nullptr}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        std::vector<std::string> questions;
        std::vector<bool> answers;
        if (row.offer) {
            questions = {std::string("129: ") + row.offer};
            answers = {true};
        }
        test::ScriptedPrompter assenting(answers);
        EXPECT_EQ(CompleteUrl(row.text, assenting), row.offer ? row.offer : row.text);
        EXPECT_EQ(assenting.questions, questions);
        if (row.offer) answers = {false};
        test::ScriptedPrompter declining(answers);
        EXPECT_EQ(CompleteUrl(row.text, declining), row.text);
    }
}

} // namespace
} // namespace quillmere
