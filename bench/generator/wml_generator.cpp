// The table of elements tells what may stand where; the depth is bounded.

#include "generator/wml_generator.h"

#include "document/wml/wml_elements.h"
#include "support/small_random.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>
#include <vector>

namespace quillmere::bench {

namespace {

using E = WmlElement;

/// How one author writes.
struct Hand {
    std::string_view declaration;
    std::string_view umlaut; ///< as the encoding spells it
    std::string_view lineEnd = "\n";
    std::string_view indent = "  ";
    char quote = '"';
};

constexpr std::string_view kDeclarations[] = {"<?xml version=\"1.0\"?>",
    "<?xml version='1.0' encoding='UTF-8' ?>", "<?xml version=\"1.0\" encoding=\"iso-8859-1\"?>",
    "<?xml version=\"1.0\" encoding=\"windows-1252\" standalone=\"no\"?>", "",
    "<?xml version=\"1.0\" encoding=\"iso-8859-2\"?>"};
constexpr std::string_view kUmlauts[] = {"\xC3\xBC", "\xC3\xA4", "\xFC", "\xE4", "&#252;", "\xE9"};
constexpr std::string_view kDoctypes[] = {"<!DOCTYPE wml PUBLIC \"-//WAPFORUM//DTD WML 1.1//EN\" "
                                          "\"http://www.wapforum.org/DTD/wml_1.1.xml\">",
    "<!DOCTYPE wml PUBLIC '-//WAPFORUM//DTD WML 1.2//EN'\n "
    "'http://www.wapforum.org/DTD/wml12.dtd'>",
    "<!DOCTYPE wml SYSTEM \"wml.dtd\" [\n<!ENTITY ort \"Bonn\">\n<!-- Ort -->\n]>"};
constexpr std::size_t kDoctypeWithEntity = 2;
constexpr std::string_view kWords[] = {"Wetter", "heute", "22", "Grad", "$(name)", "$$5", "&amp;",
    "&lt;b&gt;", "&#8364;", "&nbsp;", "a>b", "]]", "18.30", "(Uhr)", "&#x41;", "&quot;"};
constexpr std::string_view kValues[]
    = {"#k1", "a.wml?x=1&amp;y=$(z:e)", "Wert", "", "12", "&#228;", "a > b", "center"};
constexpr std::string_view kAsides[]
    = {"<!-- Notiz: <b> & Co -->", "<![CDATA[a < b & c]]>", "<?echo 1 > 0 ?>", "<!---->"};
constexpr std::string_view kGaps[] = {" ", "", "\n", "\t", "  "};

class WmlGenerator {
public:
    WmlGenerator(std::uint64_t seed, bool hasSubset)
        : random_(seed)
        , doctypes_(hasSubset ? 3 : 2)
    {
        const auto declaration = random_.below(std::size(kDeclarations));
        hand_.declaration = kDeclarations[declaration];
        hand_.umlaut = kUmlauts[declaration];
        if (hand_.declaration.empty()) hand_.umlaut = kUmlauts[random_.below(2)];
        hand_.lineEnd = random_.chance(0.7) ? "\n" : random_.chance(0.5) ? "\r\n" : "";
        hand_.indent = random_.chance(0.5) ? "  " : random_.chance(0.5) ? "\t" : "";
        hand_.quote = random_.chance(0.8) ? '"' : '\'';
    }

    std::string run()
    {
        deck_ = hand_.declaration;
        deck_ += hand_.lineEnd;
        const auto doctype = random_.below(doctypes_);
        deck_ += kDoctypes[doctype];
        hasEntity_ = doctype == kDoctypeWithEntity;
        deck_ += hand_.lineEnd;
        if (random_.chance(0.2)) deck_ += kAsides[0];
        addElement(E::Wml, 0);
        if (random_.chance(0.8)) deck_ += hand_.lineEnd;
        return std::move(deck_);
    }

private:
    std::string_view pick(std::span<const std::string_view> rows)
    {
        return rows[random_.below(rows.size())];
    }

    void breakLine(std::size_t depth)
    {
        if (hand_.lineEnd.empty()) return;
        deck_ += hand_.lineEnd;
        for (std::size_t i = 0; i < depth; ++i)
            deck_ += hand_.indent;
    }

    void addAttributes(const WmlElementRule& rule)
    {
        for (const auto name : rule.attributes) {
            if (!random_.chance(0.3)) continue;
            deck_ += random_.chance(0.9) ? " " : "\n  ";
            deck_ += name;
            deck_ += random_.chance(0.9) ? "=" : " = ";
            deck_ += hand_.quote;
            deck_ += name == "id" ? "k" + std::to_string(++ids_) : std::string(pick(kValues));
            deck_ += hand_.quote;
        }
        if (random_.chance(0.1)) deck_ += ' ';
    }

    void addElement(E element, std::size_t depth)
    {
        const auto& rule = ruleOf(element);
        const bool isShort = rule.isEmpty || (rule.element == E::Go && random_.chance(0.5));
        deck_.append("<").append(rule.name);
        addAttributes(rule);
        deck_ += isShort ? "/>" : ">";
        if (isShort) return;
        if (rule.holdsText) {
            addMixed(rule, depth + 1);
        } else {
            addChildren(rule, depth + 1);
            breakLine(depth);
        }
        deck_.append("</").append(rule.name).append(">");
    }

    [[nodiscard]] static std::vector<E> childrenOf(const WmlElementRule& rule)
    {
        std::vector<E> children;
        for (const auto& child : wmlElementRules())
            if (child.element != E::Other && mayContain(rule.element, child.element))
                children.push_back(child.element);
        return children;
    }

    void addChildren(const WmlElementRule& rule, std::size_t depth)
    {
        auto children = childrenOf(rule);
        std::vector<E> chosen;
        for (auto count = 1 + random_.below(4); count > 0 && !children.empty(); --count)
            chosen.push_back(
                depth < 8 ? children[random_.below(children.size())] : children.back());
        if (rule.element == E::Wml) chosen.push_back(E::Card);
        std::sort(chosen.begin(), chosen.end()); // the order in which the document type has them
        for (const E child : chosen) {
            breakLine(depth);
            if (random_.chance(0.1)) deck_ += kAsides[2 * random_.below(2)];
            addElement(child, depth);
        }
    }

    void addMixed(const WmlElementRule& rule, std::size_t depth)
    {
        const auto children = childrenOf(rule);
        for (auto count = random_.below(5); count > 0; --count) {
            if (depth < 9 && !children.empty() && random_.chance(0.4)) {
                addElement(children[random_.below(children.size())], depth);
            } else if (random_.chance(0.1)) {
                deck_ += pick(kAsides);
            } else if (hasEntity_ && random_.chance(0.3)) {
                deck_ += "&ort;";
            } else {
                deck_ += random_.chance(0.2) ? hand_.umlaut : pick(kWords);
            }
            deck_ += pick(kGaps);
        }
    }

    test::SmallRandom random_;
    std::size_t doctypes_;
    bool hasEntity_ = false;
    Hand hand_;
    std::string deck_;
    int ids_ = 0;
};

} // namespace

std::string generateWml(std::uint64_t seed, bool hasSubset)
{
    return WmlGenerator(seed, hasSubset).run();
}

} // namespace quillmere::bench
