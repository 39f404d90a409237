#include "support/row_file.h"

#include <fstream>
#include <stdexcept>

namespace quillmere::test {
namespace {

std::string withoutEscapes(const std::string& line)
{
    std::string field;
    for (std::size_t at = 0; at < line.size(); ++at) {
        const char sign = line[at] == '\\' ? line.at(++at) : '\0';
        if (sign == 'x') {
            field += static_cast<char>(std::stoi(line.substr(at + 1, 2), nullptr, 16));
            at += 2;
        } else {
            field += sign == '\0' ? line[at]
                : sign == 'n'     ? '\n'
                : sign == 'r'     ? '\r'
                : sign == 't'     ? '\t'
                                  : sign;
        }
    }
    return field;
}

} // namespace

std::vector<std::vector<std::string>> rowsOf(const std::string& file)
{
    std::ifstream lines(QUILLMERE_SOURCE_DIR "/tests/data/rows/" + file);
    std::vector<std::vector<std::string>> rows;
    bool isNew = true;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with('#')) continue;
        if (isNew && !line.empty()) rows.emplace_back();
        isNew = line.empty();
        if (!isNew) rows.back().push_back(line == "\"\"" ? "" : withoutEscapes(line));
    }
    if (rows.empty()) throw std::runtime_error("no rows in " + file);
    return rows;
}

} // namespace quillmere::test
