#pragma once

#include "document/text/tag_places.h"

#include <array>

namespace quillmere {

/// The formats that are held against each other, against lists and against paragraphs, in the order
/// in which this is done.
inline constexpr std::array<TagPair, 5> kFormatPairs{{
    {"<big>", "</big>"},
    {"<small>", "</small>"},
    {"<i>", "</i>"},
    {"<b>", "</b>"},
    {"<u>", "</u>"},
}};

} // namespace quillmere
