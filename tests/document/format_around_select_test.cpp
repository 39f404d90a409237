#include "document/format_around_select.h"

#include "literal/corrections.h"
#include "support/conversion_session.h"
#include "support/settings_in_memory.h"
#include "support/token_soup.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace quillmere {
namespace {

constexpr std::array<std::string_view, 10> kPieces{
    "<b>", "</b>", "<select>", "</select>", "x", "<", "</", "b>", "/b>", "select>"};

void expectAgreement(const std::string& text)
{
    for (const bool apply : {false, true}) {
        std::string fast = text;
        std::string slow = text;
        ASSERT_EQ(FormatAroundSelect(fast, "<b>", "</b>", apply),
            literal::FormatAroundSelect(slow, "<b>", "</b>", apply))
            << text;
        ASSERT_EQ(fast, slow) << text;
    }
}

TEST(FormatAroundSelect, AgreesWithPlainSearches)
{
    test::forEachSequence(std::span(kPieces).first(4), 8, expectAgreement);
    for (std::uint32_t seed = 0; seed < 5000; ++seed) {
        SCOPED_TRACE(seed);
        expectAgreement(test::randomSoup(seed, kPieces, 40));
        expectAgreement(test::randomSoup(seed, std::span(kPieces).first(4), 40));
    }
}

/// Gives one answer to every note and logs them.
class NotePrompter final : public test::NobodyThere {
public:
    explicit NotePrompter(bool assents)
        : assents_(assents)
    {
    }
    [[nodiscard]] bool showNote(Note note) override
    {
        shown.push_back(note);
        return assents_;
    }
    std::vector<Note> shown;

private:
    bool assents_;
};

/// A session with one setting and one answer.
struct Asking {
    Asking(const char* setting, bool assents)
        : prompter(assents)
        , session{workFiles, copies, prompter, settings, words, OutputRules(), {}}
    {
        settings.WriteSetting("ShowSelectTagCorrectMessage", setting);
    }
    test::MapWorkFiles workFiles;
    test::SmallCopies copies;
    NotePrompter prompter;
    test::SettingsInMemory settings;
    test::NoWords words;
    DocumentSession session;
};

TEST(RepairFormatAroundSelect, AsksWhereTheSettingWantsIt)
{
    const std::string sound = "<b>x</b><select><option>1</option></select>";
    const std::string broken = "<b><select><option>1</option></select></b>";
    const std::string repaired = "<select><option>1</option></select>";
    struct Row {
        const char* name;
        const char* setting;
        bool assents;
        std::string before;
        std::string after;
        std::size_t notes;
    };
    const std::vector<Row> rows{
        {"assent", "yes", true, broken, repaired, 1},
        {"declined", "YES", false, broken, broken, 1},
        {"no question", "No", false, broken, repaired, 0},
        {"setting is missing", "", false, broken, repaired, 0},
        {"nothing to repair", "yes", true, sound, sound, 0},
        {"em is none of the formats", "yes", true, "<em><select></select></em>",
            "<em><select></select></em>", 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        Asking asking(row.setting, row.assents);
        std::string text = row.before;
        RepairFormatAroundSelect(text, asking.session);
        EXPECT_EQ(text, row.after);
        EXPECT_EQ(asking.prompter.shown, std::vector<Note>(row.notes, Note::SelectRepair));
    }
}

TEST(RepairFormatAroundSelect, AgreesWithPlainSearches)
{
    constexpr std::array<std::string_view, 16> kTags{"<b>", "</b>", "<i>", "</i>", "<u>", "</u>",
        "<big>", "</big>", "<small>", "</small>", "<select>", "</select>", "<select>", "</select>",
        "x", "<"};
    Asking asking("No", false);
    for (std::uint32_t seed = 0; seed < 3000; ++seed) {
        SCOPED_TRACE(seed);
        const std::string text = test::randomSoup(seed, kTags, 40);
        std::string fast = text;
        std::string slow = text;
        RepairFormatAroundSelect(fast, asking.session);
        literal::RepairFormatAroundSelect(slow);
        ASSERT_EQ(fast, slow) << text;
    }
}

} // namespace
} // namespace quillmere
