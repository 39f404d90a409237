#include "forms/trap.h"

#include "document/text/failure.h"

#include <exception>
#include <new>

namespace quillmere {

bool trapped(Messages& messages, const std::function<void()>& routine)
{
    try {
        routine();
        return true;
    } catch (const Failure& failure) {
        messages.ShowCriticalError(QString::fromStdString(failure.utf8()));
    } catch (const std::bad_alloc&) {
        messages.ShowCriticalError(QStringLiteral("Der Speicher reicht nicht aus."));
    } catch (const std::exception& problem) {
        messages.ShowCriticalError(QString::fromUtf8(problem.what()));
    }
    return false;
}

} // namespace quillmere
