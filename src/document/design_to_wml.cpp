// The way back from the surface, which writes tags in upper case and values without quotes. Tags
// that no row names are dropped, and so are comments that are no markers. Held by
// conversions_literal_test.cpp, as the way in.

#include "document/design_to_wml.h"

#include "document/design_image_tag.h"
#include "document/tag_rules.h"
#include "document/tag_translation.h"
#include "document/text/tag_attributes.h"
#include "document/text/windows1252.h"

#include <array>
#include <utility>

namespace quillmere {

namespace {

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
    {"<em", TagAction::Emit, "<i>"}, // the way in keeps <em>
    {"</em", TagAction::Emit, "</i>"},
    {"<i>", TagAction::Emit, "<i>"},
    {"</i>", TagAction::Emit, "</i>"},
    {"<u>", TagAction::Emit, "<u>"},
    {"</u>", TagAction::Emit, "</u>"},
    {"<br", TagAction::Emit, "<br/>"},
    {"</br>", TagAction::Drop},
    {"<table", TagAction::Table},
    {"</table>", TagAction::Emit, "</table>"},
    {"<tr>", TagAction::Emit, "<tr>"},
    {"</tr>", TagAction::Emit, "</tr>"},
    {"<td>", TagAction::Emit, "<td>"},
    {"</td>", TagAction::Emit, "</td>"},
    {"<!--do type", TagAction::Do},
    {"<!--/do", TagAction::Emit, "</do>"},
    {"<!--go", TagAction::Marker},
    {"<!--/go", TagAction::Emit, "</go>"},
    {"<a", TagAction::Link},
    {"</a", TagAction::Emit, "</a>"},
    {"<img", TagAction::Image},
    {"</img>", TagAction::Drop},
    {"<!--option", TagAction::Marker},
    {"<!--/option", TagAction::LowerMarker},
    {"<!--select", TagAction::Emit, "<select>"},
    {"<!--/select", TagAction::Emit, "</select>"},
    {"<html>", TagAction::Drop},
    {"</html>", TagAction::Drop},
    {"<!--card", TagAction::Marker},
    {"<!--/card", TagAction::LowerMarker},
};
constexpr TagRules kTagRules{kTagRows};

constexpr std::string_view kLabel = "label=\"";
constexpr std::string_view kTitle = "title=\"";

class Conversion {
public:
    Conversion(std::string_view source, DisplayCopyIndex& pictures, PictureEdits& edits,
        const OutputRules& output)
        : source_(source)
        , lower_(source)
        , output_(output)
        , rules_(source, kTagRules)
        , label_(source, kLabel)
        , title_(source, kTitle)
        , href_(source, kHrefKey)
        , images_(text(), pictures, edits, output)
    {
    }

    /// False where the tag is kept.
    [[nodiscard]] bool replace(Rewriter& result, const Tag& tag);

private:
    [[nodiscard]] bool replaceByValues(Rewriter& result, const Tag& tag, TagAction action);
    [[nodiscard]] bool replaceDo(Rewriter& result, const Tag& tag);
    [[nodiscard]] bool replaceTable(Rewriter& result, const Tag& tag);
    [[nodiscard]] bool replaceLink(Rewriter& result, const Tag& tag);
    [[nodiscard]] CasedText text() const { return {source_, lower_.all()}; }

    std::string_view source_;
    LowerCaseTags lower_;
    OutputRules output_;
    RuleFinder rules_;
    AttributeReader label_;
    AttributeReader title_;
    AttributeReader href_;
    DesignImageTags images_;
};

void replaceByTag(Rewriter& result, const Tag& tag, std::string_view marker)
{
    result.drop(tag.begin, tag.end);
    appendTag(result, marker);
}

bool Conversion::replace(Rewriter& result, const Tag& tag)
{
    const auto* const rule = rules_.find(tag);
    const auto action = rule == nullptr ? TagAction::Drop : rule->action;
    switch (action) {
    case TagAction::Emit:
        replaceTag(result, source_, tag, rule->text);
        return true;
    case TagAction::Paragraph:
        replaceTag(result, source_, tag, paragraphTag(lower_, tag));
        return true;
    case TagAction::Marker:
        replaceByTag(result, tag, tag.in(source_));
        return true;
    case TagAction::LowerMarker:
        replaceByTag(result, tag, lower_.tag(tag));
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
    return images_.replace(result, tag);
}

/// A marker without label stays a comment.
bool Conversion::replaceDo(Rewriter& result, const Tag& tag)
{
    const auto label = label_.behindName(tag);
    if (label) replaceByTag(result, tag, lowerBut(text(), tag, *label));
    return label.has_value();
}

/// A table without title, or with TITLE, stays as the surface wrote it: <TABLE border=1>. By the
/// standard rules it is written as any other, with the title that it has in whichever case.
bool Conversion::replaceTable(Rewriter& result, const Tag& tag)
{
    auto title = title_.quotedOrBare(tag);
    if (!title && !output_.writesUntitledTables()) return false;
    if (!title) title = AttributeReader(lower_.all(), kTitle).quotedOrBare(tag);
    result.drop(tag.begin, tag.end);
    result.append("<table");
    if (title) appendAttribute(result, kTitle, title->in(source_));
    constexpr std::array<std::string_view, 2> kKeys{"align=\"", "columns=\""};
    for (const auto key : kKeys) {
        const auto value = AttributeReader(lower_.all(), key).quotedOrBare(tag);
        if (value) appendAttribute(result, key, value->in(lower_.all()));
    }
    result.append(">");
    return true;
}

bool Conversion::replaceLink(Rewriter& result, const Tag& tag)
{
    const auto target = href_.quotedOrBare(tag);
    if (target) replaceByLink(result, tag, target->in(source_));
    return target.has_value();
}

} // namespace

void DesignToWml(std::string& text, DocumentSession& session)
{
    DisplayCopyIndex pictures(session.deck);
    DesignToWml(text, session, pictures);
}

void DesignToWml(std::string& text, DocumentSession& session, DisplayCopyIndex& pictures)
{
    PictureEdits edits(session.deck);
    Conversion conversion(text, pictures, edits, session.output);
    translateTags(
        text, [&](Rewriter& result, const Tag& tag) { return conversion.replace(result, tag); });
    edits.commit();
}

} // namespace quillmere
