#include "document/images.h"

#include "document/text/failure.h"
#include "support/fake_platform.h"
#include "support/scratch_folder.h"
#include "support/small_deck.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

class Images : public testing::Test {
protected:
    Images()
    {
        for (std::size_t i = 0; i < 3; ++i) {
            areas[i].designFile = deck.files.createFile("Wml", ".htm");
            areas[i].spareDesignFile = deck.files.createFile("Spare", ".htm");
            areas[i].wmlFile = "Wml.wml";
        }
        areas[0].pristineFile = "Alt.wml";
        deck.files.write("Alt.wml", {});
        deck.files.write("Wml.wml", {});
    }
    [[nodiscard]] std::string add(std::size_t area, const std::string& path)
    {
        return RegisterImage(deck.session, area, path, "Text");
    }
    [[nodiscard]] std::string fileNames() const
    {
        std::string names;
        for (const auto& [name, bytes] : deck.files.all())
            names += name + " ";
        return names;
    }
    test::SmallDeck deck{3};
    Deck& areas = deck.session.deck;
};

TEST_F(Images, GetOneEntryAndOneDisplayCopyForEachArea)
{
    EXPECT_EQ(add(0, "/decks/bilder/a.wbmp"), "Bmp0.bmp");
    EXPECT_EQ(deck.copies.ground, 2391815);
    EXPECT_EQ(add(0, "/DECKS/bilder/A.Wbmp"), "Bmp0.bmp");
    PageStyle device{0x123456, 0, ""};
    deck.session.devices[1] = &device;
    areas[0].surfaceKind = 1;
    EXPECT_EQ(add(1, "/decks/bilder/a.wbmp"), "Bmp1.bmp");
    EXPECT_EQ(deck.copies.ground, 0x123456);
    EXPECT_EQ(deck.copies.drawn, std::vector<std::string>(2, "/decks/bilder/a.wbmp|Text"));
    EXPECT_EQ(deck.files.read("Bmp1.bmp"), "BM");
    EXPECT_EQ(deck.session.imageColour, 99);
    ASSERT_EQ(areas[0].images.size(), 3U); // the blank one that it begins with, and the spare one
    const ImageEntry& entry = areas[0].images[1];
    EXPECT_EQ(entry.sourceDir, "/decks/");
    EXPECT_EQ(entry.sourceFile, "bilder/a.wbmp") << "as the deck writes it";
    EXPECT_EQ(entry.pictureHeightPx * 1000 + entry.heightPx, 7007);
    EXPECT_EQ(entry.pictureWidthPx * 1000 + entry.widthPx, 5005);
    EXPECT_EQ(entry.alignment, "top");

    for (const char* path : {"wbmp ", "/decks/a.gif", ""})
        EXPECT_EQ(add(0, path), "") << path;
    EXPECT_EQ(add(0, "xwbmp"), "Bmp2.bmp") << "the dot is no part of the test";
    EXPECT_EQ(add(0, "/anderswo/b.WBMP"), "Bmp3.bmp");
    EXPECT_EQ(areas[0].images.at(3).sourceDir, "/anderswo/");
    EXPECT_EQ(RegisterImage(deck.session, 2, "a.wbmp", "", {"/t/", "B.bmp"}), "/t/B.bmp");
    EXPECT_EQ(NewWbmpName(deck.session) + FindFreeBmpName(deck.session), "WBmp0.wbmpBmp4.bmp");
}

TEST_F(Images, AreFoundWhereTheDiskHasTheirNamesInUtf8)
{
    const test::ScratchFolder folder;
    areas[0].deckDir = folder.path();
    folder.put("b\u00E4r.wbmp", "B");
    folder.put("k\xFCr.wbmp", "K"); // a disk of the old code page
    const std::pair<const char*, const char*> rows[] = {
        {"b\xE4r.wbmp", "b\u00E4r.wbmp"},
        {"b&#228;r.wbmp", "b\u00E4r.wbmp"}, // as the standard rules write it
        {"k\xFCr.wbmp", "k\xFCr.wbmp"},
        {"&#8364;&#8364;&#1;.wbmp", "\u20AC\u20AC&#1;.wbmp"}, // not there
    };
    for (const auto& [name, file] : rows) {
        EXPECT_NE(add(0, folder.path() + name), "");
        EXPECT_EQ(deck.copies.drawn.back(), folder.path() + file + "|Text");
    }
    EXPECT_EQ(areas[0].images[1].sourceFile, "b\xE4r.wbmp") << "as the deck writes it";
    test::ScriptedPrompter nobody;
    auto session = deck.sessionWith(nobody);
    CopyDeckImages("<img src=\"b\xE4r.wbmp\"/>", folder.path(), folder.path() + "neu/", session);
    EXPECT_EQ(folder.get("neu/b\u00E4r.wbmp"), "B");
}

TEST_F(Images, AreFoundInAListThatWasStartedAnew)
{
    for (const char* name : {"a", "b", "c"})
        (void)add(0, std::string("/decks/").append(name).append(".wbmp"));
    auto& images = areas[0].images;
    images = std::vector<ImageEntry>(2);
    EXPECT_EQ(add(0, "/decks/c.wbmp"), "Bmp3.bmp") << "gone with the list";
    EXPECT_EQ(add(0, "/decks/d.wbmp"), "Bmp4.bmp");
    auto other = images; // as long as the list that is known
    other[1].sourceFile = "e.wbmp";
    images = other;
    EXPECT_EQ(add(0, "/decks/c.wbmp"), "Bmp5.bmp");
    EXPECT_EQ(add(0, "/decks/e.wbmp"), "Bmp3.bmp");
}

TEST_F(Images, AnAreaGoesWithItsFilesAndTheCopiesThatNoOtherShows)
{
    (void)add(0, "/decks/a.wbmp"); // Bmp0
    (void)add(0, "/decks/b.wbmp"); // Bmp1
    (void)add(1, "/decks/b.wbmp"); // Bmp2
    deck.files.write("Wml1.htm", "<p><IMG SRC=\"file://BMP1.bmp\"><img src=\" Bmp2.bmp \">");
    areas[0].surfaceKind = 1;
    RemoveArea(deck.session, 0, true);
    EXPECT_EQ(
        fileNames(), "Alt.wml Bmp1.bmp Bmp2.bmp Spare1.htm Spare2.htm Wml.wml Wml1.htm Wml2.htm ");
    EXPECT_EQ(areas[0].pristineFile, "Alt.wml") << "the deck's own values go on";
    EXPECT_EQ(areas[0].surfaceKind, 1);
    EXPECT_EQ(areas[0].images[1].displayFile, "Bmp2.bmp");
    RemoveArea(deck.session, 1, true);
    const auto before = areas;
    RemoveArea(deck.session, 0, false);
    EXPECT_TRUE(deck.files.exists("Alt.wml") && deck.files.exists("Wml.wml"));
    areas = before;
    RemoveArea(deck.session, 0, true);
    EXPECT_FALSE(deck.files.exists("Alt.wml") || deck.files.exists("Wml.wml"));
    EXPECT_EQ(areaCount(areas), 0U);
}

TEST_F(Images, WhatThePersonChangedIsReadFromTheTagThatShowsTheChosenOne)
{
    (void)add(0, "/decks/a.wbmp");
    (void)add(0, "/decks/b.wbmp");
    deck.files.write("Wml0.htm",
        "<p><img src=\"Bmp0.bmp\" style=\"height: 1px; width: 2px\">"
        "<IMG SRC=file://Bmp1.bmp align=Bottom STYLE=\"HEIGHT: 30px; WIDTH: 40px\"><img src=x>");
    const auto& chosen = areas[0].images[2];
    for (const int cursor : {-1, 0, 3, 2}) { // none, the blank one, the spare one
        EXPECT_EQ(chosen.heightPx, 7);
        areas[0].imageCursor = static_cast<std::int16_t>(cursor);
        ReadImageTags(deck.session);
    }
    EXPECT_EQ(chosen.heightPx * 100 + chosen.widthPx, 3040);
    EXPECT_EQ(chosen.alignment, "Bottom");
    EXPECT_EQ(areas[0].images[1].heightPx, 7);
    deck.files.write("Wml0.htm", "<p><img src=\"Bmp1.bmp\" style=\"height: 9px; width: vielpx\">");
    EXPECT_THROW(ReadImageTags(deck.session), TypeMismatch);
    EXPECT_EQ(chosen.heightPx, 30);
}

TEST(CopyDeckImages, CopiesWhatIsThereAndAsksForTheRest)
{
    const struct {
        const char* images;
        std::vector<bool> answers;
        std::vector<std::string> log;
        const char* copied; // what a.wbmp of the new directory holds then
    } rows[] = {{"<img src=\"a.wbmp\" alt=\"x\"/><IMG SRC=\" b/b.gif \"><img alt=\"\">"
                 "<img src=\"http://example.org/c.wbmp\"><img src=\"a.wbmp\">",
                    {false}, {"130: a.wbmp"}, "anders"},
        {"<img src=\"c.wbmp\"/><img src=\"a.wbmp\"/><img src=\"c.wbmp\"/>", {true},
            {"131: c.wbmp", "130: a.wbmp"}, "A"},
        {"<img src=\"a.wbmp\"/>", {}, {}, "A"}}; // the same bytes by now
    const test::ScratchFolder folder;
    const auto from = folder.path() + "alt/";
    folder.put("alt/a.wbmp", "A");
    folder.put("alt/b/b.gif", "B");
    folder.put("neu/a.wbmp", "anders");
    test::SmallDeck none;
    test::ScriptedPrompter person;
    auto session = none.sessionWith(person);
    for (const auto& row : rows) {
        person.answers = row.answers;
        person.log.clear();
        CopyDeckImages(row.images, from, folder.path() + "neu/", session);
        EXPECT_EQ(person.log, row.log);
        EXPECT_EQ(
            folder.get("neu/a.wbmp") + folder.get("neu/b/b.gif"), row.copied + std::string("B"));
    }
    CopyDeckImages(rows[2].images, from, folder.path() + "./alt/", session);
    EXPECT_EQ(folder.get("alt/a.wbmp"), "A") << "copied onto itself";
    EXPECT_THROW(
        CopyDeckImages(rows[2].images, from, folder.path() + "neu/a.wbmp/", session), FileFailure);
}

} // namespace
} // namespace quillmere
