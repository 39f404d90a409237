// Held by frm_prepare_save_test.cpp.

#include "editor/window/deck_mends.h"

#include "document/deck_store.h"
#include "document/standard/standard_deck.h"
#include "document/text/text_place.h"
#include "forms/text.h"

namespace quillmere {
namespace {

constexpr qsizetype kMaxLength = 60;

/// What stands in a deck as a short text in one line.
QString shownPiece(const DeckBytes& deck, std::string_view source)
{
    const auto text = shownText(deck.decoded(source)).simplified();
    return text.size() > kMaxLength ? text.left(kMaxLength - 1) + QStringLiteral("…") : text;
}

QString shownMend(const WmlMend& mend, const DeckBytes& deck, const TextPlaces& places)
{
    const auto rule = germanText(mend.rule);
    auto line = QStringLiteral("Zeile %1: ").arg(places.at(mend.offset).line)
        + QString::fromUtf8(rule.data(), static_cast<int>(rule.size()));
    const auto before = shownPiece(deck, mend.before), after = shownPiece(deck, mend.after);
    if (before.isEmpty() && after.isEmpty()) return line;
    if (before.isEmpty()) return line + QStringLiteral(": ") + after;
    if (after.isEmpty()) return line + QStringLiteral(": ") + before;
    return line + QStringLiteral(": ") + before + QStringLiteral(" → ") + after;
}

QStringList shownMends(const StandardDeck& deck)
{
    QStringList lines;
    if (deck.mends().empty()) return lines;
    const DeckBytes bytes(deck.file());
    const TextPlaces places(bytes.text());
    for (const auto& mend : deck.mends())
        lines << shownMend(mend, bytes, places);
    return lines;
}

} // namespace

QStringList mendsMade(const DocumentSession& session)
{
    if (!losesNothing(session)) return {};
    const auto& first = session.deck.front();
    const auto& opened = *first.origin.deck;
    const auto written = session.workFiles.read(first.wmlDir + first.wmlFile);
    return written == opened.file() ? QStringList() : shownMends(opened);
}

QStringList mendsOfFile(const std::string& file)
{
    return shownMends(StandardDeck(file));
}

} // namespace quillmere
