// The way back from the surface, which writes tags in upper case and values without quotes. Tags
// that no row names are dropped, and so are comments that are no markers. Held by
// conversions_literal_test.cpp and, as the way in, by conversions_literal_test.cpp.

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
constexpr std::string_view kHref = "href=\"";

class Conversion {
public:
    Conversion(std::string_view source, DisplayCopyIndex& pictures, PictureEdits& edits,
        const OutputRules& output)
        : source_(source)
        , lower_(lowerCase(source))
        , output_(output)
        , rules_(lower_, kTagRules)
        , label_(source_, kLabel)
        , title_(source_, kTitle)
        , href_(source_, kHref)
        , images_(text(), pictures, edits, output)
    {
    }

    [[nodiscard]] std::string run()
    {
        return translateTags(source_,
            [this](std::string& result, const Tag& tag) { return appendReplacement(result, tag); });
    }

private:
    [[nodiscard]] bool appendReplacement(std::string& result, const Tag& tag);
    [[nodiscard]] Replacement replacementFor(const TagRule& rule, const Tag& tag);
    [[nodiscard]] Replacement doTag(const Tag& tag);
    [[nodiscard]] Replacement table(const Tag& tag);
    [[nodiscard]] Replacement link(const Tag& tag);
    [[nodiscard]] CasedText text() const { return {source_, lower_}; }

    std::string_view source_;
    std::string lower_;
    OutputRules output_;
    RuleFinder rules_;
    AttributeReader label_;
    AttributeReader title_;
    AttributeReader href_;
    DesignImageTags images_;
};

bool Conversion::appendReplacement(std::string& result, const Tag& tag)
{
    const auto* const rule = rules_.find(tag);
    if (rule == nullptr) return true; // dropped
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
        appendTag(result, tag.in(source_));
        return true;
    case TagAction::LowerMarker:
        appendTag(result, tag.in(lower_));
        return true;
    default:
        return append(result, replacementFor(*rule, tag));
    }
}

/// What takes the place of a tag with attributes that matter.
Replacement Conversion::replacementFor(const TagRule& rule, const Tag& tag)
{
    if (rule.action == TagAction::Table) return table(tag);
    if (rule.action == TagAction::Do) return doTag(tag);
    if (rule.action == TagAction::Link) return link(tag);
    return images_.wmlTag(tag);
}

/// A marker without label stays a comment.
Replacement Conversion::doTag(const Tag& tag)
{
    const auto label = label_.behindName(tag);
    if (!label) return std::nullopt;
    std::string result;
    appendTag(result, lowerBut(text(), tag, *label));
    return result;
}

/// A table without title, or with TITLE, stays as the surface wrote it: <TABLE border=1>. By the
/// standard rules it is written as any other, with the title that it has in whichever case.
Replacement Conversion::table(const Tag& tag)
{
    auto title = title_.quotedOrBare(tag);
    if (!title && !output_.writesUntitledTables()) return std::nullopt;
    if (!title) title = AttributeReader(lower_, kTitle).quotedOrBare(tag);
    std::string result("<table");
    if (title) appendAttribute(result, kTitle, title->in(source_));
    constexpr std::array<std::string_view, 2> kKeys{"align=\"", "columns=\""};
    for (const auto key : kKeys) {
        const auto value = AttributeReader(lower_, key).quotedOrBare(tag);
        if (value) appendAttribute(result, key, value->in(lower_));
    }
    return result += '>';
}

Replacement Conversion::link(const Tag& tag)
{
    const auto target = href_.quotedOrBare(tag);
    if (!target) return std::nullopt;
    std::string result("<a");
    appendAttribute(result, kHref, target->in(source_));
    return result += '>';
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
    std::string wml = Conversion(text, pictures, edits, session.output).run();
    edits.commit();
    text = std::move(wml);
}

} // namespace quillmere
