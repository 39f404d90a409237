#pragma once

#include "document/wml/named_encoding.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The bytes of a deck file and the text in them.

namespace quillmere {

/// How the characters of a deck file are spelled (XML 1.0, appendix F).
enum class DeckEncoding : std::uint8_t {
    Utf8, ///< also where nothing is declared, or what nobody knows
    Utf16LittleEndian,
    Utf16BigEndian,
    Windows1252, ///< ISO-8859-1 as well
    Named, ///< another encoding that is declared and known to iconv
};

/// A character of a deck's text as it is spelled there.
struct DeckCharacter {
    std::size_t length = 1; ///< in bytes of the text
    char32_t point = 0; ///< of bytes that the encoding has not: what Windows-1252 takes them for
    bool isValid = true; ///< the encoding has it, and XML 1.0 allows it
};

/// The name of the encoding in the XML declaration that a text begins with; "" without one.
[[nodiscard]] std::string_view declaredEncoding(std::string_view text);

/// A deck file with its encoding. Its text is cut in `text()`, in which all markup is ASCII: the
/// file as it is, without its byte order mark, or UTF-8 in place of UTF-16 and of encodings with
/// shifts. Slices of it are written back byte for byte; the core's own text is Windows-1252 with
/// character references for what that has not.
class DeckBytes {
public:
    /// Takes any bytes. The encoding is told by the byte order mark, by the zero bytes of UTF-16,
    /// or by the XML declaration. Bytes that it has not are read as Windows-1252, one by one.
    explicit DeckBytes(std::string file = {});

    [[nodiscard]] std::string_view text() const { return text_; }
    [[nodiscard]] DeckEncoding encoding() const { return encoding_; }
    /// Whether the declaration names an encoding that nobody knows, or that the file cannot have.
    [[nodiscard]] bool declaresWrongly() const { return declaresWrongly_; }
    /// The file as it was read.
    [[nodiscard]] std::string file() const { return fileOf(text_); }
    /// A text made of slices of text() and of encoded() pieces as a file in this encoding, with the
    /// byte order mark that the file had. A text equal to text() gives the file as it was read.
    [[nodiscard]] std::string fileOf(std::string_view text) const;

    /// The character at `offset`, which lies within `slice`.
    [[nodiscard]] DeckCharacter characterAt(std::string_view slice, std::size_t offset) const;
    /// A slice of text() as Windows-1252, with decimal character references for what that has not.
    [[nodiscard]] std::string decoded(std::string_view slice) const;
    /// Windows-1252 as it is written in this deck: characters beyond ASCII as the file spells them
    /// where it has such characters and its encoding has this one, else as decimal references.
    [[nodiscard]] std::string encoded(std::string_view text) const;
    /// A character as the file would spell it; "?" for one that its encoding has not.
    [[nodiscard]] std::string spelled(char32_t point) const;
    /// Whether the characters of a slice are what the encoding and XML 1.0 allow.
    [[nodiscard]] bool isValid(std::string_view slice) const;

private:
    void takeUtf16(std::string_view file, bool hasMark);
    void takeDeclared(std::string_view name);
    void takeShifting();
    [[nodiscard]] bool isUtf16() const;
    [[nodiscard]] DeckCharacter wideCharacterAt(std::string_view slice, std::size_t offset) const;
    [[nodiscard]] std::optional<std::string> spelling(char32_t point) const;

    std::string text_;
    NamedEncoding named_; ///< of DeckEncoding::Named
    DeckEncoding encoding_ = DeckEncoding::Utf8;
    bool hasMark_ = false;
    bool isLatin1_ = false; ///< ISO-8859-1, whose codes from 128 to 159 are not those of Windows
    bool hasDirectCharacters_ = false; ///< beyond ASCII
    bool isShifting_ = false; ///< the text is UTF-8 in place of the file's named encoding
    bool hasOddByte_ = false; ///< behind the last whole unit of UTF-16
    bool declaresWrongly_ = false;
};

} // namespace quillmere
