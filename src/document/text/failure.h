#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace quillmere {

/// What cannot be done. The description is Windows-1252 text in German that a person can act on:
/// what failed, with which file, and what is unchanged.
class Failure : public std::exception {
public:
    /// `description` is UTF-8, as literals in the source are.
    explicit Failure(std::string_view description);
    [[nodiscard]] const std::string& description() const { return description_; }
    /// The description as it was given: names of files may have more than Windows-1252 has.
    [[nodiscard]] const std::string& utf8() const { return utf8_; }
    /// The description in Windows-1252.
    [[nodiscard]] const char* what() const noexcept override { return description_.c_str(); }

private:
    std::string description_;
    std::string utf8_;
};

/// A failure of the run of an operation that lies in its input: the operation has changed nothing.
class RuntimeFailure : public Failure {
public:
    using Failure::Failure;
};

/// A position, length or counter beyond 16 bits signed (32767).
class Overflow : public RuntimeFailure {
public:
    Overflow();

protected:
    using RuntimeFailure::RuntimeFailure;
};

/// A deck that is longer than its file may be where nothing is lost.
class DeckTooLong : public Overflow {
public:
    DeckTooLong();
};

/// A text that has no place for what the operation must do, such as a value without closing quote.
class InvalidArgument : public RuntimeFailure {
public:
    InvalidArgument();
};

/// A text that should be a number and is none.
class TypeMismatch : public RuntimeFailure {
public:
    TypeMismatch();
};

/// A file or directory that cannot be read, made or written.
class FileFailure : public Failure {
public:
    using Failure::Failure;
};

/// A picture that cannot be read: of another type, cut short or too large.
class BadPicture : public Failure {
public:
    using Failure::Failure;
};

} // namespace quillmere
