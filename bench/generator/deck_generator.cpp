#include "generator/deck_generator.h"

#include "support/small_random.h"

#include <span>
#include <utility>

namespace quillmere::bench {
namespace {

using namespace std::string_view_literals;
using Strings = std::span<const std::string_view>;

constexpr std::string_view kProlog = "<?xml version=\"1.0\"{E}?>\n"
                                     "<!DOCTYPE wml PUBLIC \"-//WAPFORUM//DTD WML 1.1//EN\""
                                     " \"http://www.wapforum.org/DTD/wml_1.1.xml\">\n<wml>\n";

constexpr std::string_view kPlainWords[] = {"Abfahrt", "um", "18.30", "Gleis", "und", "der", "Film",
    "Karten", "ab", "7,50", "Wetter", "heute", "sonnig", "bis", "22", "Grad", "Preis", "Angebot",
    "Bestellung", "Uhr", "nach", "Hamburg", "im", "Kino", "&amp;", "Tor", "2:1", "Nachrichten"};
constexpr std::string_view kAccentWords[] = {"K\xF6ln", "f\xFCr", "t\xE4glich", "\xD6lpreis",
    "h\xF6ren", "M\xFCnchen", "\xC4nderung", "\xDCrdingen", "Ma\xDFstab", "caf\xE9", "10\x80"};
constexpr std::string_view kFormats[] = {"b", "i", "u", "big", "small", "strong", "em"};
constexpr std::string_view kAligns[]
    = {"", " align=\"left\"", " align=\"center\"", " align=\"right\""};
constexpr std::string_view kStray[] = {"<", ">", "</b>", "</p>", "<p>", "</select>", "</i>", "<<",
    "</option>", "</td>", "<b>", "<!-- ", "&", "</a>", "<br"};

class Generator {
public:
    Generator(std::uint64_t seed, const DeckOptions& options)
        : random_(seed)
        , options_(options)
    {
    }

    std::string run()
    {
        deck_ = kProlog;
        const auto encoding = deck_.find("{E}");
        deck_.replace(encoding, 3, options_.eightBit ? R"( encoding="windows-1252")"sv : ""sv);
        for (int card = 1;
             card == 1 || (!options_.oneCard && deck_.size() + 80 < options_.targetBytes); ++card)
            addCard(card);
        deck_ += "</wml>\n";
        if (fault() && random_.chance(0.5)) deck_.resize(random_.below(deck_.size()));
        return std::move(deck_);
    }

private:
    bool fault() { return options_.brokenness > 0 && random_.chance(options_.brokenness); }
    std::string_view pick(Strings rows) { return rows[random_.below(rows.size())]; }

    void addWords(std::size_t most)
    {
        for (auto count = 1 + random_.below(most); count > 0; --count) {
            const bool accent = options_.eightBit && random_.chance(0.2);
            deck_ += accent ? pick(kAccentWords) : pick(kPlainWords);
            if (fault()) deck_ += pick(kStray);
            deck_ += random_.chance(0.1) ? '\n' : ' ';
        }
    }

    void open(std::string tag)
    {
        const auto quote = tag.find('"');
        if (quote != std::string::npos && fault()) { // unquoted, or without its closing quote
            tag.erase(quote, random_.chance(0.7) ? 1 : 0);
            if (random_.chance(0.7)) tag.erase(tag.find('"'), 1);
        }
        if (!fault()) deck_ += "<" + tag + ">";
    }

    void close(std::string_view name)
    {
        if (!fault()) deck_.append("</").append(name).append(">");
        if (fault()) deck_ += pick(kStray);
    }

    /// An element of words; its end is looked for by its name.
    void addElement(const std::string& tag, std::size_t mostWords)
    {
        open(tag);
        addWords(mostWords);
        close(std::string_view(tag).substr(0, tag.find(' ')));
    }

    void addCard(int number)
    {
        const auto name = std::to_string(number);
        open("card id=\"k" + name + R"(" title="Karte )" + name + R"(" newcontext="true")");
        deck_ += '\n';
        const auto length = 150 + random_.below(700);
        const auto end = options_.oneCard ? options_.targetBytes : deck_.size() + length;
        while (deck_.size() < end && deck_.size() + 60 < options_.targetBytes) {
            open(std::string("p").append(pick(kAligns)));
            for (auto parts = 1 + random_.below(4); parts > 0; --parts)
                addPart();
            close("p");
            deck_ += '\n';
        }
        if (random_.chance(0.7)) {
            open(R"(do type="accept" label="Weiter" name="Sprung")");
            if (!fault()) deck_ += "<go href=\"#k" + std::to_string(number + 1) + "\"/>";
            close("do");
            deck_ += '\n';
        }
        close("card");
        deck_ += '\n';
    }

    void addPart()
    {
        switch (random_.below(9)) {
        case 0:
            return addTable();
        case 1:
            open("select name=\"wahl\"");
            for (auto count = 1 + random_.below(5); count > 0; --count)
                addElement("option value=\"" + std::to_string(count) + "\"", 2);
            return close("select");
        case 2:
            return addElement("a href=\"#k" + std::to_string(1 + random_.below(9)) + "\"", 3);
        case 3:
            return addPicture(std::to_string(random_.below(4)));
        case 4:
            deck_ += "<br/>";
            return;
        case 5:
        case 6:
            return addFormat();
        default:
            return addWords(12);
        }
    }

    void addPicture(const std::string& number)
    {
        open("img src=\"" + std::string(options_.pictures) + number + R"(.wbmp" alt="Bild )"
            + number + "\"/");
    }

    void addFormat()
    {
        const auto outer = pick(kFormats);
        const auto inner = pick(kFormats);
        const bool nested = outer != inner && random_.chance(0.3);
        const bool overlaps = nested && fault();
        open(std::string(outer));
        addWords(4);
        if (nested) {
            open(std::string(inner));
            addWords(3);
            close(overlaps ? outer : inner);
        }
        close(overlaps ? inner : outer);
        deck_ += ' ';
    }

    void addTable()
    {
        const auto columns = 1 + random_.below(3);
        open(R"(table title="Plan" columns=")" + std::to_string(columns) + "\"");
        for (auto rows = 1 + random_.below(4); rows > 0; --rows) {
            open("tr");
            for (std::size_t column = 0; column < columns; ++column)
                addElement("td", 2);
            close("tr");
        }
        close("table");
    }

    test::SmallRandom random_;
    const DeckOptions& options_;
    std::string deck_;
};

} // namespace

std::string generateDeck(std::uint64_t seed, const DeckOptions& options)
{
    return Generator(seed, options).run();
}

} // namespace quillmere::bench
