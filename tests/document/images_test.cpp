#include "document/images.h"

#include "document/failure.h"
#include "support/fake_platform.h"
#include "support/scratch_folder.h"
#include "support/small_deck.h"
#include "support/stopwatch.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

class Images : public testing::Test {
protected:
    Images()
    {
        for (std::size_t i = 0; i < 3; ++i) {
            auto& area = areas[i];
            area.designFile = deck.files.createFile("Wml", ".htm");
            area.spareDesignFile = deck.files.createFile("Spare", ".htm");
            area.wmlFile = "Wml.wml";
        }
        areas[0].pristineFile = "Alt.wml";
        deck.files.write("Alt.wml", {});
        deck.files.write("Wml.wml", {});
    }
    [[nodiscard]] std::string add(std::size_t area, const std::string& path)
    {
        return RegisterImage(deck.session, area, path, "Text");
    }
    void expectFiles(const std::string& names, bool areThere)
    {
        for (std::size_t at = 0; at < names.size(); at = names.find(' ', at) + 1) {
            const auto name = names.substr(at, names.find(' ', at) - at);
            EXPECT_EQ(deck.files.exists(name), areThere) << name;
            if (names.find(' ', at) == std::string::npos) break;
        }
    }
    test::SmallDeck deck{3};
    Deck& areas = deck.session.deck;
};

TEST_F(Images, GetOneEntryAndOneDisplayCopyForEachArea)
{
    EXPECT_EQ(add(0, "/decks/bilder/a.wbmp"), "Bmp0.bmp");
    EXPECT_EQ(add(0, "/DECKS/bilder/A.Wbmp"), "Bmp0.bmp");
    EXPECT_EQ(add(1, "/decks/bilder/a.wbmp"), "Bmp1.bmp");
    EXPECT_EQ(deck.copies.drawn, std::vector<std::string>(2, "/decks/bilder/a.wbmp|Text"));
    EXPECT_EQ(deck.files.read("Bmp1.bmp"), "BM");
    EXPECT_EQ(deck.session.imageColour, 99);

    ASSERT_EQ(areas[0].images.size(), 3U); // the blank one that it begins with, and the spare one
    const ImageEntry& entry = areas[0].images[1];
    EXPECT_EQ(entry.sourceDir, "/decks/");
    EXPECT_EQ(entry.sourceFile, "bilder/a.wbmp") << "as the deck writes it";
    EXPECT_EQ(entry.pictureHeightPx + entry.heightPx, 14);
    EXPECT_EQ(entry.pictureWidthPx + entry.widthPx, 10);
    EXPECT_EQ(entry.alignment, "top");
    EXPECT_FALSE(entry.hasLayout);

    for (const char* path : {"wbmp ", "/decks/a.gif", "/decks/a.wbmp ", ""})
        EXPECT_EQ(add(0, path), "") << path;
    EXPECT_EQ(add(0, "xwbmp"), "Bmp2.bmp") << "the dot is no part of the test";
    EXPECT_EQ(add(0, "/anderswo/b.WBMP"), "Bmp3.bmp");
    EXPECT_EQ(areas[0].images[3].sourceDir, "/anderswo/");
    EXPECT_EQ(areas[0].images.size(), 5U);

    EXPECT_EQ(NewWbmpName(deck.session), "WBmp0.wbmp");
    EXPECT_EQ(FindFreeBmpName(deck.session), "Bmp4.bmp");
}

TEST_F(Images, TakeTheDevicesGroundAndChosenNames)
{
    (void)add(0, "/decks/a.wbmp");
    EXPECT_EQ(deck.copies.ground, 2391815);
    PageStyle device;
    device.backColour = 0x123456;
    deck.session.devices[1] = &device;
    areas[0].surfaceKind = 1;
    EXPECT_EQ(
        RegisterImage(deck.session, 2, "/decks/a.wbmp", "", {"/t/", "Bild.bmp"}), "/t/Bild.bmp");
    EXPECT_EQ(deck.copies.ground, 0x123456);
    EXPECT_TRUE(deck.files.exists("/t/Bild.bmp"));
}

TEST_F(Images, AreFoundInAListThatWasStartedAnew)
{
    for (const char* name : {"a", "b", "c"})
        (void)add(0, std::string("/decks/").append(name).append(".wbmp"));
    areas[0].images = std::vector<ImageEntry>(2);
    EXPECT_EQ(add(0, "/decks/c.wbmp"), "Bmp3.bmp") << "gone with the list";
    EXPECT_EQ(add(0, "/decks/d.wbmp"), "Bmp4.bmp");
    auto grown = areas[0].images; // as long as the list that is known, and another one
    grown[1].sourceFile = "e.wbmp";
    areas[0].images = grown;
    EXPECT_EQ(add(0, "/decks/c.wbmp"), "Bmp5.bmp");
    EXPECT_EQ(add(0, "/decks/e.wbmp"), "Bmp3.bmp");
}

TEST_F(Images, ThousandsInOneAreaAreFoundInTime)
{
    auto& images = areas[0].images;
    images.resize(3000);
    for (std::size_t i = 0; i < images.size(); ++i) {
        images[i].sourceDir = "/decks/";
        images[i].displayFile = images[i].sourceFile = std::to_string(i) + ".wbmp";
    }
    const auto findAll = [&] {
        for (std::size_t i = 0; i + 1 < images.size(); ++i)
            ASSERT_EQ(add(0, "/decks/" + images[i].sourceFile), images[i].displayFile);
    };
    EXPECT_LT(test::millisecondsOf(findAll), 50);
}

TEST_F(Images, AnAreaGoesWithItsFilesAndTheCopiesThatNoOtherShows)
{
    (void)add(0, "/decks/a.wbmp"); // Bmp0
    (void)add(0, "/decks/b.wbmp"); // Bmp1
    (void)add(1, "/decks/b.wbmp"); // Bmp2
    deck.files.write("Wml1.htm", "<p><IMG SRC=\"file://BMP1.bmp\"><img src=\" Bmp2.bmp \">");
    areas[0].surfaceKind = 1;
    RemoveArea(deck.session, 0, true);
    ASSERT_EQ(areaCount(areas), 2U);
    EXPECT_EQ(areas[0].designFile, "Wml1.htm");
    expectFiles("Wml0.htm Spare0.htm Bmp0.bmp", false);
    expectFiles("Wml1.htm Bmp1.bmp Bmp2.bmp Wml.wml Alt.wml", true);
    EXPECT_EQ(areas[0].pristineFile, "Alt.wml") << "the deck's own values go on";
    EXPECT_EQ(areas[0].surfaceKind, 1);
    EXPECT_EQ(areas[0].images[1].displayFile, "Bmp2.bmp");

    RemoveArea(deck.session, 1, true);
    const auto before = areas;
    RemoveArea(deck.session, 0, false);
    expectFiles("Wml.wml Alt.wml", true);
    areas = before;
    RemoveArea(deck.session, 0, true);
    expectFiles("Wml.wml Alt.wml", false);
    EXPECT_EQ(areaCount(areas), 0U);
}

TEST_F(Images, WhatThePersonChangedIsReadFromTheTagThatShowsTheChosenOne)
{
    (void)add(1, "/decks/a.wbmp");
    (void)add(1, "/decks/b.wbmp");
    deck.files.write("Wml1.htm",
        "<p><img src=\"Bmp0.bmp\" style=\"height: 1px; width: 2px\">"
        "<IMG SRC=file://Bmp1.bmp align=Bottom STYLE=\"HEIGHT: 30px; WIDTH: 40px\"><img src=x>");
    deck.session.currentArea = 1;
    auto& chosen = areas[1].images[2];
    for (const int cursor : {-1, 0, 3}) { // none, the blank one, the spare one
        areas[1].imageCursor = static_cast<std::int16_t>(cursor);
        ReadImageTags(deck.session);
        EXPECT_EQ(chosen.heightPx, 7);
    }
    areas[1].imageCursor = 2;
    ReadImageTags(deck.session);
    EXPECT_EQ(chosen.heightPx, 30);
    EXPECT_EQ(chosen.widthPx, 40);
    EXPECT_EQ(chosen.alignment, "Bottom");
    EXPECT_EQ(chosen.pictureHeightPx, 7);
    EXPECT_EQ(areas[1].images[1].heightPx, 7);
    deck.files.write("Wml1.htm", "<p><img src=\"Bmp1.bmp\" style=\"height: 9px; width: vielpx\">");
    EXPECT_THROW(ReadImageTags(deck.session), TypeMismatch);
    EXPECT_EQ(chosen.heightPx, 30);
}

TEST(CopyDeckImages, CopiesWhatIsThereAndAsksForTheRest)
{
    using Log = std::vector<std::string>;
    const struct {
        const char* images;
        std::vector<bool> answers;
        Log log;
        const char* copied; // what a.wbmp of the new directory holds then
    } rows[] = {
        {"<img src=\"a.wbmp\" alt=\"x\"/><IMG SRC=\" b/b.gif \"><img alt=\"\">"
         "<img src=\"http://example.org/c.wbmp\"><img src=\"a.wbmp\">",
            {false}, {"130: a.wbmp"}, "anders"},
        {"<img src=\"c.wbmp\"/><img src=\"a.wbmp\"/><img src=\"c.wbmp\"/>", {true},
            {"131: c.wbmp", "130: a.wbmp"}, "A"},
        {"<img src=\"a.wbmp\"/>", {}, {}, "A"}, // the same bytes by now
    };
    const test::ScratchFolder folder;
    folder.put("alt/a.wbmp", "A");
    folder.put("alt/b/b.gif", "B");
    folder.put("neu/a.wbmp", "anders");
    test::SmallDeck none;
    test::ScriptedPrompter person;
    DocumentSession session{
        none.files, none.copies, person, none.core.settings, none.core.words, OutputRules(), {}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.images);
        person.answers = row.answers;
        person.log.clear();
        CopyDeckImages(row.images, folder.path() + "alt/", folder.path() + "neu/", session);
        EXPECT_EQ(person.log, row.log);
        EXPECT_EQ(folder.get("neu/a.wbmp"), row.copied);
        EXPECT_EQ(folder.get("neu/b/b.gif"), "B");
    }
    const std::string_view image = "<img src=\"a.wbmp\"/>";
    CopyDeckImages(image, folder.path() + "alt/", folder.path() + "./alt/", session);
    EXPECT_EQ(folder.get("alt/a.wbmp"), "A") << "copied onto itself";
    EXPECT_THROW(
        CopyDeckImages(image, folder.path() + "alt/", folder.path() + "neu/a.wbmp/", session),
        FileFailure);
}

} // namespace
} // namespace quillmere
