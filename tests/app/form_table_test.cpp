#include "app/form_table.h"

#include "support/random_bytes.h"
#include "support/stopwatch.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

constexpr std::string_view kText
    = "<Form id=\"frmTable\" caption=\"Tabelle einfügen\" img=\"t.bmp\" rem=\"neu\" "
      "skip=\"-1\">\r\n"
      "<control id=\"btnOk\" tooltip=\"Fertig\"> &OK </control>\r\n"
      "<control id=\"optFrame\" index=0>Eins<control id=\"optFrame\" index=1 img=\"e.bmp\">Zwei\n"
      "</Form>\n"
      "<Form id=frmTable caption=Bearbeiten skip=x>"
      "<control id=\"cboAlign\" list=\"Links;Mittig;Rechts\" prefix=\"p\" index=99999></control>"
      "<control id=\"lost\" </control></form>"
      "<form id=frmLast";

TEST(FormTable, ReadsTheTextForm)
{
    const auto table = formsFromText(kText);
    EXPECT_EQ(table.forms,
        (std::vector<FormEntry>{{"frmTable", "Tabelle einfügen", "t.bmp", "neu", -1},
            {"frmTable", "Bearbeiten", "", "", 0}}));
    EXPECT_EQ(table.controls,
        (std::vector<ControlEntry>{
            {"frmTable", -1, "btnOk", "&OK", -1, "", "", "", "Fertig"},
            {"frmTable", -1, "optFrame", "Eins", 0, "", "", "", ""},
            {"frmTable", -1, "optFrame", "Zwei", 1, "", "", "e.bmp", ""},
            {"frmTable", 0, "cboAlign", "", -1, "Links;Mittig;Rechts", "p", "", ""},
        }));
}

TEST(FormTable, BothFormsReadAlike)
{
    auto table = formsFromText(kText);
    table.forms[0].Skip = 0x1234;
    table.controls[1].Index = -2;
    const auto forms = recordsOfForms(table);
    const auto controls = recordsOfControls(table);
    EXPECT_EQ(forms.size(), 2 * kFormRecordSize);
    EXPECT_EQ(forms.substr(0, 9), "frmTable ");
    EXPECT_EQ(forms.substr(50, 7), "Tabelle");
    EXPECT_EQ(forms.substr(1050, 6), "t.bmp ");
    EXPECT_EQ(forms.substr(1305, 4), "neu ");
    EXPECT_EQ(forms.substr(2305, 2), "\x34\x12");
    EXPECT_EQ(controls.size(), 4 * kControlRecordSize);
    EXPECT_EQ(controls.substr(50, 7),
        "\xff\xff"
        "btnOk");
    EXPECT_EQ(controls.substr(152, 4), "&OK ");
    EXPECT_EQ(controls.substr(kControlRecordSize + 652, 3), "\xfe\xff ");
    EXPECT_EQ(controls.substr(3 * kControlRecordSize + 654, 5), "Links");
    EXPECT_EQ(controls.substr(3 * kControlRecordSize + 909, 2), "p ");
    EXPECT_EQ(controls.substr(2 * kControlRecordSize + 1164, 6), "e.bmp ");
    EXPECT_EQ(controls.substr(1419, 7), "Fertig ");
    EXPECT_EQ(formsFromRecords(forms, controls), table);
    EXPECT_EQ(formsFromRecords(forms + "rest", controls + "rest"), table);
}

TEST(FormTable, FindsFormsByVariantAndControlsByIndex)
{
    const auto table = formsFromText(kText);
    const auto* const atLoad = findForm(table, "FRMTABLE");
    ASSERT_EQ(atLoad, table.forms.data());
    EXPECT_EQ(findForm(table, "frmTable", 0), &table.forms[1]);
    EXPECT_EQ(findForm(table, "frmTable", 1), nullptr);
    EXPECT_EQ(findForm(table, "frmNone"), nullptr);
    EXPECT_EQ(findControl(table, *atLoad, "BtnOk"), table.controls.data());
    EXPECT_EQ(findControl(table, *atLoad, "optFrame", std::int16_t{0}), &table.controls[1]);
    EXPECT_EQ(findControl(table, *atLoad, "optFrame", std::int16_t{1}), &table.controls[2]);
    EXPECT_EQ(findControl(table, *atLoad, "optFrame", std::int16_t{2}), nullptr);
    EXPECT_EQ(findControl(table, *atLoad, "btnOk", std::int16_t{0}), nullptr);
    EXPECT_EQ(findControl(table, *atLoad, "cboAlign"), nullptr); // of the other variant
    EXPECT_EQ(findControl(table, table.forms[1], "cboAlign"), &table.controls[3]);
}

TEST(FormTable, ListsAreSplitAtSemicolons)
{
    using Items = std::vector<std::string>;
    EXPECT_EQ(itemsOfList("a;b;c"), (Items{"a", "b", "c"}));
    EXPECT_EQ(itemsOfList("a;;b;"), (Items{"a", "", "b"}));
    EXPECT_EQ(itemsOfList(""), Items{});
}

TEST(FormTable, HostileTextsAreReadInOnePassAndStaySmall)
{
    std::string many;
    for (int i = 0; i < 100000; ++i)
        many += "<control id=1>";
    const std::string longId(200000, 'x');
    const std::string texts[] = {many, "<form>" + many, "<form id=" + longId + ">" + many,
        "<form id=" + longId, "<form " + many + ">"};
    for (const auto& text : texts) {
        SCOPED_TRACE(text.substr(0, 20));
        FormTable table;
        EXPECT_LT(test::millisecondsOf([&] { table = formsFromText(text); }), 2000);
        for (const auto& control : table.controls)
            ASSERT_LE(control.FormId.size(), 50U);
    }
}

TEST(FormTable, AnyRecordsGiveATableThatStaysTheSame)
{
    for (unsigned seed = 0; seed < 20; ++seed) {
        const auto table = formsFromRecords(
            test::randomBytes(5 * kFormRecordSize + 7, seed), test::randomBytes(20000, seed + 100));
        EXPECT_EQ(formsFromRecords(recordsOfForms(table), recordsOfControls(table)), table) << seed;
    }
}

} // namespace
} // namespace quillmere
