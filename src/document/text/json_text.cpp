#include "document/text/json_text.h"

namespace quillmere {

std::string jsonString(std::string_view text)
{
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string json = "\"";
    for (const char character : text) {
        const auto code = static_cast<unsigned char>(character);
        if (code < 0x20 || code == 0x7F) {
            json.append("\\u00").append({kDigits[code >> 4U], kDigits[code & 0xFU]});
        } else {
            if (character == '"' || character == '\\') json += '\\';
            json += character;
        }
    }
    return json + '"';
}

} // namespace quillmere
