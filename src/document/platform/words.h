#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace quillmere {

/// The texts that are built at run time, by number.
class Words {
public:
    Words() = default;
    Words(const Words&) = delete;
    Words& operator=(const Words&) = delete;
    Words(Words&&) = delete;
    Words& operator=(Words&&) = delete;
    virtual ~Words() = default;

    /// The text of the word `id` with "<br>" as a line break (CR LF) and each "<?>" replaced by
    /// the next of `arguments`, at most ten; "" for a word that there is not.
    [[nodiscard]] virtual std::string GetWord(
        int id, std::initializer_list<std::string_view> arguments = {}) const = 0;
};

} // namespace quillmere
