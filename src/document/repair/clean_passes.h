#pragma once

#include "document/repair/clean_faults.h"
#include "document/text/edited_text.h"

#include <span>
#include <string_view>

namespace quillmere {

/// One pass of the cleaning. Where `apply` throws, the text is half done: callers keep a copy.
struct CleanPass {
    std::string_view name;
    void (*apply)(EditedText&);
    CleanFaults mends; ///< without any of these it leaves a text as it is
};

/// The passes ahead of the transliteration, in their order.
[[nodiscard]] std::span<const CleanPass> cleanPasses();

} // namespace quillmere
