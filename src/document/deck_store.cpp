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
#include "document/text/limits.h"

#include <algorithm>
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

std::string areaAsWml(DocumentSession& session, std::size_t areaIndex, DisplayCopyIndex& pictures)
{
    const auto& area = areaRecord(session, areaIndex);
    auto text
        = joinAreaLines(session.workFiles.read(area.designDir + area.designFile), areaIndex == 0);
    requireAddressable(text);
    DeleteAllTemporaeryRadioButtons(text);
    CleanDesignHtml(text, session.output);
    DesignToWml(text, session, pictures);
    RepairParagraphs(text);
    return text;
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

void WriteDeck(DocumentSession& session)
{
    const auto& first = areaRecord(session, 0);
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
