#pragma once

#include "document/changes/markup_document.h"

#include <optional>
#include <string_view>

namespace quillmere {

/// The first thing in the written deck `text` (its bytes) that XML 1.0 does not allow; nullopt for
/// a well-formed document. `document` is the text as readMarkup reads it. Rules that need the
/// document type's file, such as what an element may hold, are not asked.
[[nodiscard]] std::optional<MarkupFaultAt> firstFault(
    std::string_view text, const MarkupDocument& document);

} // namespace quillmere
