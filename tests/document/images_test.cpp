#include "document/images.h"

#include "document/design_text.h"
#include "document/failure.h"
#include "document/word_ids.h"
#include "support/conversion_session.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

namespace quillmere {
namespace {

/// Draws nothing and keeps the ground that it was asked for.
class GroundLog final : public DisplayCopies {
public:
    [[nodiscard]] DisplayCopy draw(const std::string& path, std::string_view alternativeText,
        std::int32_t backgroundColour) override
    {
        drawn.push_back(std::string(path).append("|").append(alternativeText));
        ground = backgroundColour;
        return {"BM", 7, 5, 99};
    }
    std::vector<std::string> drawn;
    std::int32_t ground = 0;
};

/// Gives the same answer to each question and keeps what was asked and shown.
class AnsweringPrompter final : public Prompter {
public:
    [[nodiscard]] bool ask(int word, std::span<const std::string> gaps, MessageIcon icon) override
    {
        show(word, gaps, icon);
        return answer;
    }
    void show(int word, std::span<const std::string> gaps, MessageIcon) override
    {
        log.push_back(std::to_string(word).append(" ").append(gaps.front()));
    }
    [[nodiscard]] bool showNote(Note) override { return false; }
    bool answer = true;
    std::vector<std::string> log;
};

class Images : public testing::Test {
protected:
    explicit Images(std::size_t areas = 3)
    {
        session.deck.resize(areas + 1);
        for (std::size_t i = 0; i < areas; ++i) {
            auto& area = session.deck[i];
            area.deckDir = "/decks/";
            area.designDir = area.spareDesignDir = area.wmlDir = "/t/";
            area.designFile = std::string("Wml").append(std::to_string(i)).append(".htm");
            area.spareDesignFile = std::string("Spare").append(std::to_string(i));
            area.wmlFile = "Wml.wml";
            workFiles.write("/t/" + area.designFile, "<p>");
            workFiles.write("/t/" + area.spareDesignFile, {});
        }
        session.deck[0].pristineDir = "/t/";
        session.deck[0].pristineFile = "Alt.wml";
        workFiles.write("/t/Alt.wml", {});
        workFiles.write("/t/Wml.wml", {});
    }

    [[nodiscard]] std::string add(std::size_t area, const std::string& path)
    {
        return RegisterImage(session, area, path, "Text");
    }
    void design(std::size_t area, const std::string& text)
    {
        workFiles.write("/t/" + session.deck[area].designFile, text);
    }

    test::MapWorkFiles workFiles;
    GroundLog copies;
    AnsweringPrompter prompter;
    test::NoSettings settings;
    test::NoWords words;
    DocumentSession session{workFiles, copies, prompter, settings, words, OutputRules(), {}};
};

TEST_F(Images, GetOneEntryAndOneDisplayCopyForEachArea)
{
    EXPECT_EQ(add(0, "/decks/bilder/a.wbmp"), "/t/Bmp0.bmp");
    EXPECT_EQ(add(0, "/DECKS/bilder/A.Wbmp"), "/t/Bmp0.bmp");
    EXPECT_EQ(add(1, "/decks/bilder/a.wbmp"), "/t/Bmp1.bmp");
    EXPECT_EQ(copies.drawn.size(), 2U);
    EXPECT_EQ(copies.drawn[0], "/decks/bilder/a.wbmp|Text");
    EXPECT_EQ(workFiles.read("/t/Bmp1.bmp"), "BM");
    EXPECT_EQ(session.imageColour, 99);

    const auto& images = session.deck[0].images;
    ASSERT_EQ(images.size(), 3U); // the blank one that each area begins with, and the spare one
    EXPECT_EQ(images[0].displayFile, "");
    const ImageEntry& entry = images[1];
    EXPECT_EQ(entry.sourceDir, "/decks/");
    EXPECT_EQ(entry.sourceFile, "bilder/a.wbmp") << "as the deck writes it";
    EXPECT_EQ(entry.displayDir + entry.displayFile, "/t/Bmp0.bmp");
    EXPECT_EQ(entry.pictureHeightPx, 7);
    EXPECT_EQ(entry.heightPx, 7);
    EXPECT_EQ(entry.pictureWidthPx, 5);
    EXPECT_EQ(entry.widthPx, 5);
    EXPECT_EQ(entry.alignment, "top");
    EXPECT_FALSE(entry.hasLayout);
    EXPECT_EQ(images[2].sourceFile, "");
}

TEST_F(Images, AreThoseWhoseNamesEndInWbmp)
{
    for (const char* path : {"wbmp", "/decks/a.gif", "/decks/a.wbmp ", ""}) {
        SCOPED_TRACE(path);
        EXPECT_EQ(add(0, path), "");
    }
    EXPECT_EQ(session.deck[0].images.size(), 2U);
    EXPECT_EQ(add(0, "xwbmp"), "/t/Bmp0.bmp") << "the dot is no part of the test";
    EXPECT_EQ(add(0, "/anderswo/b.WBMP"), "/t/Bmp1.bmp");
    EXPECT_EQ(session.deck[0].images[2].sourceDir, "/anderswo/");
    EXPECT_EQ(session.deck[0].images[2].sourceFile, "b.WBMP");
}

TEST_F(Images, TakeTheDevicesGroundAndChosenNames)
{
    (void)add(0, "/decks/a.wbmp");
    EXPECT_EQ(copies.ground, 2391815);
    PageStyle device;
    device.backColour = 0x123456;
    session.devices[1] = &device;
    session.deck[0].surfaceKind = 1;
    EXPECT_EQ(RegisterImage(session, 2, "/decks/a.wbmp", "", {"/t/ordner/", "Bild.bmp"}),
        "/t/ordner/Bild.bmp");
    EXPECT_EQ(copies.ground, 0x123456);
    EXPECT_TRUE(workFiles.exists("/t/ordner/Bild.bmp"));
    session.deck[0].surfaceKind = -1;
    (void)add(1, "/decks/a.wbmp");
    EXPECT_EQ(copies.ground, 2391815);
}

TEST_F(Images, AreFoundInAListThatWasStartedAnew)
{
    for (const char* name : {"a", "b", "c"})
        (void)add(0, std::string("/decks/").append(name).append(".wbmp"));
    session.deck[0].images = std::vector<ImageEntry>(2);
    EXPECT_EQ(add(0, "/decks/c.wbmp"), "/t/Bmp3.bmp") << "gone with the list";
    EXPECT_EQ(add(0, "/decks/d.wbmp"), "/t/Bmp4.bmp");
    EXPECT_EQ(add(0, "/decks/c.wbmp"), "/t/Bmp3.bmp");

    auto grown = session.deck[0].images; // as long as the list that is known, and another one
    grown[1].sourceFile = "e.wbmp";
    session.deck[0].images = grown;
    EXPECT_EQ(add(0, "/decks/c.wbmp"), "/t/Bmp5.bmp");
    EXPECT_EQ(add(0, "/decks/e.wbmp"), "/t/Bmp3.bmp");
}

TEST_F(Images, ThousandsInOneAreaAreFoundInTime)
{
    const auto begin = std::chrono::steady_clock::now();
    auto& images = session.deck[0].images;
    images.resize(3000);
    int number = 100'000;
    for (auto& entry : images) {
        entry.sourceDir = session.deck[0].deckDir;
        entry.sourceFile = std::to_string(number++).append(".wbmp");
        entry.displayFile = entry.sourceFile;
    }
    for (std::size_t i = 0; i + 1 < images.size(); ++i)
        ASSERT_EQ(add(0, images[i].sourceDir + images[i].sourceFile), images[i].displayFile);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(50));
}

TEST_F(Images, WorkNamesAreFree)
{
    workFiles.write("/t/WBmp0.wbmp", {});
    workFiles.write("/t/Bmp0.bmp", {});
    EXPECT_EQ(NewWbmpName(session), "WBmp1.wbmp");
    EXPECT_FALSE(workFiles.exists("/t/WBmp1.wbmp"));
    EXPECT_EQ(FindFreeBmpName(session), "Bmp1.bmp");
}

TEST_F(Images, AnAreaGoesWithItsFilesAndTheCopiesThatNoOtherShows)
{
    (void)add(0, "/decks/a.wbmp"); // Bmp0
    (void)add(0, "/decks/b.wbmp"); // Bmp1
    (void)add(1, "/decks/b.wbmp"); // Bmp2
    design(1, "<p><IMG SRC=\"file:///t/BMP1.bmp\"><img src=\"/t/Bmp2.bmp\">");
    session.deck[0].surfaceKind = 1;
    RemoveArea(session, 0, true);

    ASSERT_EQ(areaCount(session.deck), 2U);
    EXPECT_EQ(session.deck[0].designFile, "Wml1.htm");
    for (const char* gone : {"/t/Wml0.htm", "/t/Spare0", "/t/Bmp0.bmp"})
        EXPECT_FALSE(workFiles.exists(gone)) << gone;
    for (const char* kept :
        {"/t/Wml1.htm", "/t/Bmp1.bmp", "/t/Bmp2.bmp", "/t/Wml.wml", "/t/Alt.wml"})
        EXPECT_TRUE(workFiles.exists(kept)) << kept;
    EXPECT_EQ(session.deck[0].pristineFile, "Alt.wml") << "the deck's own values go on";
    EXPECT_EQ(session.deck[0].surfaceKind, 1);
    EXPECT_EQ(session.deck[0].images[1].displayFile, "Bmp2.bmp");
    EXPECT_EQ(session.deck[2].images.size(), 2U);
}

TEST_F(Images, TheLastAreaTakesTheDecksFilesWithItWhenAsked)
{
    RemoveArea(session, 2, true);
    RemoveArea(session, 1, true);
    EXPECT_TRUE(workFiles.exists("/t/Wml.wml"));
    const auto before = session.deck;
    RemoveArea(session, 0, false);
    EXPECT_TRUE(workFiles.exists("/t/Alt.wml"));
    EXPECT_EQ(areaCount(session.deck), 0U);

    session.deck = before;
    RemoveArea(session, 0, true);
    EXPECT_FALSE(workFiles.exists("/t/Alt.wml"));
    EXPECT_FALSE(workFiles.exists("/t/Wml.wml"));
}

TEST_F(Images, WhatThePersonChangedIsReadFromTheTagThatShowsTheChosenOne)
{
    (void)add(1, "/decks/a.wbmp");
    (void)add(1, "/decks/b.wbmp");
    design(1,
        "<p><img src=\"/t/Bmp0.bmp\" style=\"height: 1px; width: 2px\">"
        "<IMG SRC=/t/Bmp1.bmp align=Bottom STYLE=\"HEIGHT: 30px; WIDTH: 40px\"><img src=\"x\">");
    session.currentArea = 1;
    auto& area = session.deck[1];
    for (const std::int16_t cursor : {std::int16_t{-1}, std::int16_t{0}, std::int16_t{3}}) {
        area.imageCursor = cursor;
        ReadImageTags(session); // none, the blank one, the spare one
        EXPECT_EQ(area.images[2].heightPx, 7);
    }
    area.imageCursor = 2;
    ReadImageTags(session);
    EXPECT_EQ(area.images[2].heightPx, 30);
    EXPECT_EQ(area.images[2].widthPx, 40);
    EXPECT_EQ(area.images[2].alignment, "Bottom");
    EXPECT_EQ(area.images[2].pictureHeightPx, 7);
    EXPECT_EQ(area.images[1].heightPx, 7);

    design(1, "<p><img src=\"/t/Bmp1.bmp\" style=\"height: 31px; width: vielpx\">");
    EXPECT_THROW(ReadImageTags(session), TypeMismatch);
    EXPECT_EQ(area.images[2].heightPx, 30);
    design(1, "<p><img src=\"/t/Bmp1.bmp\">");
    ReadImageTags(session);
    EXPECT_EQ(area.images[2].widthPx, 40);
}

class CopiedImages : public Images {
protected:
    void copy(const std::string& deck)
    {
        prompter.log.clear();
        CopyDeckImages(deck, folder.path() + "alt/", folder.path() + "neu/", session);
    }
    test::ScratchFolder folder;
};

TEST_F(CopiedImages, GoToTheSameFoldersOfTheNewDirectory)
{
    folder.put("alt/a.wbmp", "A");
    folder.put("alt/bilder/b.gif", "B");
    copy("<card><img src=\"a.wbmp\" alt=\"x\"/><IMG SRC=\" bilder/b.gif \"><img alt=\"\">"
         "<img src=\"http://example.org/c.wbmp\"><img src=\"a.wbmp\">");
    EXPECT_EQ(folder.get("neu/a.wbmp"), "A");
    EXPECT_EQ(folder.get("neu/bilder/b.gif"), "B");
    EXPECT_TRUE(prompter.log.empty());
}

TEST_F(CopiedImages, ReplaceAnotherPictureOnlyAfterAYes)
{
    folder.put("alt/a.wbmp", "A");
    folder.put("neu/a.wbmp", "anders");
    prompter.answer = false;
    copy("<img src=\"a.wbmp\"/>");
    EXPECT_EQ(prompter.log, std::vector<std::string>{"130 a.wbmp"});
    EXPECT_EQ(folder.get("neu/a.wbmp"), "anders");
    prompter.answer = true;
    copy("<img src=\"a.wbmp\"/>");
    EXPECT_EQ(folder.get("neu/a.wbmp"), "A");
    copy("<img src=\"a.wbmp\"/>"); // the same bytes by now
    EXPECT_TRUE(prompter.log.empty());
}

TEST_F(CopiedImages, MissingOnesAreToldAndTheRestIsCopied)
{
    folder.put("alt/b.wbmp", "B");
    copy("<img src=\"a.wbmp\"/><img src=\"a.wbmp\"/><img src=\"b.wbmp\"/>");
    EXPECT_EQ(prompter.log, std::vector<std::string>{"131 a.wbmp"});
    EXPECT_EQ(folder.get("neu/b.wbmp"), "B");
}

TEST_F(CopiedImages, OntoThemselvesStayAndAnUnwritableTargetFails)
{
    folder.put("alt/a.wbmp", "A");
    CopyDeckImages(
        "<img src=\"a.wbmp\"/>", folder.path() + "alt/", folder.path() + "./alt/", session);
    EXPECT_TRUE(prompter.log.empty());
    EXPECT_EQ(folder.get("alt/a.wbmp"), "A");
    folder.put("neu", "no directory");
    EXPECT_THROW(copy("<img src=\"a.wbmp\"/>"), FileFailure);
}

} // namespace
} // namespace quillmere
