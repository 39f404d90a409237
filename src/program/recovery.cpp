// The areas of a run are written as WML, as a save would, and that is opened; those of a deck
// without loss become areas again. The run's files are not touched, and so they may be tried again.
// Held by recovery_test.cpp, which kills a program at work again and again.

#include "program/recovery.h"

#include "document/deck_store.h"
#include "document/platform/files.h"
#include "document/platform/memory_work_files.h"
#include "document/platform/paths.h"
#include "document/standard_recovery.h"
#include "document/text/content_hash.h"
#include "document/text/failure.h"
#include "document/text/limits.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace quillmere {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kNoteName = "Sicherung.txt";
constexpr std::string_view kRunPrefix = "quillmere-";
constexpr std::size_t kRunNameLength = kRunPrefix.size() + 6;
constexpr std::size_t kMaxNoteBytes = 1U << 24U;
constexpr std::size_t kMaxAreaBytes = 2 * kMaxLosslessDesignLength;
constexpr std::chrono::minutes kYoungest{1}; // a run may have made its directory just now

bool isPrivate(const std::string& directory)
{
    struct stat status { };
    return ::lstat(directory.c_str(), &status) == 0 && S_ISDIR(status.st_mode)
        && status.st_uid == ::geteuid() && (status.st_mode & 0777U) == 0700U;
}

bool isRunName(const std::string& name)
{
    return name.size() == kRunNameLength && name.starts_with(kRunPrefix);
}

bool isYoung(const std::string& directory)
{
    std::error_code error;
    const auto time = fs::last_write_time(directory, error);
    return !error && fs::file_time_type::clock::now() - time < kYoungest;
}

void removeDirectory(const std::string& directory)
{
    std::error_code ignored;
    fs::remove_all(directory, ignored);
}

std::optional<std::string> readable(const std::string& path, std::size_t maxBytes)
{
    try {
        return readFile(path, maxBytes);
    } catch (const Failure&) {
        return std::nullopt;
    }
}

/// The areas' texts; nullopt where one is missing.
std::optional<std::vector<std::string>> areaTexts(const RecoveryNote& note)
{
    std::vector<std::string> texts;
    for (const auto& area : note.areas) {
        auto text = readable(area.design.path(), kMaxAreaBytes);
        if (!text) return std::nullopt;
        texts.push_back(std::move(*text));
    }
    return texts;
}

// A store that was the run's last act may have no note of its own yet.
bool hasChanges(const RecoveryNote& note)
{
    if (note.areas.empty()) return false;
    if (fileExists(note.source.path())) return true;
    const auto texts = areaTexts(note);
    if (!texts) return note.isChanged && fileExists(note.wml.path());
    if (note.isChanged) return true;
    for (std::size_t i = 0; i < texts->size(); ++i)
        if (contentHash((*texts)[i]) != note.areas[i].content) return true;
    return false;
}

/// A deck of one record for each area, as far as writing it as WML needs it.
Deck deckOf(const RecoveryNote& note)
{
    Deck deck(note.areas.size() + 1);
    for (std::size_t i = 0; i < note.areas.size(); ++i) {
        auto& record = deck[i];
        record.inUse = true;
        record.designDir = note.areas[i].design.directory;
        record.designFile = note.areas[i].design.name;
        record.deckDir = note.deck.directory;
        record.deckFile = note.deck.name;
        record.images = note.areas[i].images;
        record.images.emplace_back(); // the spare one
    }
    deck.front().wmlFile = "recovered.wml";
    return deck;
}

std::string wmlOfAreas(
    const DocumentSession& like, const RecoveryNote& note, std::vector<std::string> texts)
{
    MemoryWorkFiles files;
    DocumentSession session{
        files, like.displayCopies, like.prompter, like.settings, like.words, OutputRules()};
    for (std::size_t i = 0; i < texts.size(); ++i)
        files.write(note.areas[i].design.path(), std::move(texts[i]));
    session.deck = deckOf(note);
    WriteDeck(session);
    return files.read(session.deck.front().wmlFile);
}

/// The layout of the deck as the run had it, which its file may not have any more. A deck without
/// loss has it in itself.
void takeLayout(DocumentSession& session, const RecoveryNote& note)
{
    if (note.losesNothing) return;
    const auto& first = session.deck.front();
    auto text
        = note.pristine.name.empty() ? std::nullopt : readable(note.pristine.path(), kMaxNoteBytes);
    if (text && !first.pristineFile.empty())
        session.workFiles.write(first.pristineDir + first.pristineFile, std::move(*text));
}

/// Opens a deck of this text by the session's rules.
void openWml(DocumentSession& session, const RecoveryNote& note, std::string wml)
{
    auto& files = session.workFiles;
    const auto name = files.createFile(kWorkFilePrefix, kWmlFileSuffix);
    try {
        files.write(files.directory() + name, std::move(wml));
        LoadDeck(session, {note.deck.name, note.deck.directory, name, files.directory()});
    } catch (...) {
        files.remove(files.directory() + name);
        throw;
    }
    takeLayout(session, note);
}

void openAreas(DocumentSession& session, const RecoveryNote& note, std::vector<std::string> texts)
{
    LeftDeck deck{{note.deck.name, note.deck.directory, {}, {}}, {}, {}};
    if (!note.pristine.name.empty()) deck.opened = readFile(note.pristine.path(), kMaxNoteBytes);
    for (std::size_t i = 0; i < texts.size(); ++i)
        deck.areas.push_back({std::move(texts[i]), note.areas[i].images, note.areas[i].card});
    reopenDeck(session, std::move(deck));
}

// While a deck is loaded anew out of its WML its areas are not there, but that is.
void openNoted(DocumentSession& session, const RecoveryNote& note)
{
    auto texts = areaTexts(note);
    if (!texts)
        openWml(session, note, readFile(note.wml.path()));
    else if (note.losesNothing)
        openAreas(session, note, std::move(*texts));
    else
        openWml(session, note, wmlOfAreas(session, note, std::move(*texts)));
}

std::optional<CrashedRun> crashedRun(std::string directory)
{
    if (!isPrivate(directory)) return std::nullopt;
    auto lock = std::make_unique<DirectoryLock>(directory);
    if (!lock->isHeld()) return std::nullopt;
    const auto text = readable(directory + std::string(kNoteName), kMaxNoteBytes);
    if (!text && isYoung(directory)) return std::nullopt;
    auto note = text ? noteFromText(*text) : std::nullopt;
    if (note && hasChanges(*note))
        return CrashedRun{std::move(directory), std::move(*note), std::move(lock)};
    removeDirectory(directory);
    return std::nullopt;
}

} // namespace

void writeRecoveryNote(const DocumentSession& session, const NotedState& state)
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    auto& files = session.workFiles;
    auto note = noteOf(session.deck, files, state.isChanged);
    note.time = std::chrono::duration_cast<std::chrono::seconds>(now).count();
    note.seen = state.seen;
    const auto source = SplitPath(state.sourcePath);
    note.source = {source.directory, source.name};
    files.write(files.directory() + std::string(kNoteName), textOfNote(note));
}

DeckFileChange deckFileChange(const CrashedRun& run)
{
    const auto& note = run.note;
    if (!note.seen) return DeckFileChange::None;
    DeckFileWatch watch;
    watch.resume(note.deck.path(), *note.seen);
    const auto change = watch.change();
    if (change != DeckFileChange::Altered) return change;
    const auto saved = readable(note.wml.path(), kMaxNoteBytes);
    const auto text = readable(note.deck.path(), kMaxNoteBytes);
    return saved && saved == text ? DeckFileChange::None : change;
}

std::optional<std::string> sourceOf(const CrashedRun& run)
{
    return run.note.source.name.empty() ? std::nullopt
                                        : readable(run.note.source.path(), kMaxNoteBytes);
}

std::vector<CrashedRun> takeCrashedRuns(const std::string& parent)
{
    std::vector<CrashedRun> runs;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(parent, error)) {
        const auto name = entry.path().filename().string();
        if (!isRunName(name)) continue;
        if (auto run = crashedRun(parent + name + '/')) runs.push_back(std::move(*run));
    }
    std::sort(runs.begin(), runs.end(),
        [](const CrashedRun& a, const CrashedRun& b) { return a.note.time > b.note.time; });
    return runs;
}

void openCrashedRun(DocumentSession& session, const CrashedRun& run)
{
    const auto rules = std::exchange(session.output, OutputRules(run.note.losesNothing));
    try {
        openNoted(session, run.note);
    } catch (...) {
        session.output = rules;
        throw;
    }
    session.currentArea = 0;
}

void discardCrashedRun(const CrashedRun& run)
{
    removeDirectory(run.directory);
}

} // namespace quillmere
