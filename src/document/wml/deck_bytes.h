#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The bytes of a deck file and the text in them.

namespace quillmere {

/// How the characters of a deck file are spelled (XML 1.0, appendix F).
enum class DeckEncoding : std::uint8_t {
    Utf8,
    Utf16LittleEndian,
    Utf16BigEndian,
    Windows1252, ///< ISO-8859-1 as well, and bytes that are not what they are declared as
    Named, ///< another encoding that is declared and known to iconv
};

/// A deck file with its encoding. Its text is cut in `text()`, in which all markup is ASCII: the
/// file as it is, without its byte order mark, or UTF-8 in place of UTF-16. Slices of it are written
/// back byte for byte; the core's own text is Windows-1252 with character references for what that
/// has not.
class DeckBytes {
public:
    /// Takes any bytes. The encoding is told by the byte order mark, by the zero bytes of UTF-16, by
    /// the XML declaration, or else is UTF-8 where the bytes are that and Windows-1252 where not.
    explicit DeckBytes(std::string file = {});

    [[nodiscard]] std::string_view text() const { return text_; }
    [[nodiscard]] DeckEncoding encoding() const { return encoding_; }
    /// The file as it was read.
    [[nodiscard]] std::string file() const;
    /// A text made of slices of text() and of encoded() pieces as a file in this encoding, with the
    /// byte order mark that the file had. A text equal to text() gives the file as it was read.
    [[nodiscard]] std::string fileOf(std::string_view text) const;

    /// A slice of text() as Windows-1252, with decimal character references for what that has not.
    [[nodiscard]] std::string decoded(std::string_view slice) const;
    /// Windows-1252 as it is written in this deck: characters beyond ASCII as the file spells them
    /// where it has such characters and its encoding has this one, else as decimal references.
    [[nodiscard]] std::string encoded(std::string_view text) const;
    /// Whether the characters of a slice are what the encoding allows (with no declaration: UTF-8).
    [[nodiscard]] bool isValid(std::string_view slice) const;

private:
    std::string text_;
    std::string name_; ///< of a Named encoding, as iconv knows it
    DeckEncoding encoding_ = DeckEncoding::Utf8;
    bool hasMark_ = false;
    bool hasDirectCharacters_ = false; ///< beyond ASCII
    bool hasOddByte_ = false; ///< behind the last whole unit of UTF-16
};

} // namespace quillmere
