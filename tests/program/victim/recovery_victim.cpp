// recovery_victim PARENT DECK [standard]: opens a deck and then edits, stores and saves it for
// ever, as a person would, only faster. The number behind each "Stand " of the deck goes up with
// each round. Made to be killed; tells by a byte on its standard output that it has begun.

#include "cli/core_session.h"
#include "document/deck_store.h"
#include "document/platform/disk_work_files.h"
#include "document/platform/files.h"
#include "document/platform/paths.h"
#include "program/recovery.h"

#include <string>
#include <unistd.h>

namespace quillmere {
namespace {

constexpr std::string_view kMark = "Stand ";

class Victim {
public:
    Victim(const std::string& parent, const std::string& deck, bool standardOutput)
        : files_(parent)
    {
        session_.output = OutputRules(standardOutput);
        const auto place = SplitPath(deck);
        LoadDeck(session_, {place.name, place.directory, {}, {}});
        writeRecoveryNote(session_, {false});
        number_ = numberIn(areaText(0));
    }

    /// Edits all areas, one store each; then saves, and now and then takes the WML as the deck.
    void live()
    {
        for (;;) {
            ++number_;
            for (std::size_t i = 0; i < areaCount(session_.deck); ++i)
                edit(i);
            save();
            if (number_ % 4 == 0) reload();
        }
    }

private:
    static int numberIn(const std::string& text)
    {
        return std::stoi(text.substr(text.find(kMark) + kMark.size()));
    }
    std::string areaPath(std::size_t i) const
    {
        return session_.deck[i].designDir + session_.deck[i].designFile;
    }
    std::string areaText(std::size_t i) const { return files_.read(areaPath(i)); }

    void edit(std::size_t i)
    {
        auto text = areaText(i);
        const auto begin = text.find(kMark) + kMark.size();
        const auto end = text.find('!', begin);
        text.replace(begin, end - begin, std::to_string(number_));
        files_.write(areaPath(i), std::move(text));
        writeRecoveryNote(session_, {true});
    }
    void save()
    {
        WriteDeck(session_);
        const auto& first = session_.deck.front();
        replaceFile(first.deckDir + first.deckFile, files_.read(first.wmlDir + first.wmlFile));
        writeRecoveryNote(session_, {false});
    }
    void reload()
    {
        const auto first = session_.deck.front();
        LoadDeck(session_, {first.deckFile, first.deckDir, first.wmlFile, first.wmlDir});
        writeRecoveryNote(session_, {false});
    }

    cli::AssentingPrompter prompter_;
    MemorySettings settings_;
    cli::NoWords words_;
    WbmpSizes sizes_{OutputRules()};
    DiskWorkFiles files_;
    DocumentSession session_{files_, sizes_, prompter_, settings_, words_, OutputRules()};
    int number_ = 0;
};

} // namespace
} // namespace quillmere

int main(int argumentCount, char** arguments)
{
    if (argumentCount < 3) return 2;
    quillmere::Victim victim(arguments[1], arguments[2], argumentCount > 3);
    if (::write(STDOUT_FILENO, "+", 1) != 1) return 1;
    victim.live();
}
