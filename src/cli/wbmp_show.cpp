#include "cli/commands.h"
#include "document/files.h"
#include "imageconv/wbmp_display_copies.h"

namespace quillmere::cli {

ExitStatus runWbmpShow(const Arguments& arguments)
{
    if (arguments.operands.size() != 1) throw BadArguments {"„wbmp-show“ braucht genau ein Bild."};
    if (!arguments.output) throw BadArguments {"Es fehlt -o DATEI."};
    const std::string bytes = readFile(arguments.operands.front());
    replaceFile(*arguments.output,
        displayCopyOf(bytes, kDefaultPageColour, OutputRules(arguments.standardOutput)));
    return ExitStatus::Done;
}

} // namespace quillmere::cli
