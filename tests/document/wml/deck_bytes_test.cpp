#include "document/wml/deck_bytes.h"

#include "document/wml/deck_places.h"

#include "support/small_random.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

using namespace std::string_literals;

TEST(DeckBytes, AnyFileComesBackAsItWas)
{
    const auto shifting = "<?xml encoding='iso-2022-jp'?>\x1B$B<+"s; // and back, or not
    for (std::uint64_t seed = 0; seed < 400; ++seed) {
        const auto bytes = test::randomBytes(seed % 41, seed);
        for (const auto& mark : {""s, "\xFF\xFE"s, "\xFE\xFF"s, "\xEF\xBB\xBF"s, "<\0?\0"s,
                 "\0<\0?"s, shifting, shifting + "\x1B(B"})
            ASSERT_EQ(DeckBytes(mark + bytes).file(), mark + bytes) << "seed " << seed;
    }
}

/// A file, how it is read, and how "\xFC\x80" (ü and the euro) is written into it.
struct EncodingRow {
    std::string file;
    DeckEncoding encoding;
    std::string decoded;
    std::string encoded;
    bool isValid = true;
};

TEST(DeckBytes, ReadsAndWritesCharactersInTheEncodingOfTheFile)
{
    using enum DeckEncoding;
    const auto declared = [](const std::string& name, const std::string& text) {
        return "<?xml version=\"1.0\" encoding='" + name + "' ?>" + text;
    };
    const std::string utf8Both = "\xC3\xBC\xE2\x82\xAC";
    const EncodingRow rows[] = {{"\xC3\xBC", Utf8, "\xFC", utf8Both},
        {"\xE2\x88\x92\xFC", Utf8, "&#8722;\xFC", utf8Both, false},
        {"abc", Utf8, "abc", "&#252;&#8364;"},
        {declared("ISO-8859-1", "\xFC"), Windows1252, declared("ISO-8859-1", "\xFC"),
            "\xFC&#8364;"},
        {declared("windows-1252", "\x80\x81"), Windows1252, declared("windows-1252", "\x80\x81"),
            "\xFC\x80", false},
        {declared("iso-8859-15", "\xA4"), Named, declared("iso-8859-15", "\x80"), "\xFC\xA4"},
        {declared("koi8-r", "\xF0"), Named, declared("koi8-r", "&#1055;"), "&#252;&#8364;"},
        {declared("iso-2022-jp", "\x1B$B<+\x1B(B"), Named, declared("iso-2022-jp", "&#33258;"),
            "&#252;&#8364;"},
        {declared("us-ascii", "\xFC"), Named, declared("us-ascii", "\xFC"), "&#252;&#8364;", false},
        {declared("utf-16", "\xC3\xBC"), Utf8, declared("utf-16", "\xFC"), utf8Both},
        {declared("klingon", "\xC3\xBC"), Utf8, declared("klingon", "\xFC"), utf8Both},
        {"\xFF\xFE\xFC\0"s, Utf16LittleEndian, "\xFC", utf8Both},
        {"\xFE\xFF\xD8\0"s, Utf16BigEndian, "?", utf8Both, false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.decoded);
        const DeckBytes deck(row.file);
        EXPECT_EQ(deck.encoding(), row.encoding);
        EXPECT_EQ(deck.decoded(deck.text()), row.decoded);
        EXPECT_EQ(deck.encoded("\xFC\x80"), row.encoded);
        EXPECT_EQ(deck.isValid(deck.text()), row.isValid);
    }
    EXPECT_TRUE(DeckBytes(declared("utf-16", "")).declaresWrongly());
    EXPECT_FALSE(DeckBytes(declared("koi8-r", "")).declaresWrongly());
}

TEST(DeckPlaces, CountCharacters)
{
    const DeckBytes deck("\xC3\xBC\xE2\x82\xACx\n\xC3\xBCy\r\nz");
    DeckPlaces places(deck);
    const std::pair<char, TextPlace> rows[]
        = {{'x', {1, 3}}, {'y', {2, 2}}, {'x', {1, 3}}, {'\r', {2, 3}}, {'z', {3, 1}}};
    for (const auto& [character, place] : rows)
        EXPECT_EQ(places.at(deck.text().find(character)), place) << character;
    EXPECT_EQ(places.at(deck.text().size()), (TextPlace{3, 2}));
}

TEST(DecodedPlaces, CountReferencesAsTheirCharacters)
{
    const DeckBytes deck("a\xE2\x88\x92 b\xE2\x88\x92\xE2\x88\x92"
                         "c\n\xC3\xBCy\xE2\x88\x92z");
    const auto text = deck.decoded(deck.text());
    ASSERT_TRUE(text.starts_with("a&#8722; b"));
    const TextPlaces places(text);
    const DecodedPlaces decoded(deck);
    const std::pair<char, TextPlace> rows[] = {{'a', {1, 1}}, {'&', {1, 2}}, {' ', {1, 3}},
        {'b', {1, 4}}, {'c', {1, 7}}, {'y', {2, 2}}, {'z', {2, 4}}};
    for (const auto& [character, place] : rows)
        EXPECT_EQ(decoded.inDeck(places.at(text.find(character))), place) << character;
}

} // namespace
} // namespace quillmere
