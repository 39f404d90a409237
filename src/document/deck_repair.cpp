// Where nothing is lost a repair is the mending of the file. Else the text stands as the pristine
// copy and as the generated deck, so that no deck file is needed.

#include "document/deck_repair.h"

#include "document/deck_store.h"
#include "document/wml/repaired_file.h"

namespace quillmere {

namespace {

std::string putIntoWorkFile(WorkFiles& files, const std::string& text)
{
    std::string name = files.createFile(kWorkFilePrefix, kWmlFileSuffix);
    files.write(files.directory() + name, text);
    return name;
}

} // namespace

std::string repairedDeck(
    DocumentSession& session, const std::string& text, const std::string& deckDir)
{
    if (session.output.losesNothing()) return repairFile(text).bytes;
    const std::string directory = session.workFiles.directory();
    Deck opened(2);
    opened.front().pristineFile = putIntoWorkFile(session.workFiles, text);
    opened.front().pristineDir = directory;
    const std::string workFile = putIntoWorkFile(session.workFiles, text);
    session.deck = std::move(opened);
    LoadDeck(session, {{}, deckDir, workFile, directory});
    WriteDeck(session);
    return session.workFiles.read(directory + workFile);
}

} // namespace quillmere
