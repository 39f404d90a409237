// A note is lines of fields with tabs between them, the first field tells what the line is. A path
// may have any byte, so tabs and line ends in fields are escaped. Held by recovery_test.cpp.

#include "program/recovery_note.h"

#include "document/text/content_hash.h"

#include <algorithm>
#include <charconv>
#include <concepts>
#include <span>
#include <utility>

namespace quillmere {

namespace {

constexpr std::string_view kHead = "Quillmere-Sicherung 1";
constexpr std::string_view kEnd = "end";
constexpr std::string_view kEscaped = "\\\t\n\r";
constexpr std::string_view kEscapes = "\\tnr";

std::string escaped(std::string_view text)
{
    std::string result;
    for (const char c : text) {
        const auto place = kEscaped.find(c);
        if (place == kEscaped.npos)
            result += c;
        else
            result.append(1, '\\').append(1, kEscapes[place]);
    }
    return result;
}

std::string unescaped(std::string_view text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isEscape = text[i] == '\\' && i + 1 < text.size();
        const auto place = isEscape ? kEscapes.find(text[i + 1]) : kEscapes.npos;
        result += place == kEscapes.npos ? text[i] : kEscaped[place];
        if (place != kEscapes.npos) ++i;
    }
    return result;
}

/// Writes one line.
class LineWriter {
public:
    LineWriter(std::string& text, std::string_view kind)
        : text_(text)
    {
        text_ += kind;
    }
    LineWriter& add(std::string_view field)
    {
        text_.append(1, '\t').append(escaped(field));
        return *this;
    }
    LineWriter& add(std::integral auto number) { return add(std::to_string(number)); }
    LineWriter& add(const NotedFile& file) { return add(file.directory).add(file.name); }
    void end() { text_ += '\n'; }

private:
    std::string& text_;
};

/// Reads the fields of one line behind its first; what is missing reads as "" and 0.
class LineReader {
public:
    explicit LineReader(std::string_view line)
        : rest_(line)
        , kind_(cut())
    {
    }
    [[nodiscard]] std::string_view kind() const { return kind_; }
    void read(std::string& field) { field = unescaped(cut()); }
    void read(NotedFile& file)
    {
        read(file.directory);
        read(file.name);
    }
    void read(std::integral auto& number)
    {
        const auto field = cut();
        std::from_chars(field.data(), field.data() + field.size(), number);
    }
    void read(bool& flag) { flag = cut() == "1"; }

private:
    std::string_view cut()
    {
        const auto field = rest_.substr(0, rest_.find('\t'));
        rest_.remove_prefix(std::min(rest_.size(), field.size() + 1));
        return field;
    }
    std::string_view rest_;
    std::string_view kind_;
};

void writeImage(std::string& text, const ImageEntry& image)
{
    LineWriter(text, "image")
        .add(NotedFile{image.displayDir, image.displayFile})
        .add(NotedFile{image.sourceDir, image.sourceFile})
        .add(image.pictureHeightPx)
        .add(image.pictureWidthPx)
        .add(image.heightPx)
        .add(image.widthPx)
        .add(image.alignment)
        .add(image.hasLayout ? 1 : 0)
        .end();
}

ImageEntry readImage(LineReader& line)
{
    ImageEntry image;
    line.read(image.displayDir);
    line.read(image.displayFile);
    line.read(image.sourceDir);
    line.read(image.sourceFile);
    line.read(image.pictureHeightPx);
    line.read(image.pictureWidthPx);
    line.read(image.heightPx);
    line.read(image.widthPx);
    line.read(image.alignment);
    line.read(image.hasLayout);
    return image;
}

void writeSeen(std::string& text, const SeenDeckFile& seen)
{
    LineWriter(text, "seen")
        .add(seen.exists ? 1 : 0)
        .add(seen.sizeBytes)
        .add(seen.modifiedNs)
        .add(seen.content)
        .end();
}

SeenDeckFile readSeen(LineReader& line)
{
    SeenDeckFile seen;
    line.read(seen.exists);
    line.read(seen.sizeBytes);
    line.read(seen.modifiedNs);
    line.read(seen.content);
    return seen;
}

void readLine(LineReader line, RecoveryNote& note)
{
    if (line.kind() == "time") line.read(note.time);
    if (line.kind() == "changed") line.read(note.isChanged);
    if (line.kind() == "deck") line.read(note.deck);
    if (line.kind() == "wml") line.read(note.wml);
    if (line.kind() == "pristine") line.read(note.pristine);
    if (line.kind() == "source") line.read(note.source);
    if (line.kind() == "lossless") line.read(note.losesNothing);
    if (line.kind() == "seen") note.seen = readSeen(line);
    if (line.kind() == "area") {
        auto& area = note.areas.emplace_back();
        line.read(area.design);
        line.read(area.content);
        line.read(area.card);
    }
    if (line.kind() == "image" && !note.areas.empty())
        note.areas.back().images.push_back(readImage(line));
}

NotedArea areaOf(const DeckRecord& record, const WorkFiles& files, bool isChanged)
{
    NotedArea area{{record.designDir, record.designFile}, 0, {}, cardOf(record)};
    if (!isChanged) area.content = contentHash(files.read(area.design.path()));
    // The last entry is a spare one.
    if (!record.images.empty()) area.images.assign(record.images.begin(), record.images.end() - 1);
    return area;
}

} // namespace

RecoveryNote noteOf(const Deck& deck, const WorkFiles& files, bool isChanged)
{
    RecoveryNote note;
    note.isChanged = isChanged;
    if (areaCount(deck) == 0 || !deck.front().inUse) return note;
    const auto& first = deck.front();
    note.deck = {first.deckDir, first.deckFile};
    note.wml = {first.wmlDir, first.wmlFile};
    note.pristine = {first.pristineDir, first.pristineFile};
    note.losesNothing = first.origin.deck != nullptr;
    for (const auto& record : std::span(deck).first(areaCount(deck)))
        note.areas.push_back(areaOf(record, files, isChanged));
    return note;
}

std::string textOfNote(const RecoveryNote& note)
{
    std::string text(kHead);
    text += '\n';
    LineWriter(text, "time").add(note.time).end();
    LineWriter(text, "changed").add(note.isChanged ? 1 : 0).end();
    LineWriter(text, "deck").add(note.deck).end();
    LineWriter(text, "wml").add(note.wml).end();
    LineWriter(text, "pristine").add(note.pristine).end();
    LineWriter(text, "source").add(note.source).end();
    LineWriter(text, "lossless").add(note.losesNothing ? 1 : 0).end();
    if (note.seen) writeSeen(text, *note.seen);
    for (const auto& area : note.areas) {
        LineWriter(text, "area").add(area.design).add(area.content).add(area.card).end();
        for (const auto& image : area.images)
            writeImage(text, image);
    }
    return text.append(kEnd).append("\n");
}

std::optional<RecoveryNote> noteFromText(std::string_view text)
{
    RecoveryNote note;
    bool isFirst = true;
    while (!text.empty()) {
        const auto line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(text.size(), line.size() + 1));
        if (std::exchange(isFirst, false) && line != kHead) return std::nullopt;
        if (line == kEnd) return note;
        readLine(LineReader(line), note);
    }
    return std::nullopt;
}

} // namespace quillmere
