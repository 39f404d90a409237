#include "document/card_attributes.h"

#include "document/failure.h"
#include "support/store_session.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

using test::StoreSession;

TEST(CardAttributes, AreReadFromTheLineOfTheMarker)
{
    struct Row {
        const char* name;
        std::string file;
        std::string id;
        std::string title;
    };
    const Row rows[] = {
        {"usual", "\r\n<!--card id=\"a\" title=\"b c\" newcontext=\"true\"-->\r\nx", "a", "b c"},
        {"any case", "<!--CARD ID=\"A\" TITLE=\"B\"-->", "A", "B"},
        {"no title", "<!--card id=\"a\"--><table title=\"t\">", "a", ""},
        {"only the first marker", "<!--card id=\"a\"-->\r\n<!--card id=\"b\" title=\"t\"-->", "a",
            ""},
        {"title ahead of the id", "<!--card title=\"t\" card id=\"a\"-->", "a", ""},
        {"no quotes", "<!--card id=a title=\"t\"-->", "t", ""},
        {"quotes behind the marker only", "<!--card id=a-->\"x\"", "", ""},
        {"cut off", "<!--card id=\"a\" title=\"t\"", "", ""},
        {"value with a bracket", "<!--card id=\"a>b\" title=\"t\"-->", "a>b", ""},
        {"none", "<p>card</p>", "", ""},
    };
    StoreSession store;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        store.giveArea(row.file);
        const auto card = GetCardAttributes(store.session, 0);
        EXPECT_EQ(card.id, row.id);
        EXPECT_EQ(card.title, row.title);
    }
}

TEST(CardAttributes, AreSetInThePlaceOfTheOldOnes)
{
    struct Row {
        const char* name;
        std::string before;
        std::string after;
    };
    const Row rows[] = {
        {"both", "<!--card id=\"lang\" title=\"alt\" x=\"y\"-->\r\n<p>",
            "<!--card id=\"i\" title=\"t u\" x=\"y\"--><p>"},
        {"lost title", "<!--card id=\"a\" x=\"y\"--><table title=\"t\">",
            "<!--card id=\"i\" title=\"t u\" x=\"y\"--><table title=\"t\">"},
        {"no marker", "<p>x</p>\r\n", "<p>x</p>"},
        {"no value", "<!--card id=a-->\"x\"", "<!--card id=a-->\"x\""},
    };
    StoreSession store;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        store.giveArea(row.before);
        SetCardAttributes(store.session, 0, "i", "t u");
        EXPECT_EQ(store.design(0), row.after);
    }
}

TEST(Jumps, AreReadFromTheFirstAcceptDo)
{
    struct Row {
        const char* name;
        std::string file;
        Jump jump;
    };
    const Row rows[] = {
        {"usual",
            "<!--do type=\"accept\" label=\"l\" name=\"n\"--><!--go href=\"#b\"/--><!--/do-->",
            {"n", "l", "#b"}},
        {"another type", "<!--do type=\"prev\" label=\"l\"--><!--go href=\"#b\"--><!--/do-->", {}},
        {"any case and order",
            "<!--DO TYPE=\"Accept\" NAME=\"n\" LABEL=\"l\"--><!--GO HREF=\"#b\"--><!--/DO-->",
            {"n", "l", "#b"}},
        {"nothing behind the end counts",
            "<!--do type=\"accept\"--><!--/do--> label=\"l\" name=\"n\" <!--go href=\"#b\"/-->",
            {}},
        {"a type accept behind another",
            "<!--do type=\"prev\" label=\"p\"--><!--/do--><!--do type=\"accept\" label=\"l\"-->"
            "<!--/do-->",
            {"", "l", ""}},
        {"without end", "<!--do type=\"accept\" label=\"l\"-->", {}},
    };
    StoreSession store;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        store.giveArea(row.file);
        const auto jump = GetJump(store.session, 0);
        EXPECT_EQ(jump.name, row.jump.name);
        EXPECT_EQ(jump.label, row.jump.label);
        EXPECT_EQ(jump.target, row.jump.target);
    }
}

TEST(Jumps, AreSetInTheirMarkersOrMadeBehindTheCard)
{
    struct Row {
        const char* name;
        std::string before;
        Jump jump;
        std::string after;
    };
    const Row rows[] = {
        {"new", "<!--card id=\"a\"-->\r\n<p>", {"", "l", "#b"},
            "<!--card id=\"a\"--><!--do type=\"accept\" label=\"l\" name=\"Sprung\"-->"
            "<!--go href=\"#b\"/--><!--/do--><p>"},
        {"new beside another do", "<!--card id=\"a\"--><!--do type=\"prev\" name=\"Sprung\"-->",
            {"", "l", "#b"},
            "<!--card id=\"a\"--><!--do type=\"accept\" label=\"l\" name=\"Sprung0\"-->"
            "<!--go href=\"#b\"/--><!--/do--><!--do type=\"prev\" name=\"Sprung\"-->"},
        {"no place for it", "<p>x</p>", {"n", "l", "#b"}, "<p>x</p>"},
        {"replaced",
            "<!--do type=\"accept\" label=\"\" name=\"alt\"--><!--go href=\"#x\"--><!--/go-->"
            "<!--/do--><!--go href=\"#y\"-->",
            {"n", "l", "#b"},
            "<!--do type=\"accept\" label=\"l\" name=\"n\"--><!--go href=\"#b\"--><!--/go-->"
            "<!--/do--><!--go href=\"#y\"-->"},
        {"missing parts", "<!--do type=\"accept\" x=\"y\"--><!--/do-->", {"n", "l", "#b"},
            "<!--do type=\"accept\" name=\"n\"  label=\"l\"  x=\"y\"--><!--/do-->"},
        {"its own name counts as taken", "<!--do type=\"accept\" name=\"sprung\"--><!--/do-->",
            {"Sprung", "l", ""},
            "<!--do type=\"accept\" label=\"l\"  name=\"Sprung0\"--><!--/do-->"},
        {"numbers without gap",
            "<!--do type=\"accept\" name=\"Sprung\" name=\"Sprung0\"--><!--/do-->", {"", "l", ""},
            "<!--do type=\"accept\" label=\"l\"  name=\"Sprung1\" name=\"Sprung0\"--><!--/do-->"},
    };
    StoreSession store;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        store.giveArea(row.before);
        SetJump(store.session, 0, row.jump);
        EXPECT_EQ(store.design(0), row.after);
    }
}

TEST(Jumps, NamesAreLookedForInAnyCase)
{
    StoreSession store;
    store.giveArea("<!--do type=\"accept\" name=\"sprung\"-->");
    EXPECT_TRUE(JumpNameInUse(store.session, 0, "Sprung"));
    EXPECT_FALSE(JumpNameInUse(store.session, 0, "Spr"));
    EXPECT_FALSE(JumpNameInUse(store.session, 0, "Sprung0"));
}

} // namespace
} // namespace quillmere
