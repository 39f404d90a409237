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

private:
    std::shared_ptr<void> reading_; ///< to UTF-32
    std::shared_ptr<void> writing_;
};

} // namespace quillmere
