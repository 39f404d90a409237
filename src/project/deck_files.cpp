// A new deck is built while the old one is set aside, and takes its place once it stands whole.
// Held by deck_files_test.cpp.

#include "project/deck_files.h"

#include "document/deck_replacement.h"
#include "document/deck_store.h"
#include "document/images.h"
#include "document/last_path.h"
#include "document/platform/file_failures.h"
#include "document/platform/files.h"
#include "document/platform/settings_store.h"
#include "document/platform/word_ids.h"
#include "document/standard/deck_file.h"
#include "document/standard/standard_deck.h"
#include "document/standard_pictures.h"
#include "document/text/failure.h"
#include "document/text/windows1252.h"
#include "document/wml/deck_bytes.h"
#include "forms/text.h"
#include "project/deck_dialogs.h"
#include "project/deck_names.h"
#include "project/recent_decks.h"

#include <array>
#include <filesystem>
#include <system_error>
#include <utility>

namespace quillmere {
namespace {

/// While a deck is built a note may stand open and let timers run. No surface: the shown area,
/// which is one of the old deck, is then not stored over one of the new. The rules are those of the
/// new deck, and the old one's again where that does not come to stand.
class DeckBuilding {
public:
    DeckBuilding(DocumentSession& session, const OutputRules& rules)
        : session_(session)
        , surface_(std::exchange(session.surface, nullptr))
        , rules_(std::exchange(session.output, rules))
        , replacement_(session)
    {
    }
    DeckBuilding(const DeckBuilding&) = delete;
    DeckBuilding& operator=(const DeckBuilding&) = delete;
    DeckBuilding(DeckBuilding&&) = delete;
    DeckBuilding& operator=(DeckBuilding&&) = delete;
    ~DeckBuilding()
    {
        session_.surface = surface_;
        if (!isDone_) session_.output = rules_;
    }

    [[nodiscard]] const Deck& old() const { return replacement_.old(); }
    void commit()
    {
        replacement_.commit();
        isDone_ = true;
    }

private:
    DocumentSession& session_;
    EditingSurface* surface_;
    OutputRules rules_;
    DeckReplacement replacement_;
    bool isDone_ = false;
};

OutputRules rulesOfSetting(const Session& session)
{
    return OutputRules(isYes(session.settings, "StandardOutput"));
}

DeckPlace placeOf(const Session& session)
{
    const auto& first = session.document.deck.front();
    return {first.deckFile, first.deckDir};
}

std::array<std::string, 1> nameGap(const std::string& name)
{
    return {coreText(shownPath(name))};
}

std::string quoted(const std::string& path)
{
    return "„" + validUtf8(path) + "“";
}

/// Shows the deck that was built. The area index is the new deck's from here on.
void showDeck(Session& session, bool isChanged)
{
    session.document.currentArea = 0;
    session.deckFile.remember(placeOf(session).path());
    session.window->SetScriptUndoFlagsBack();
    session.window->setDocChanged(isChanged);
    session.window->RefreshSurface();
    session.window->SetFocusToBrowser();
}

// Waiting for what a pipe will give would be for ever.
void requireOrdinaryFile(const std::string& path)
{
    if (!fileExists(path) || regularFileExists(path)) return;
    throw FileFailure("Die Datei " + quoted(path)
        + " kann nicht geöffnet werden: sie ist keine gewöhnliche Datei. Es wurde nichts "
          "geändert.");
}

// A picture or a program, or, but where nothing is lost, text in 16 bits a character.
void requireText(const DocumentSession& session, const std::string& path)
{
    const auto& first = session.deck.front();
    const auto bytes = session.workFiles.read(first.pristineDir + first.pristineFile);
    const std::string text(
        losesNothing(session) ? DeckBytes(bytes).text() : std::string_view(bytes));
    if (text.find('\0') == std::string::npos) return;
    throw FileFailure("Die Datei " + quoted(path)
        + " kann nicht geöffnet werden: sie enthält keinen WML-Text, den Quillmere lesen kann. Es "
          "wurde nichts geändert.");
}

/// The failure of a deck with its file's name in it.
RuntimeFailure named(const RuntimeFailure& failure, const std::string& path)
{
    const auto text = "Das Dokument in der Datei " + quoted(path)
        + " kann nicht geöffnet werden: " + failure.utf8() + ". Es wurde nichts geändert.";
    return RuntimeFailure{text};
}

RuntimeFailure tooLong(const DocumentSession& session, const std::string& path)
{
    const auto& rules = session.output;
    const auto text = "Das Dokument in der Datei " + quoted(path)
        + " ist zu lang (Überlauf): ein Dokument kann höchstens "
        + std::to_string(rules.maxDeckLength())
        + (rules.losesNothing() ? " Byte (1 MB)" : " Zeichen")
        + " haben. Es wurde nichts geändert.";
    return RuntimeFailure{text};
}

void load(Session& session, const DeckPlace& place, const OutputRules& rules)
{
    requireOrdinaryFile(place.path());
    DeckBuilding building(session.document, rules);
    const auto kind = building.old().empty() ? std::int16_t{} : building.old().front().surfaceKind;
    try {
        // The old deck is out of sight, so that its pristine copy is not taken over.
        LoadDeck(session.document, {place.name, place.directory, {}, {}}, kind);
    } catch (const Overflow&) {
        throw tooLong(session.document, place.path());
    } catch (const RuntimeFailure& failure) {
        throw named(failure, place.path());
    }
    requireText(session.document, place.path());
    building.commit();
}

/// Whether a file is one that can be opened without loss.
bool opensWithoutLoss(const std::string& path)
{
    if (!regularFileExists(path)) return false;
    try {
        const auto file = readStandardFile(path);
        static_cast<void>(StandardDeck(file));
        return DeckBytes(file).text().find('\0') == std::string_view::npos;
    } catch (const Failure&) {
        return false;
    }
}

/// What the default cannot open, such as a long deck, is offered to be opened without loss. False
/// where that is not wanted, and nothing was opened.
bool loadOrOffer(Session& session, const DeckPlace& place, const OutputRules& rules)
{
    try {
        load(session, place, rules);
        return true;
    } catch (const Failure& failure) {
        if (rules.losesNothing() || !opensWithoutLoss(place.path())) throw;
        const std::array reason{coreText(QString::fromStdString(failure.utf8()))};
        if (!session.messages.ask(word::kOpenWithoutLoss, reason, MessageIcon::Question))
            return false;
    }
    load(session, place, OutputRules(true));
    return true;
}

void requireGone(const std::string& path)
{
    std::error_code error;
    std::filesystem::remove(path, error);
    if (error) throw cannotWrite(path, error);
}

void build(Session& session, const DeckPlace& place)
{
    DeckBuilding building(session.document, rulesOfSetting(session));
    AddArea(session.document, true, place.name, place.directory);
    WriteDeck(session.document);
    requireGone(place.path());
    building.commit();
}

void setPlace(Deck& deck, const DeckPlace& place)
{
    for (auto& area : deck) {
        area.deckFile = place.name;
        area.deckDir = place.directory;
    }
}

/// Pictures that lay beside the deck lie beside it again.
void movePictures(Deck& deck, const std::string& from, const std::string& to)
{
    for (auto& area : deck) {
        for (auto& image : area.images)
            if (image.sourceDir == from) image.sourceDir = to;
        area.imageIndex = {};
    }
}

/// The pictures that the deck names as it was saved at its new place.
void copyPicturesAlong(DocumentSession& session, const DeckPlace& place, const std::string& from)
{
    const auto file = readFile(place.path());
    if (losesNothing(session))
        copyPictures(picturesIn(file), from, place.directory, session);
    else
        CopyDeckImages(textFromDeckBytes(file), from, place.directory, session);
}

void saveInPlace(Session& session)
{
    if (!fileExists(placeOf(session).path())) session.window->setDocChanged(true);
    session.window->AskAndSaveTmpWmlDocToWmlDoc(false);
}

/// Writes the deck, which names its new place already. False where the window left it unsaved.
bool writeDeck(Session& session, const DeckPlace& old)
{
    const auto target = placeOf(session).path();
    if (!session.window->docChanged() && fileExists(old.path())) {
        replaceFile(target, readFile(old.path())); // no conversion costs it anything
        return true;
    }
    session.window->setDocChanged(true);
    session.window->AskAndSaveTmpWmlDocToWmlDoc(false);
    return !session.window->docChanged();
}

/// The main window saves to where the records point. So the old file is never touched.
bool saveAt(Session& session, const DeckPlace& place, const DeckPlace& old)
{
    const auto oldFile = session.deckFile;
    const auto goBack = [&] {
        setPlace(session.document.deck, old);
        session.deckFile = oldFile;
    };
    setPlace(session.document.deck, place);
    session.deckFile.remember(place.path()); // what stands there may be replaced
    try {
        if (!writeDeck(session, old)) return goBack(), false;
    } catch (...) {
        goBack();
        throw;
    }
    session.deckFile.remember(place.path());
    return true;
}

bool mayReplace(Session& session, const DeckPlace& place, int word)
{
    return !fileExists(place.path())
        || session.messages.ask(word, nameGap(place.name), MessageIcon::Question);
}

} // namespace

bool isDeckOpen(const Session& session)
{
    return !session.document.deck.empty() && session.document.deck.front().inUse;
}

void ClearDeck(Session& session)
{
    if (isDeckOpen(session)) session.window->AskAndSaveTmpWmlDocToWmlDoc(true);
}

bool CreateNewPage(Session& session, const std::string& name, const std::string& directory)
{
    if (name.empty()) return false;
    const DeckPlace place{pageName(name), NormalisePath(directory)};
    requireReplaceable(place.path());
    ClearDeck(session);
    if (!mayReplace(session, place, word::kReplaceByNewDeck)) return false;
    build(session, place);
    showDeck(session, true);
    return true;
}

bool OpenDocument(Session& session, const std::string& name, const std::string& directory,
    std::optional<OutputRules> rules)
{
    const DeckPlace place{name, NormalisePath(directory)};
    RecentDecks recent(session.settings);
    if (!fileExists(place.path())) recent.remove(place.path());
    ClearDeck(session);
    if (!loadOrOffer(session, place, rules ? *rules : rulesOfSetting(session))) return false;
    recent.add(place.path());
    showDeck(session, false);
    return true;
}

bool SaveProjectAs(Session& session, const std::string& name, const std::string& directory)
{
    const DeckPlace old = placeOf(session);
    DeckPlace place{name, NormalisePath(directory)};
    if (place == old) {
        saveInPlace(session);
        return true;
    }
    const auto accepted = acceptedDeckName(name);
    if (!accepted) {
        session.messages.show(word::kBadNameSaveAs, {}, MessageIcon::Warning);
        return false;
    }
    place.name = *accepted;
    if (!mayReplace(session, place, word::kReplaceBySaveAs) || !saveAt(session, place, old))
        return false;
    RecentDecks(session.settings).add(place.path());
    movePictures(session.document.deck, old.directory, place.directory);
    copyPicturesAlong(session.document, place, old.directory);
    return true;
}

void SaveCurrentDeck(Session& session)
{
    const auto place = placeOf(session);
    if (!SaveProjectAs(session, place.name, place.directory)) return;
    SetLastPath(place.directory, kLastDeckPath, session.settings);
    RecentDecks(session.settings).add(place.path());
}

} // namespace quillmere
