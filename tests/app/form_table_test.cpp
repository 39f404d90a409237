#include "app/form_table.h"

#include "support/small_random.h"

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
    EXPECT_EQ(itemsOfList("a;;b;"), (std::vector<std::string>{"a", "", "b"}));
}

TEST(FormTable, RecordsHaveTheirMembersAtTheirOffsetsAndReadAlike)
{
    auto table = formsFromText(kText);
    table.forms[0].Skip = 0x1234;
    table.controls[1].Index = -2;
    const auto forms = recordsOfForms(table);
    const auto controls = recordsOfControls(table);
    EXPECT_EQ(forms.size() + controls.size(), 2 * kFormRecordSize + 4 * kControlRecordSize);
    const struct {
        const std::string& records;
        std::size_t offset;
        std::string_view bytes;
    } rows[] = {{forms, 0, "frmTable "}, {forms, 50, "Tabelle"}, {forms, 1050, "t.bmp "},
        {forms, 1305, "neu "}, {forms, 2305, "\x34\x12"}, {controls, 50, "\xFF\xFF"},
        {controls, 52, "btnOk"}, {controls, 152, "&OK "},
        {controls, kControlRecordSize + 652, "\xFE\xFF "},
        {controls, 3 * kControlRecordSize + 654, "Links"},
        {controls, 3 * kControlRecordSize + 909, "p "},
        {controls, 2 * kControlRecordSize + 1164, "e.bmp "}, {controls, 1419, "Fertig "}};
    for (const auto& row : rows)
        EXPECT_EQ(row.records.substr(row.offset, row.bytes.size()), row.bytes) << row.offset;
    EXPECT_EQ(formsFromRecords(forms + "rest", controls + "rest"), table);
    const auto any
        = formsFromRecords(test::randomBytes(5 * kFormRecordSize, 1), test::randomBytes(20000, 2));
    EXPECT_EQ(formsFromRecords(recordsOfForms(any), recordsOfControls(any)), any);
}

TEST(FormTable, FindsFormsByVariantAndControlsByIndex)
{
    const auto table = formsFromText(kText);
    ASSERT_EQ(findForm(table, "FRMTABLE"), table.forms.data());
    EXPECT_EQ(findForm(table, "frmTable", 0), &table.forms[1]);
    EXPECT_EQ(findForm(table, "frmTable", 1), nullptr);
    const auto find = [&](std::size_t form, const char* id, auto... index) {
        const auto* const found = findControl(table, table.forms[form], id, index...);
        return found == nullptr ? -1 : found - table.controls.data();
    };
    EXPECT_EQ(find(0, "BtnOk"), 0);
    EXPECT_EQ(find(0, "optFrame", std::int16_t{1}), 2);
    EXPECT_EQ(find(0, "btnOk", std::int16_t{0}), -1);
    EXPECT_EQ(find(0, "cboAlign"), -1); // of the other variant
    EXPECT_EQ(find(1, "cboAlign"), 3);
}

} // namespace
} // namespace quillmere
