#include "cli/guarded.h"

#include "cli/terminal.h"
#include "document/failure.h"
#include "document/windows1252.h"

namespace quillmere::cli {

namespace {

ExitStatus report(const std::string& about, const Failure& failure, ExitStatus status)
{
    complain((about.empty() ? "" : about + ": ") + toUtf8(failure.description()));
    return status;
}

} // namespace

ExitStatus guarded(const std::string& about, const std::function<ExitStatus()>& action)
{
    try {
        return action();
    } catch (const BadArguments& bad) {
        complain(bad.message + " Hilfe zeigt „quillmere-cli --help“.");
        return ExitStatus::BadArguments;
    } catch (const RuntimeFailure& failure) {
        return report(about, failure, ExitStatus::RunFailure);
    } catch (const Failure& failure) {
        return report(about, failure, ExitStatus::FileTrouble);
    }
}

} // namespace quillmere::cli
