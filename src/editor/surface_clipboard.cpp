// HTML from elsewhere is read by a text document, whose fragments know how they look, whatever
// markup made them look so. Held by surface_clipboard_test.cpp.

#include "editor/surface_clipboard.h"

#include "document/text/tag_scanner.h"
#include "document/text/windows1252.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>

#include <algorithm>
#include <array>

namespace quillmere {
namespace {

constexpr qsizetype kMaxHtml = 2'000'000; // beyond it the plain text has to do

// Elements of an area that others understand; the rest is dropped from HTML for them.
constexpr std::array<std::string_view, 15> kCommonElements = {"p", "br", "b", "strong", "i", "em",
    "u", "big", "small", "a", "table", "tr", "td", "th", "br/"};

bool isCommon(std::string_view tag)
{
    auto name = tag.substr(1, tag.size() - 2);
    if (name.starts_with('/')) name.remove_prefix(1);
    name = name.substr(0, name.find_first_of(" \t\r\n"));
    return std::ranges::find(kCommonElements, lowerCase(name)) != kCommonElements.end();
}

/// Where a tag or a whole comment ends.
std::size_t endOf(std::string_view markup, const Tag& tag)
{
    if (!tag.in(markup).starts_with("<!--")) return tag.end;
    const auto end = markup.find("-->", tag.begin);
    return end == std::string_view::npos ? markup.size() : end + 3;
}

std::string htmlForOthers(std::string_view markup)
{
    std::string html = "<html><head><meta charset=\"utf-8\"></head><body>";
    std::size_t copied = 0;
    TagScanner tags(markup);
    while (const auto tag = tags.next()) {
        html += toUtf8(markup.substr(copied, tag->begin - copied));
        const auto end = endOf(markup, *tag);
        if (isCommon(tag->in(markup))) html += toUtf8(tag->in(markup));
        copied = end;
        tags.resumeAt(end);
    }
    return html + toUtf8(markup.substr(copied)) + "</body></html>";
}

/// Reads no file that the HTML names.
class ClipDocument : public QTextDocument {
protected:
    QVariant loadResource(int, const QUrl&) override { return {}; }
};

std::string escaped(QString text)
{
    text.replace(u'&', QStringLiteral("&amp;"));
    text.replace(u'<', QStringLiteral("&lt;")).replace(u'>', QStringLiteral("&gt;"));
    text.replace(u'"', QStringLiteral("&quot;"));
    text.replace(QChar::Nbsp, QStringLiteral("&nbsp;"));
    text.replace(QChar::LineSeparator, QStringLiteral("<br/>"));
    text.remove(QChar::ObjectReplacementCharacter);
    return fromUtf8(text.toStdString());
}

struct Format {
    std::string start;
    std::string end;
    void add(const std::string& element, const std::string& attributes = {})
    {
        start += '<' + element + attributes + '>';
        end.insert(0, "</" + element + '>');
    }
};

Format formatOf(const QTextCharFormat& look)
{
    Format format;
    auto target = look.anchorHref();
    target.replace(QStringLiteral("&amp;"), QStringLiteral("&")); // left so where it was quoted
    const bool isLink = look.isAnchor() && !target.isEmpty();
    if (isLink) format.add("a", " href=\"" + escaped(target) + '"');
    if (look.fontWeight() >= QFont::DemiBold) format.add("b");
    if (look.fontItalic()) format.add("i");
    if (look.fontUnderline() && !isLink) format.add("u");
    const int size = look.intProperty(QTextFormat::FontSizeAdjustment);
    if (size != 0) format.add(size > 0 ? "big" : "small");
    return format;
}

std::string markupOf(const QTextBlock& block)
{
    std::string markup;
    for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) {
        const auto text = escaped(fragment.fragment().text());
        if (text.empty()) continue;
        const auto format = formatOf(fragment.fragment().charFormat());
        markup += format.start + text + format.end;
    }
    return markup;
}

bool standInOneRow(const QTextBlock& one, const QTextBlock& next)
{
    auto* table = QTextCursor(one).currentTable();
    if (table == nullptr || table != QTextCursor(next).currentTable()) return false;
    return table->cellAt(one.position()).row() == table->cellAt(next.position()).row();
}

std::string withoutOuterBreaks(std::string_view markup)
{
    constexpr std::string_view kBreak = "<br/>";
    while (markup.ends_with(kBreak))
        markup.remove_suffix(kBreak.size());
    while (markup.starts_with(kBreak))
        markup.remove_prefix(kBreak.size());
    return std::string(markup);
}

std::string designBytes(const QMimeData& clip)
{
    return clip.data(QLatin1StringView(kDesignMimeType)).toStdString();
}

} // namespace

std::unique_ptr<QMimeData> clipOf(const std::string& markup, const QString& text)
{
    auto clip = std::make_unique<QMimeData>();
    clip->setData(QLatin1StringView(kDesignMimeType), QByteArray::fromStdString(markup));
    clip->setHtml(QString::fromStdString(htmlForOthers(markup)));
    clip->setText(text);
    return clip;
}

bool holdsContent(const QMimeData& clip)
{
    return clip.hasFormat(QLatin1StringView(kDesignMimeType)) || clip.hasHtml() || clip.hasText();
}

ClipContent contentOf(const QMimeData& clip, const OutputRules& rules)
{
    if (auto markup = designBytes(clip); !markup.empty()) return markup;
    if (const auto html = clip.html(); !html.isEmpty() && html.size() <= kMaxHtml) {
        auto markup = designMarkupOf(html);
        requireAddressable(markup, rules.maxDeckLength());
        if (!markup.empty()) return markup;
    }
    auto text = clip.text();
    requireAddressableLength(static_cast<std::size_t>(text.size()), rules.maxDeckLength());
    if (text.isEmpty()) return {};
    return text;
}

std::string designMarkupOf(const QString& html)
{
    ClipDocument document;
    document.setHtml(html);
    std::string markup;
    for (auto block = document.begin(); block.isValid(); block = block.next()) {
        const auto ahead = block.previous();
        if (ahead.isValid()) markup += standInOneRow(ahead, block) ? " " : "<br/>";
        markup += markupOf(block);
    }
    return withoutOuterBreaks(markup);
}

} // namespace quillmere
