// Held by deck_files_test.cpp.

#include "project/deck_dialogs.h"

#include "document/last_path.h"
#include "document/platform/word_ids.h"
#include "forms/text.h"
#include "project/deck_files.h"
#include "project/deck_names.h"

namespace quillmere {
namespace {

FileQuestion deckQuestion(const Session& session, int titleWord)
{
    FileQuestion question;
    question.title = shownText(session.words.GetWord(titleWord));
    question.directory = lastDeckFolder(session);
    question.filter
        = shownText(session.words.GetWord(word::kWmlFilter)) + QStringLiteral("(*.wml)");
    question.suffix = QStringLiteral(".wml");
    return question;
}

constexpr int kNothingToSaveMessage = 3;

void keepFolder(Session& session, const DeckPlace& place)
{
    SetLastPath(place.directory, kLastDeckPath, session.settings);
}

} // namespace

QString lastDeckFolder(const Session& session)
{
    const FolderPlaces places{session.files, session.drives};
    return shownPath(GetLastPath(kLastDeckPath, session.settings, session.document.deck, places));
}

bool OpenDeckDialog(Session& session)
{
    const auto path = session.fileDialogs.openFile(deckQuestion(session, word::kOpenDeckTitle));
    if (!path) return false;
    const auto place = deckPlace(*path);
    if (!OpenDocument(session, place.name, place.directory)) return false;
    keepFolder(session, place);
    return true;
}

bool SaveDeckAsDialog(Session& session)
{
    if (!isDeckOpen(session)) {
        session.window->ShowMsg(kNothingToSaveMessage);
        return false;
    }
    auto question = deckQuestion(session, word::kSaveDeckAsTitle);
    question.directory = shownPath(session.document.deck.front().deckDir);
    question.name = shownPath(session.document.deck.front().deckFile);
    while (const auto path = session.fileDialogs.saveFile(question)) {
        const auto place = deckPlace(*path);
        if (SaveProjectAs(session, place.name, place.directory)) {
            keepFolder(session, place);
            return true;
        }
        question.directory = shownPath(place.directory);
        question.name = shownPath(place.name);
    }
    return false;
}

bool NewDeckDialog(Session& session)
{
    auto question = deckQuestion(session, word::kNewDeckTitle);
    const auto folder = corePath(question.directory);
    if (!HasIndexPage(folder, session.document.deck, session.files))
        question.name = shownText(kIndexPage);
    while (const auto path = session.fileDialogs.saveFile(question)) {
        const auto place = deckPlace(*path);
        question.directory = shownPath(place.directory);
        question.name = shownPath(place.name);
        const auto name = acceptedDeckName(place.name);
        if (!name) {
            session.messages.show(word::kBadDeckName, {}, MessageIcon::Warning);
        } else if (CreateNewPage(session, *name, place.directory)) {
            keepFolder(session, place);
            return true;
        }
    }
    return false;
}

} // namespace quillmere
