// Each tag is decided by the first row of the table whose key it contains; a text is lower-cased
// once, and all keys are looked for in that copy. Held by conversions_literal_test.cpp and, against
// a version that replaces tag after tag in the text itself, by conversions_literal_test.cpp.

#include "document/wml_to_design.h"

#include "document/tag_rules.h"
#include "document/tag_translation.h"
#include "document/text/tag_attributes.h"
#include "document/text/windows1252.h"
#include "document/wml_image_tag.h"

#include <array>
#include <utility>

namespace quillmere {

namespace {

// Keys are parts of tags: "<p" takes <prev/> and <postfield> as well, "<a" takes <anchor> and
// <access>, and a cell with attributes, which no row names, is dropped while its end stays.
constexpr TagRule kTagRows[] = {
    {"<p", TagAction::Paragraph},
    {"</p>", TagAction::Emit, "</p>"},
    {"<b>", TagAction::Emit, "<b>"},
    {"</b>", TagAction::Emit, "</b>"},
    {"<big", TagAction::Emit, "<big>"},
    {"</big", TagAction::Emit, "</big>"},
    {"<small", TagAction::Emit, "<small>"},
    {"</small", TagAction::Emit, "</small>"},
    {"<strong", TagAction::Emit, "<strong>"},
    {"</strong", TagAction::Emit, "</strong>"},
    {"<em", TagAction::Emit, "<em>"},
    {"</em", TagAction::Emit, "</em>"},
    {"<i>", TagAction::Emit, "<i>"},
    {"</i>", TagAction::Emit, "</i>"},
    {"<u>", TagAction::Emit, "<u>"},
    {"</u>", TagAction::Emit, "</u>"},
    {"<br", TagAction::Emit, "<br/>"},
    {"</br>", TagAction::Drop},
    {"<table", TagAction::Table},
    {"<do type", TagAction::Do},
    {"</table>", TagAction::Emit, "</table>"},
    {"<tr>", TagAction::Emit, "<tr>"},
    {"</tr>", TagAction::Emit, "</tr>"},
    {"<td>", TagAction::Emit, "<td>"},
    {"</td>", TagAction::Emit, "</td>"},
    {"</do", TagAction::Emit, "<!--/do-->"},
    {"<go", TagAction::Marker},
    {"</go", TagAction::Emit, "<!--/go-->"},
    {"<a", TagAction::Link},
    {"</a>", TagAction::Emit, "</a>"},
    {"<img", TagAction::Image},
    {"</img>", TagAction::Drop},
    {"<option", TagAction::Marker},
    {"</option", TagAction::LowerMarker},
    {"<select", TagAction::Emit, "<!--select-->"},
    {"</select", TagAction::Emit, "<!--/select-->"},
    {"<wml>", TagAction::Drop},
    {"</wml>", TagAction::Drop},
};
constexpr TagRules kTagRules{kTagRows};

constexpr std::string_view kLabel = "label=\"";
constexpr std::string_view kTitle = "title=\"";
constexpr std::string_view kHref = "href=\"";

class Conversion {
public:
    Conversion(std::string_view source, std::size_t areaIndex, DocumentSession& session)
        : source_(source)
        , lower_(lowerCase(source))
        , rules_(lower_, kTagRules)
        , label_(source_, kLabel)
        , title_(source_, kTitle)
        , href_(lower_, kHref)
        , images_(text(), areaIndex, session)
    {
    }

    [[nodiscard]] std::string run()
    {
        return translateTags(source_,
            [this](std::string& result, const Tag& tag) { return appendReplacement(result, tag); });
    }
    [[nodiscard]] bool madeCardMarker() const { return madeCardMarker_; }

private:
    [[nodiscard]] bool appendReplacement(std::string& result, const Tag& tag);
    [[nodiscard]] Replacement replacementFor(const TagRule& rule, const Tag& tag);
    [[nodiscard]] Replacement doMarker(const Tag& tag);
    [[nodiscard]] std::string table(const Tag& tag);
    [[nodiscard]] Replacement link(const Tag& tag);
    void appendCardMarker(std::string& result, const Tag& tag);
    [[nodiscard]] CasedText text() const { return {source_, lower_}; }

    std::string_view source_;
    std::string lower_;
    RuleFinder rules_;
    AttributeReader label_;
    AttributeReader title_;
    AttributeReader href_;
    WmlImageTags images_;
    bool madeCardMarker_ = false;
};

bool Conversion::appendReplacement(std::string& result, const Tag& tag)
{
    const auto* const rule = rules_.find(tag);
    if (rule == nullptr) {
        appendCardMarker(result, tag);
        return true;
    }
    switch (rule->action) {
    case TagAction::Drop:
        return true;
    case TagAction::Emit:
        result.append(rule->text);
        return true;
    case TagAction::Paragraph:
        result.append(paragraphTag(tag.in(lower_)));
        return true;
    case TagAction::Marker:
        appendMarker(result, tag.in(source_).substr(1));
        return true;
    case TagAction::LowerMarker:
        appendMarker(result, tag.in(lower_).substr(1));
        return true;
    default:
        return append(result, replacementFor(*rule, tag));
    }
}

/// What takes the place of a tag with attributes that matter.
Replacement Conversion::replacementFor(const TagRule& rule, const Tag& tag)
{
    if (rule.action == TagAction::Table) return table(tag);
    if (rule.action == TagAction::Do) return doMarker(tag);
    if (rule.action == TagAction::Link) return link(tag);
    return images_.designTag(tag);
}

/// A do without label, such as <do type="prev">, stays as it is.
Replacement Conversion::doMarker(const Tag& tag)
{
    const auto label = label_.behindName(tag);
    if (!label) return std::nullopt;
    std::string marker;
    appendMarker(marker, std::string_view(lowerBut(text(), tag, *label)).substr(1));
    return marker;
}

std::string Conversion::table(const Tag& tag)
{
    const auto title = title_.behindName(tag);
    std::string result = title ? lowerBut(text(), tag, *title) : std::string(tag.in(lower_));
    if (tag.in(lower_).find("border=") == npos) result.insert(result.size() - 1, " border=\"1\"");
    return result;
}

Replacement Conversion::link(const Tag& tag)
{
    const auto target = href_.quotedAndClosed(tag);
    if (!target) return std::nullopt;
    std::string result("<a");
    appendAttribute(result, kHref, target->in(source_));
    return result += '>';
}

/// A card is told by its places of `id="` and "card", counted from 1, having a bit in common: so
/// <card id="x"> (7 and 2) becomes a marker, while <card title="a" id="x"> (17 and 2) is dropped as
/// every unknown tag is.
void Conversion::appendCardMarker(std::string& result, const Tag& tag)
{
    const auto lower = tag.in(lower_);
    const auto id = lower.find("id=\"") + 1; // 0: not there
    const auto card = lower.find("card") + 1;
    if ((id & card) != 0) {
        madeCardMarker_ = true;
        appendMarker(result, tag.in(source_).substr(card - 1));
    } else if (lower.find("/card") != npos) {
        result.append("<!--/card-->");
    }
}

} // namespace

bool WmlToDesign(std::string& text, std::size_t areaIndex, DocumentSession& session)
{
    if (text.empty()) return false; // many cards have no do block
    Conversion conversion(text, areaIndex, session);
    std::string design = conversion.run();
    text = std::move(design);
    return conversion.madeCardMarker();
}

} // namespace quillmere
