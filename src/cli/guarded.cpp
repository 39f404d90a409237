// The one place that catches. Held by tests/cli.

#include "cli/guarded.h"

#include "cli/terminal.h"
#include "document/text/failure.h"

#include <new>

namespace quillmere::cli {

namespace {

Problem refusal(const std::string& about, const std::string& reason)
{
    return {ExitStatus::RunFailure,
        (about.empty() ? "" : about + ": ") + reason + " Es wurde nichts geändert."};
}

} // namespace

std::optional<Problem> problemOf(const std::string& about, const std::function<void()>& action)
{
    try {
        action();
        return std::nullopt;
    } catch (const BadArguments& bad) {
        return Problem{ExitStatus::BadArguments, bad.message, bad.command};
    } catch (const DeckTooLong& failure) {
        return Problem{
            ExitStatus::RunFailure, (about.empty() ? "" : about + ": ") + failure.utf8()};
    } catch (const Overflow& failure) {
        return refusal(
            about, failure.utf8() + ": Der Text oder sein Ergebnis hat mehr als 32767 Zeichen.");
    } catch (const InvalidArgument& failure) {
        return refusal(about,
            failure.utf8()
                + ": Dem Text fehlt etwas, etwa ein schließendes Anführungszeichen "
                  "oder das Ende einer Auswahlliste.");
    } catch (const RuntimeFailure& failure) {
        return refusal(about, failure.utf8() + ": Eine Größe im Text ist keine Zahl.");
    } catch (const LostOutput&) {
        throw;
    } catch (const Failure& failure) {
        return Problem{ExitStatus::FileTrouble, failure.utf8()}; // names its file itself
    } catch (const std::bad_alloc&) {
        return Problem{ExitStatus::FileTrouble, "Der Arbeitsspeicher reicht nicht."};
    }
}

ExitStatus guarded(const std::string& about, const std::function<ExitStatus()>& action)
{
    ExitStatus status = ExitStatus::Done;
    std::optional<Problem> problem;
    try {
        problem = problemOf(about, [&] { status = action(); });
    } catch (const LostOutput& lost) {
        problem = Problem{ExitStatus::FileTrouble, lost.utf8()};
    }
    if (!problem) return status;
    const bool isCall = problem->status == ExitStatus::BadArguments;
    const auto command = problem->command.empty() ? "" : problem->command + " ";
    complain(
        problem->message + (isCall ? " Hilfe zeigt „quillmere-cli " + command + "--help“." : ""));
    return problem->status;
}

} // namespace quillmere::cli
