#include "cli/guarded.h"

#include "cli/terminal.h"
#include "document/text/failure.h"
#include "document/text/windows1252.h"

namespace quillmere::cli {

namespace {

ExitStatus refuse(const std::string& about, const std::string& reason)
{
    complain((about.empty() ? "" : about + ": ") + reason + " Es wurde nichts geändert.");
    return ExitStatus::RunFailure;
}

} // namespace

ExitStatus guarded(const std::string& about, const std::function<ExitStatus()>& action)
{
    try {
        return action();
    } catch (const BadArguments& bad) {
        complain(bad.message + " Hilfe zeigt „quillmere-cli --help“.");
        return ExitStatus::BadArguments;
    } catch (const Overflow& failure) {
        return refuse(about,
            toUtf8(failure.description())
                + ": Der Text oder sein Ergebnis hat mehr als 32767 Zeichen.");
    } catch (const InvalidArgument& failure) {
        return refuse(about,
            toUtf8(failure.description())
                + ": Dem Text fehlt etwas, etwa ein schließendes Anführungszeichen.");
    } catch (const RuntimeFailure& failure) {
        return refuse(
            about, toUtf8(failure.description()) + ": Eine Größe im Text ist keine Zahl.");
    } catch (const Failure& failure) {
        complain(toUtf8(failure.description())); // names its file itself
        return ExitStatus::FileTrouble;
    }
}

} // namespace quillmere::cli
