#include "cli/commands.h"
#include "cli/terminal.h"
#include "document/design_page.h"
#include "document/platform/files.h"
#include "imageconv/wbmp_display_copies.h"

#include <filesystem>
#include <system_error>

namespace quillmere::cli {

ExitStatus runWbmpShow(const Arguments& arguments)
{
    if (arguments.operands.size() != 1) throw BadArguments{"„wbmp-show“ braucht genau ein Bild."};
    if (!arguments.output) throw BadArguments{"Es fehlt -o DATEI."};
    std::error_code ignored;
    if (std::filesystem::equivalent(arguments.operands.front(), *arguments.output, ignored))
        throw BadArguments{"Das Bild würde mit seiner Darstellung überschrieben."};
    const WbmpPicture picture
        = ReadWbmpFile(arguments.operands.front(), OutputRules(arguments.standardOutput));
    const std::string bmp = drawPicture(picture, kDefaultPageColour);
    if (arguments.output == "-") {
        printBytes(bmp);
    } else {
        replaceFile(*arguments.output, bmp);
    }
    return ExitStatus::Done;
}

} // namespace quillmere::cli
