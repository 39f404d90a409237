// Each tag is decided by the first row of the table whose key it contains. Most tags stay
// as they are, so that the text between two changes is copied at once. Held by
// conversions_literal_test.cpp, against a version that replaces tag after tag in the text itself.

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

class Conversion {
public:
    Conversion(std::string_view source, std::size_t areaIndex, DocumentSession& session)
        : source_(source)
        , lower_(source)
        , rules_(source, kTagRules)
        , label_(source, kLabel)
        , title_(source, kTitle)
        , href_(lower_.all(), kHrefKey)
        , images_(text(), areaIndex, session)
    {
    }

    /// False where the tag is kept.
    [[nodiscard]] bool replace(Rewriter& result, const Tag& tag);
    [[nodiscard]] bool madeCardMarker() const { return madeCardMarker_; }

private:
    [[nodiscard]] bool replaceByValues(Rewriter& result, const Tag& tag, TagAction action);
    [[nodiscard]] bool replaceDo(Rewriter& result, const Tag& tag);
    [[nodiscard]] bool replaceTable(Rewriter& result, const Tag& tag);
    [[nodiscard]] bool replaceLink(Rewriter& result, const Tag& tag);
    void replaceCard(Rewriter& result, const Tag& tag);
    [[nodiscard]] CasedText text() const { return {source_, lower_.all()}; }

    std::string_view source_;
    LowerCaseTags lower_;
    RuleFinder rules_;
    AttributeReader label_;
    AttributeReader title_;
    AttributeReader href_;
    WmlImageTags images_;
    bool madeCardMarker_ = false;
};

void replaceByMarker(Rewriter& result, const Tag& tag, std::string_view words)
{
    result.drop(tag.begin, tag.end);
    appendMarker(result, words.substr(1));
}

bool Conversion::replace(Rewriter& result, const Tag& tag)
{
    const auto* const rule = rules_.find(tag);
    const auto action = rule == nullptr ? TagAction::Card : rule->action;
    switch (action) {
    case TagAction::Emit:
        replaceTag(result, source_, tag, rule->text);
        return true;
    case TagAction::Paragraph:
        replaceTag(result, source_, tag, paragraphTag(lower_, tag));
        return true;
    case TagAction::Marker:
        replaceByMarker(result, tag, tag.in(source_));
        return true;
    case TagAction::LowerMarker:
        replaceByMarker(result, tag, lower_.tag(tag));
        return true;
    case TagAction::Drop:
        result.drop(tag.begin, tag.end);
        return true;
    default:
        return replaceByValues(result, tag, action);
    }
}

/// Replaces a tag with attributes that matter.
bool Conversion::replaceByValues(Rewriter& result, const Tag& tag, TagAction action)
{
    lower_.tag(tag);
    if (action == TagAction::Table) return replaceTable(result, tag);
    if (action == TagAction::Do) return replaceDo(result, tag);
    if (action == TagAction::Link) return replaceLink(result, tag);
    if (action == TagAction::Image) return images_.replace(result, tag);
    replaceCard(result, tag);
    return true;
}

/// A do without label, such as <do type="prev">, stays as it is.
bool Conversion::replaceDo(Rewriter& result, const Tag& tag)
{
    const auto label = label_.behindName(tag);
    if (label) replaceByMarker(result, tag, lowerBut(text(), tag, *label));
    return label.has_value();
}

bool Conversion::replaceTable(Rewriter& result, const Tag& tag)
{
    const auto title = title_.behindName(tag);
    const bool hasBorder = tag.in(lower_.all()).find("border=") != npos;
    const auto words = lowerBut(text(), tag, title.value_or(TextRange{tag.end, tag.end}));
    result.drop(tag.begin, tag.end);
    result.append(std::string_view(words).substr(0, words.size() - 1));
    result.append(hasBorder ? ">" : " border=\"1\">");
    return true;
}

bool Conversion::replaceLink(Rewriter& result, const Tag& tag)
{
    const auto target = href_.quotedAndClosed(tag);
    if (target) replaceByLink(result, tag, target->in(source_));
    return target.has_value();
}

/// A card is told by its places of `id="` and "card", counted from 1, having a bit in common: so
/// <card id="x"> (7 and 2) becomes a marker, while <card title="a" id="x"> (17 and 2) is dropped as
/// every unknown tag is.
void Conversion::replaceCard(Rewriter& result, const Tag& tag)
{
    const auto lower = tag.in(lower_.all());
    const auto id = lower.find("id=\"") + 1; // 0: not there
    const auto card = lower.find("card") + 1;
    result.drop(tag.begin, tag.end);
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
    translateTags(
        text, [&](Rewriter& result, const Tag& tag) { return conversion.replace(result, tag); });
    return conversion.madeCardMarker();
}

} // namespace quillmere
