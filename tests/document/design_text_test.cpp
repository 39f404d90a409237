#include "document/design_text.h"

#include "document/failure.h"
#include "support/store_session.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

using test::StoreSession;

TEST(DesignText, IsReadAsOneLineFromItsFirstTagOn)
{
    struct Row {
        const char* name;
        std::string file;
        std::string text;
    };
    const Row rows[] = {
        {"lines are joined", "<a>\r\nb\nc\r<d>", "<a>bc<d>"},
        {"what stands ahead of the first tag goes", "\xEF\xBB\xBF?<a>\r\nx<b>", "<a>x<b>"},
        {"a first line without tag stays", "x\r\n?<b>", "x?<b>"},
        {"empty", "", ""},
    };
    StoreSession store;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        store.giveArea(row.file);
        EXPECT_EQ(ReadDesignText(store.session, 0), row.text);
    }
}

TEST(DesignText, WaitsForTheSurface)
{
    StoreSession store;
    store.giveArea("<a>");
    test::LoggingSurface surface;
    store.session.surface = &surface;
    surface.beBusy(3);
    EXPECT_EQ(ReadDesignText(store.session, 0), "<a>");
    EXPECT_EQ(surface.log, "yield;yield;yield;");
    WriteDesignText(store.session, 0, "<b>");
    EXPECT_EQ(surface.log, "yield;yield;yield;yield;");
    EXPECT_EQ(store.workFiles.read("Wml0.htm"), "<b>");
}

TEST(DesignText, RefusesWhatCannotBe)
{
    StoreSession store;
    store.giveArea("<a>");
    EXPECT_THROW(WriteDesignText(store.session, 0, std::string(32768, 'x')), Overflow);
    EXPECT_EQ(store.workFiles.read("Wml0.htm"), "<a>");
    EXPECT_THROW(WriteDesignText(store.session, 1, "x"), InvalidArgument); // the spare record
    EXPECT_THROW(static_cast<void>(ReadDesignText(store.session, 1)), InvalidArgument);
}

} // namespace
} // namespace quillmere
