#pragma once

#include "document/tag_code.h"

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

// An index of the tags of a text under changes. How each tag begins is read once; where a tag may
// stand is then told by comparing small numbers instead of reading the text again for each key.

namespace quillmere {

/// The places and codes of all '<' of a text. The text itself lies elsewhere; each change of it is
/// told here and costs the number of tags between it and the change before it.
class TagIndex {
public:
    /// Forgets all and reads `text`.
    void read(std::string_view text);

    /// False where no tag fits; true mostly where one does, and at times where one did.
    [[nodiscard]] bool mayHold(TagPattern pattern) const
    {
        if (pattern.mask == kWholeCode) return codes_[pattern.wanted];
        return pattern.mask != kCodeOfOneLetter || shortCodes_[shortCode(pattern.wanted)];
    }

    /// The first tag that fits, of those at `begin` and ahead of `end`; npos where there is none.
    [[nodiscard]] std::size_t find(TagPattern pattern, std::size_t begin, std::size_t end) const;

    /// Follows a change that has been made: `piece` stands where the text reached from `begin` to
    /// `end`. `codeAt` tells the code of the tag at an offset of the text as it is now.
    template <typename CodeAt>
    void replace(std::size_t begin, std::size_t end, std::string_view piece, CodeAt codeAt)
    {
        cut(begin, end);
        size_ += piece.size();
        for (auto tag = ahead_.rbegin(); tag != ahead_.rend() && tag->place + kTagCodeReach > begin;
             ++tag)
            tag->code = noted(codeAt(tag->place));
        for (auto at = piece.find('<'); at != std::string_view::npos; at = piece.find('<', at + 1))
            append(begin + at, codeAt(begin + at));
    }

private:
    static constexpr TagCode kWholeCode = kTagCodes - 1;
    static constexpr TagCode kCodeOfOneLetter = kWholeCode & ~tag_code::kSecondLetter;

    struct Tag {
        std::uint32_t place;
        TagCode code;
    };
    using Tags = std::vector<Tag>;

    static constexpr std::size_t shortCode(TagCode code) { return code >> tag_code::kLetterBits; }
    TagCode noted(TagCode code)
    {
        codes_[code] = true;
        shortCodes_[shortCode(code)] = true;
        return code;
    }
    void append(std::size_t place, TagCode code)
    {
        ahead_.push_back({static_cast<std::uint32_t>(place), noted(code)});
    }
    void cut(std::size_t begin, std::size_t end);
    void moveTo(std::size_t offset);

    std::size_t size_ = 0; // of the text
    Tags ahead_; // of the last change, by their distance from the begin of the text
    Tags behind_; // it, by their distance from the end of the text, so that the last tag is first
    std::bitset<kTagCodes> codes_; // that stand in the text or stood there once
    std::bitset<(kTagCodes >> tag_code::kLetterBits)>
        shortCodes_; // the same without second letters
};

} // namespace quillmere
