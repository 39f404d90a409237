#include "document/changes/character_references.h"
#include "document/changes/markup_document.h"
#include "document/changes/plain_markup.h"
#include "document/changes/well_formedness.h"
#include "document/text/text_place.h"
#include "support/token_soup.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

/// The tokens in a form that shows their parts: S(name a=v), E, X for an empty tag, T, C, D, I, !.
std::string tokensOf(std::string_view text)
{
    constexpr char kKinds[] = {'S', 'X', 'E', 'T', 'C', 'D', 'I', '!'};
    const auto document = readMarkup(text);
    std::string all;
    for (const auto& token : document.tokens) {
        all += kKinds[static_cast<int>(token.kind)];
        all.append("(").append(token.name).append(token.content);
        for (const auto& attribute : document.attributesOf(token))
            all.append(" ").append(attribute.name).append("=").append(attribute.value);
        all += ')';
    }
    return all;
}

TEST(MarkupDocument, ReadsTokensOfWholeAndBrokenMarkup)
{
    const char* const rows[][2] = {{R"(<?xml version='1.0'?><!DOCTYPE a [<!ENTITY b "]>">]><a/>)",
                                       R"(I(xml version='1.0')!( a [<!ENTITY b "]>">])X(a))"},
        {R"(<!DOCTYPE a PUBLIC "<[" '><]'><b/>)", R"(!( a PUBLIC "<[" '><]')X(b))"},
        {R"(<a b = "1>2" c='"'>x</a >)", R"(S(a b=1>2 c=")T(x)E(a))"},
        {"<!-- a > b --><![CDATA[<a>]]>", "C( a > b )D(<a>)"}, {"1 < 2 <b>", "T(1 < 2 )S(b)"},
        {"<a href=#x/><a href=#y z>", "X(a href=#x)S(a href=#y z=)"},
        {R"(<a href="#x>b</a> <i c='d'>)", "S(a href=#x)T(b)E(a)T( )S(i c=d)"},
        {R"(<a href="a<b">)", "S(a href=a<b)"}, {"<a <a <b>", "S(a)S(a)S(b)"},
        {"x</>y</ b><", "T(x)E()T(y)E( b=)T(<)"},
        {"<!-- a <b>c<![CDATA[ d <?e", "C( a <b)T(c)D( d <?e)"}, {"<a b=\"", "S(a b=)"}};
    for (const auto& row : rows)
        EXPECT_EQ(tokensOf(row[0]), row[1]);
}

TEST(MarkupDocument, CharactersOfReferences)
{
    EXPECT_EQ(decodeReferences("&lt;&#9;&#x42;&#228;&#x20AC;&nbsp;"), "<\tB\xE4\x80\xA0");
    EXPECT_EQ(decodeReferences("&amp;lt; & &; &#; &#x110000; &#1; a&b"),
        "&lt; & &; &#; &#x110000; &#1; a&b");
    EXPECT_EQ(decodeReferences("&#8722;&vdata;"), "\x01#8722;\x01vdata;");
}

TEST(TextPlaces, CountLinesOfAllEndings)
{
    const std::string_view text = "a\r\nb\nc\rd\n\re";
    const TextPlaces places(text);
    EXPECT_EQ(places.at(text.find('\n')), (TextPlace{1, 3}));
    const TextPlace letters[] = {{1, 1}, {2, 1}, {3, 1}, {4, 1}, {6, 1}};
    for (std::size_t i = 0; i < std::size(letters); ++i)
        EXPECT_EQ(places.at(text.find(static_cast<char>('a' + i))), letters[i]) << i;
}

TEST(WellFormedness, FirstFaultAndItsPlace)
{
    using enum MarkupFault;
    const struct {
        MarkupFault fault;
        std::size_t offset;
        const char* name;
        const char* text;
    } rows[] = {{StrayLess, 5, "", "<a>1 < 2</a>"}, {UnendedTag, 3, "b", "<a><b <i/></a>"},
        {BadTag, 3, "", "<a></>"}, {BadTag, 0, "a", "<a =''></a>"},
        {MissingBlank, 8, "a", "<a b='1'c='2'/>"}, {MissingValue, 3, "b", "<a b/>"},
        {UnquotedValue, 3, "b", "<a b=1/>"}, {UnendedValue, 3, "b", "<a b=\"1><c/></a>"},
        {LessInValue, 3, "b", "<a b='<'/>"}, {DoubleAttribute, 0, "c", "<a c='' b='' c=''/>"},
        {UnendedComment, 3, "", "<a><!-- > </a>"},
        {DashesInComment, 3, "", "<a><!-- a -- b --></a>"},
        {DashesInComment, 3, "", "<a><!-- a ---></a>"},
        {UnendedSection, 3, "", "<a><![CDATA[x]></a>"},
        {UnendedInstruction, 3, "", "<a><? x?></a>"},
        {BadDeclaration, 1, "", " <?xml version='1.0'?><a/>"},
        {BadDoctype, 4, "", "<a/><!DOCTYPE a>"}, {BadDoctype, 0, "", "<!DOCTYPE a PUBLIC 'x'><a/>"},
        {BadDoctype, 0, "", "<!DOCTYPE a SYSTEM 'x' 'y'><a/>"},
        {BadDoctype, 0, "", "<!doctype a><a/>"}, {BadCharacter, 3, "", "<a>\x02</a>"},
        {CharacterBeyondEncoding, 3, "", "<a>\xE4</a>"}, {BadReference, 3, "", "<a>&b c</a>"},
        {BadReference, 6, "", "<a b='&'/>"}, {UnknownEntity, 3, "nbsp", "<a>&nbsp;</a>"},
        {UnknownEntity, 15, "nbsp", "<!DOCTYPE a><a>&nbsp;</a>"},
        {SectionEndInText, 4, "", "<a>x]]></a>"}, {TextOutsideRoot, 5, "", "<a/> x"},
        {SecondRoot, 4, "b", "<a/><b/>"}, {NoRoot, 10, "", "<!-- a -->"}, {NoRoot, 0, "", ""},
        {WrongEnd, 7, "b", "<b><i>x</b></i>"}, {WrongEnd, 7, "a", "<a></a></a>"},
        {WrongEnd, 3, "A", "<a></A>"}, {UnendedElement, 3, "b", "<a><b>"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        const auto fault = firstFault(row.text, readMarkup(row.text));
        ASSERT_TRUE(fault && fault->fault == row.fault);
        EXPECT_EQ(fault->offset, row.offset);
        EXPECT_EQ(fault->name, row.name);
    }
}

TEST(WellFormedness, NamesAreThoseOfTheEncoding)
{
    const std::string declared = "<?xml version='1.0' encoding='";
    const struct {
        bool isWellFormed;
        std::string text;
    } rows[] = {{true, "<a><\xC3\xA4\xE6\x97\xA5-\xC2\xB7 \xCE\xB1='x'/></a>"},
        {false, "<a><\xC3\x97/></a>"}, {false, "<a b\xE2\x88\x92='x'/>"},
        {false, "<a><\xCC\x80/></a>"}, {true, "<a\xCC\x80/>"}, {true, "<a\xF0\x90\x80\x80/>"},
        {true, "<!DOCTYPE a SYSTEM 'a'><a>&\xC3\xA4;</a>"},
        {true, declared + "windows-1252'?><\x8A\xE4/>"},
        {false, declared + "iso-8859-1'?><a\xD7/>"}, {true, declared + "koi8-r'?><a\xF7/>"},
        {true, declared + "iso-8859-15'?><\xA6/>"}};
    for (const auto& row : rows)
        EXPECT_EQ(!firstFault(row.text, readMarkup(row.text)), row.isWellFormed) << row.text;
}

void expectVerdictOfReader(const std::string& text, const MarkupVerdict& verdict)
{
    const auto fault = firstFault(text, readMarkup(text));
    ASSERT_EQ(fault.has_value(), verdict.fault.has_value()) << text;
    if (!fault) return;
    ASSERT_EQ(fault->fault, verdict.fault->fault) << text;
    ASSERT_EQ(fault->offset, verdict.fault->offset) << text;
    ASSERT_EQ(fault->name, verdict.fault->name) << text;
}

constexpr std::string_view kWmlHead
    = "<?xml version=\"1.0\"?>\r\n<!DOCTYPE wml PUBLIC \"-//WAPFORUM//DTD WML 1.1//EN\""
      " \"http://www.wapforum.org/DTD/wml_1.1.xml\">\r\n";

TEST(PlainMarkup, AgreesWithTheReaderOnSmallTexts)
{
    const std::string_view pieces[] = {"<a>", "</a>", "<b/>", "</b>", "<a b=\"1\" b=''>", "x", " ",
        "<a b='<'/>", "<a b=\"1\"c='2'/>", "<a b = '1'/>", "</a x>", "<a b='&c;>'/>", "&d", "&#1;",
        "]]>", "<!-- -->", "<?e?>", "<a b=1>", "<a b>", "<a/ >", "</a", "<", ">"};
    test::forEachSequence(
        pieces, 4,
        [](const std::string& text) {
            const auto verdict = verdictOnPlainMarkup(text);
            if (verdict) {
                ASSERT_NO_FATAL_FAILURE(expectVerdictOfReader(text, *verdict));
            }
        },
        std::string(kWmlHead));
}

} // namespace
} // namespace quillmere
