// New areas and the writing of a deck, which is computed whole before a file is touched. Loading is
// in load_deck.cpp. Held by deck_store_test.cpp.

#include "document/deck_store.h"

#include "document/card_attributes.h"
#include "document/deck_replacement.h"
#include "document/design_text.h"
#include "document/design_to_wml.h"
#include "document/platform/paths.h"
#include "document/platform/word_ids.h"
#include "document/repair/clean_design_html.h"
#include "document/repair/paragraphs.h"
#include "document/repair/radio_buttons.h"
#include "document/repair/wml_layout.h"
#include "document/standard/standard_deck.h"
#include "document/standard_pictures.h"
#include "document/text/limits.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace quillmere {
namespace {

constexpr std::string_view kDeckHead = "<?xml version=\"1.0\"?>"
                                       "<!DOCTYPE wml PUBLIC \"-//WAPFORUM//DTD WML 1.1//EN\""
                                       " \"http://www.wapforum.org/DTD/wml_1.1.xml\">"
                                       "<wml>";
constexpr std::ptrdiff_t kHistoryLength = 16;

std::string newAreaId(std::size_t areaIndex)
{
    return "Bereich" + std::to_string(areaIndex + 1);
}

void makeDesignFile(DocumentSession& session, DeckRecord& area, std::size_t areaIndex)
{
    area.inUse = true;
    area.designFile = session.workFiles.createFile(kWorkFilePrefix, kDesignFileSuffix);
    area.designDir = session.workFiles.directory();
    const int kind = session.deck.front().surfaceKind;
    std::string page = "<!--card id=\"";
    page.append(newAreaId(areaIndex));
    page.append("\" title=\"Nicht festgelegt\" newcontext=\"true\"-->\r\n");
    page += designPageLines(session, kind, PageSection::Head);
    page += designPageLines(session, kind, PageSection::Tail);
    session.workFiles.write(area.designDir + area.designFile, std::move(page));
}

void startDeck(DocumentSession& session, const std::string& deckFile, const std::string& deckDir)
{
    DeckReplacement replacement(session);
    session.deck.resize(2);
    auto& area = session.deck.front();
    area.deckFile = deckFile;
    area.deckDir = NormalisePath(deckDir);
    area.wmlFile = session.workFiles.unusedName(kWorkFilePrefix, kWmlFileSuffix);
    area.wmlDir = session.workFiles.directory();
    if (session.output.losesNothing()) area.origin.deck = std::make_shared<const StandardDeck>();
    makeDesignFile(session, area, 0);
    replacement.commit();
}

/// Makes the spare record an area with a new spare one behind it, and returns its index.
std::size_t appendArea(DocumentSession& session)
{
    const auto index = areaCount(session.deck);
    auto area = areaBehind(areaRecord(session, index - 1));
    makeDesignFile(session, area, index);
    session.deck.back() = std::move(area);
    session.deck.emplace_back();
    return index;
}

/// The lines of an area as one text. A '?' in front of a line of the first area is what some
/// surfaces make of a byte order mark.
std::string joinAreaLines(std::string_view file, bool isFirstArea)
{
    if (!isFirstArea) return joinLines(file);
    std::string joined;
    LineReader lines(file);
    while (const auto line = lines.next())
        joined.append(line->substr(line->starts_with('?') ? 1 : 0));
    return joined;
}

/// The text of an area as it is written, which no surface is asked for.
std::string areaText(const DocumentSession& session, std::size_t areaIndex)
{
    const auto& area = session.deck[areaIndex];
    return joinAreaLines(session.workFiles.read(area.designDir + area.designFile), areaIndex == 0);
}

std::string areaAsWml(DocumentSession& session, std::size_t areaIndex, DisplayCopyIndex& pictures)
{
    auto text = areaText(session, areaIndex);
    requireAddressable(text);
    DeleteAllTemporaeryRadioButtons(text);
    CleanDesignHtml(text, session.output);
    DesignToWml(text, session, pictures);
    RepairParagraphs(text);
    return text;
}

/// The deck as its file will be.
std::string standardFile(const DocumentSession& session)
{
    std::vector<std::string> texts;
    std::vector<AreaText> areas;
    for (std::size_t i = 0; i < areaCount(session.deck); ++i)
        texts.push_back(areaText(session, i));
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const auto& origin = session.deck[i].origin;
        areas.push_back({origin.card.get(), origin.card ? origin.index : kNoCard, texts[i]});
    }
    DisplayCopyIndex pictures(session.deck);
    return session.deck.front().origin.deck->written(areas, pictureNames(pictures, session.deck));
}

/// Gives the deck the line layout of the deck as opened.
void restoreLayout(std::string& wml, const DocumentSession& session)
{
    const auto& first = session.deck.front();
    const auto pristine = first.pristineDir + first.pristineFile;
    if (first.pristineFile.empty() || !session.workFiles.exists(pristine)) return;
    RestoreWhitespace(wml, withCrLf(session.workFiles.read(pristine)));
}

} // namespace

void AddArea(
    DocumentSession& session, bool isFirst, const std::string& deckFile, const std::string& deckDir)
{
    if (isFirst) return startDeck(session, deckFile, deckDir);
    const auto index = appendArea(session);
    if (!GetJump(session, index - 1).target.empty()) return;
    SetJump(session, index - 1,
        {{}, session.words.GetWord(word::kJumpLabel), std::string("#").append(newAreaId(index))});
}

bool losesNothing(const DocumentSession& session)
{
    return !session.deck.empty() && session.deck.front().origin.deck != nullptr;
}

const std::vector<WmlMend>& standardMends(const DocumentSession& session)
{
    static const std::vector<WmlMend> kNone;
    return losesNothing(session) ? session.deck.front().origin.deck->mends() : kNone;
}

void WriteDeck(DocumentSession& session)
{
    const auto& first = areaRecord(session, 0);
    if (losesNothing(session))
        return session.workFiles.write(first.wmlDir + first.wmlFile, standardFile(session));
    DisplayCopyIndex pictures(session.deck);
    std::string wml(kDeckHead);
    for (std::size_t i = 0; i < areaCount(session.deck); ++i)
        wml += areaAsWml(session, i, pictures);
    wml += "</wml>";
    requireAddressable(wml);
    BreakWmlLines(wml);
    restoreLayout(wml, session);
    wml += "\r\n";
    session.workFiles.write(first.wmlDir + first.wmlFile, std::move(wml));
}

void SaveSurface(DocumentSession& session, std::size_t areaIndex)
{
    if (session.surface == nullptr) return;
    waitForSurface(session);
    const auto& area = areaRecord(session, areaIndex);
    session.surface->SaveDocument(area.designDir + area.designFile);
}

void PushUndo(DocumentSession& session, int areaIndex, std::string state)
{
    const int index = areaIndex < 0 ? session.currentArea : areaIndex;
    auto& history = areaRecord(session, static_cast<std::size_t>(index)).history;
    history.push_back(std::move(state));
    const auto surplus = std::ssize(history) - kHistoryLength;
    if (surplus > 0) history.erase(history.begin(), history.begin() + surplus);
}

} // namespace quillmere
