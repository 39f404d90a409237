#include "editor/window/source_colours.h"
#include "editor/window/source_edit.h"
#include "editor/window/source_tag_pair.h"
#include "editor/window/source_tokens.h"
#include "support/row_file.h"
#include "support/stopwatch.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QTest>

#include <gtest/gtest.h>

#include <vector>

namespace quillmere {
namespace {

/// The source in which each run stands as its letter: T tag, A attribute, V value, E entity,
/// C comment, ! error; text stays a point.
std::string runsOf(const QString& source)
{
    constexpr std::string_view kLetters = "TAVEC!";
    std::string result;
    auto state = SourceState::Text;
    for (const auto& line : source.split(u'\n')) {
        std::vector<SourceRun> runs;
        state = readSourceLine(line, state, runs);
        std::string letters(static_cast<std::size_t>(line.size()), '.');
        for (const auto& run : runs)
            for (int i = 0; i < run.length; ++i)
                letters.at(static_cast<std::size_t>(run.begin) + static_cast<std::size_t>(i))
                    = kLetters.at(static_cast<std::size_t>(run.token));
        result += letters + '\n';
    }
    result.pop_back();
    return result;
}

TEST(SourceTokens, TellTheSyntaxOfEachCharacter)
{
    for (const auto& row : test::rowsOf("source_tokens.txt"))
        EXPECT_EQ(runsOf(QString::fromStdString(row.at(0))), row.at(1)) << row.at(0);
}

TEST(SourceTokens, CoverEachCharacterOnceInTheirOrder)
{
    // All short lines of these signs, in every state: no run overlaps another, and the reader ends.
    const QString signs = QStringLiteral("<>/\"'&;!-a =");
    for (int number = 0; number < 12 * 12 * 12 * 12; ++number) {
        QString line;
        for (int rest = number, i = 0; i < 4; ++i, rest /= 12)
            line += signs[rest % 12];
        for (const auto state : {SourceState::Text, SourceState::Tag, SourceState::SingleQuoted,
                 SourceState::Comment, SourceState::Section, SourceState::Declaration}) {
            std::vector<SourceRun> runs;
            static_cast<void>(readSourceLine(line, state, runs));
            int covered = 0;
            for (const auto& run : runs) {
                ASSERT_GE(run.begin, covered) << line.toStdString();
                ASSERT_GT(run.length, 0) << line.toStdString();
                covered = run.begin + run.length;
            }
            ASSERT_LE(covered, line.size()) << line.toStdString();
        }
    }
}

TEST(SourceColours, CanBeReadOnEveryGround)
{
    std::vector<QPalette> palettes;
    for (int red = 0; red < 256; red += 51)
        for (int green = 0; green < 256; green += 51)
            for (int blue = 0; blue < 256; blue += 51)
                for (const QColor& ink :
                    {QColor(Qt::black), QColor(Qt::white), QColor(99, 99, 99)}) {
                    QPalette palette;
                    palette.setColor(QPalette::Base, QColor(red, green, blue));
                    palette.setColor(QPalette::Text, ink);
                    palettes.push_back(palette);
                }
    for (const auto& palette : palettes) {
        const auto colours = sourceColours(palette);
        SCOPED_TRACE(colours.ground.name().toStdString());
        for (const auto& text : {colours.ink, colours.number, colours.tag, colours.attribute,
                 colours.value, colours.entity, colours.comment, colours.error})
            for (const auto& ground :
                {colours.ground, colours.lineGround, colours.numberGround, colours.hitGround})
                EXPECT_GE(contrastOf(text, ground), kTextContrast) << text.name().toStdString();
    }
    EXPECT_NEAR(contrastOf(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(contrastOf(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01); // as published
}

TEST(TagPair, IsFoundFromBothOfItsTags)
{
    for (const auto& fields : test::rowsOf("tag_pairs.txt")) {
        const auto& row = fields.at(0);
        std::string source;
        std::vector<int> edges;
        int caret = 0;
        for (const char c : row) {
            if (c == '{' || c == '}')
                edges.push_back(static_cast<int>(source.size()));
            else if (c == '|')
                caret = static_cast<int>(source.size());
            else
                source += c;
        }
        const auto found = tagPairAt(QString::fromStdString(source), caret);
        ASSERT_EQ(found.has_value(), !edges.empty()) << row;
        if (!found) continue;
        EXPECT_EQ(
            std::vector({found->start.begin, found->start.end, found->end.begin, found->end.end}),
            edges)
            << row;
    }
}

TEST(SourceEdit, GivesBackTheTextThatItTook)
{
    SourceEdit edit;
    for (const std::string text :
        {"", "<p>\xE4\x80 \x85\xA0\xA0x</p>", "a\r\nb\r\n\r\nc", "\t  x  \r\n", "\f\x01 \x7F"}) {
        edit.setWml(text);
        EXPECT_EQ(edit.wml(), text);
    }
    edit.setWml("a\nb\rc");
    EXPECT_EQ(edit.wml(), "a\r\nb\r\nc");
    edit.setPlainText(QString::fromUtf8("\u2212 \U0001F600 ä")); // references for what is not there
    EXPECT_EQ(edit.wml(), "&#8722; &#128512; \xE4");
}

TEST(SourceEdit, ChangesOnlyByWhatThePersonDoes)
{
    SourceEdit edit;
    edit.resize(500, 300);
    edit.setWml("<p>eins</p>");
    edit.show();
    int changes = 0;
    QObject::connect(&edit, &QPlainTextEdit::textChanged, [&] { ++changes; });
    QTest::qWait(20); // what is put off to an idle moment is done
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(0x15, 0x1D, 0x22));
    dark.setColor(QPalette::Text, QColor(0xE9, 0xEF, 0xF2));
    edit.setPalette(dark);
    edit.openSearch(false);
    QTest::qWait(20);
    EXPECT_EQ(edit.colours().ground, QColor(0x15, 0x1D, 0x22));
    EXPECT_EQ(changes, 0);
    edit.setFocus();
    QTest::keyClicks(&edit, QStringLiteral("x"));
    EXPECT_GE(changes, 1);
}

TEST(SourceEdit, TellsOfBlanksAndNewLinesAheadOfTheirEffect)
{
    SourceEdit edit;
    edit.setWml("");
    std::vector<std::string> states;
    QObject::connect(&edit, &SourceEdit::aboutToBreak, [&] { states.push_back(edit.wml()); });
    QTest::keyClicks(&edit, QStringLiteral("ab c"));
    QTest::keyClick(&edit, Qt::Key_Return);
    QTest::keyClick(&edit, Qt::Key_Enter, Qt::ShiftModifier);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QTest::keyClick(&edit, Qt::Key_Tab);
    QInputMethodEvent typed(QString(), {});
    typed.setCommitString(QStringLiteral("d e"));
    QApplication::sendEvent(&edit, &typed);
    EXPECT_EQ(states, (std::vector<std::string>{"ab", "ab c", "ab c\r\n", "ab c\r\n\t"}));
    EXPECT_EQ(edit.wml(), "ab c\r\n\td e");
    edit.setReadOnly(true);
    QTest::keyClicks(&edit, QStringLiteral(" "));
    EXPECT_EQ(states.size(), 4U);
}

/// A deck of about so many bytes in lines as decks have them.
std::string longDeck(std::size_t bytes)
{
    std::string text = "<wml>\r\n";
    while (text.size() < bytes)
        text += "<card id=\"k\" title=\"Titel\">\r\n<p align=\"center\">Text &amp; mehr <b>fett</b>"
                "<a href=\"#k\">weiter</a></p>\r\n</card>\r\n";
    return text + "</wml>\r\n";
}

TEST(SourceEdit, IsQuickWithLongTexts)
{
    SourceEdit edit;
    edit.resize(700, 500);
    edit.show();
    const auto text = longDeck(1'000'000);
    const auto opening = [&] {
        edit.setWml(text);
        QTest::qWait(1);
    };
    EXPECT_LT(test::millisecondsOf(opening), 2500);
    edit.openSearch(false);
    edit.setFocus();
    edit.moveCursor(QTextCursor::End);
    const auto typing = [&] {
        QTest::keyClicks(&edit, QStringLiteral("<p> </p> a"));
        edit.repaint();
    };
    EXPECT_LT(test::millisecondsOf(typing, 3), 400) << "40 for each key";
}

} // namespace
} // namespace quillmere
