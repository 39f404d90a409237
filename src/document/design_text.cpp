// Held by deck_store_test.cpp.

#include "document/design_text.h"

#include "document/deck_store.h"
#include "document/text/failure.h"
#include "document/text/limits.h"
#include "document/text/text_search.h"

namespace quillmere {

DeckRecord& areaRecord(DocumentSession& session, std::size_t areaIndex)
{
    if (areaIndex >= areaCount(session.deck)) throw InvalidArgument();
    return session.deck[areaIndex];
}

std::size_t maxDesignLength(const DocumentSession& session)
{
    return OutputRules(losesNothing(session)).maxTextLength();
}

void waitForSurface(DocumentSession& session)
{
    if (session.surface == nullptr) return;
    do {
        session.surface->yieldToEvents();
    } while (session.surface->Busy());
}

std::string ReadDesignText(DocumentSession& session, std::size_t areaIndex)
{
    waitForSurface(session);
    const auto& area = areaRecord(session, areaIndex);
    const auto bytes = session.workFiles.read(area.designDir + area.designFile);
    const auto firstLine = LineReader(bytes).next().value_or(std::string_view{});
    const auto tag = firstLine.find('<');
    return joinLines(std::string_view(bytes).substr(tag == npos ? 0 : tag));
}

void WriteDesignText(DocumentSession& session, std::size_t areaIndex, std::string_view text)
{
    waitForSurface(session);
    requireAddressable(text, maxDesignLength(session));
    const auto& area = areaRecord(session, areaIndex);
    session.workFiles.write(area.designDir + area.designFile, std::string(text));
}

} // namespace quillmere
