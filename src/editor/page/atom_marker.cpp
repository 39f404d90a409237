// Held by marker_texts_test.cpp.

#include "editor/page/atom_marker.h"

#include <algorithm>

namespace quillmere {

namespace {

constexpr std::string_view kStart = "<!--#";
constexpr std::string_view kEnd = "-->";
constexpr std::size_t kLongestSource = 4000;

struct Reference {
    std::string_view written;
    char character;
};

constexpr Reference kReferences[] = {{"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&#45;", '-'},
    {"&#10;", '\n'}, {"&#13;", '\r'}, {"&#9;", '\t'}};

std::string decoded(std::string_view written)
{
    std::string source;
    while (!written.empty()) {
        const auto* const reference = std::ranges::find_if(kReferences,
            [written](const Reference& each) { return written.starts_with(each.written); });
        const bool isOne = reference != std::end(kReferences);
        source += isOne ? reference->character : written.front();
        written.remove_prefix(isOne ? reference->written.size() : 1);
    }
    return source;
}

} // namespace

std::string_view Atom::startTag() const
{
    char quote = '\0'; // of the value that is open
    for (std::size_t i = 0; i < source.size(); ++i) {
        const char character = source[i];
        if (quote == '\0' && character == '>') return std::string_view(source).substr(0, i + 1);
        if (character != '"' && character != '\'') continue;
        if (quote == '\0')
            quote = character;
        else if (quote == character)
            quote = '\0';
    }
    return source;
}

Atom readAtom(std::string_view atom)
{
    if (!atom.starts_with(kStart) || !atom.ends_with(kEnd)) return {};
    auto rest = atom.substr(kStart.size(), atom.size() - kStart.size() - kEnd.size());
    const auto name = rest.substr(0, rest.find_first_of(" \t"));
    rest.remove_prefix(std::min(rest.size(), name.size() + 1));
    Atom read{name, decoded(rest.substr(0, kLongestSource)), {}};
    const auto end = std::min(read.source.find(' '), read.source.size());
    if (!read.source.starts_with('&')) return read;
    read.meaning = read.source.substr(std::min(end + 1, read.source.size()));
    read.source.resize(end);
    return read;
}

} // namespace quillmere
