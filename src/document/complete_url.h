#pragma once

#include "document/platform/prompter.h"

#include <string>
#include <string_view>

namespace quillmere {

/// The target of a link with what is missing of an address: "www.a.de" becomes "http://www.a.de",
/// "a.de/b" and "b.wml" become "http://www.a.de/b" and "http://www.b.wml". The person is asked
/// ahead of each; answered with No, and where nothing is offered, the text comes back as it was.
[[nodiscard]] std::string CompleteUrl(std::string_view text, Prompter& prompter);

} // namespace quillmere
