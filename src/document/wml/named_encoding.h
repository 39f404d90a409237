#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace quillmere {

/// An encoding that iconv knows and in which ASCII is spelled as ASCII.
class NamedEncoding {
public:
    /// No encoding: has no character beyond ASCII.
    NamedEncoding() = default;
    /// nullopt for a name that nobody knows, and for an encoding in which markup is not ASCII.
    [[nodiscard]] static std::optional<NamedEncoding> find(std::string_view name);

    struct Decoded {
        std::size_t length = 0;
        char32_t point = 0;
    };
    /// The first character of some bytes; nullopt where they begin none.
    [[nodiscard]] std::optional<Decoded> first(std::string_view bytes) const;
    /// A character as it is spelled; nullopt for one that the encoding has not.
    [[nodiscard]] std::optional<std::string> spelled(char32_t point) const;

    /// Whether bytes mean something else behind an escape (ISO-2022-JP), so that a '<' is no '<'.
    [[nodiscard]] bool shifts() const;
    /// A whole file in UTF-8, and UTF-8 as a file; nullopt where some of it has no counterpart.
    [[nodiscard]] std::optional<std::string> utf8Of(std::string_view file) const;
    [[nodiscard]] std::optional<std::string> fileOf(std::string_view utf8) const;

private:
    std::string name_;
    std::shared_ptr<void> reading_; ///< to UTF-32
    std::shared_ptr<void> writing_;
};

} // namespace quillmere
