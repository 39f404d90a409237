#include "surface_inputs.h"

#include "bench_inputs.h"
#include "document/repair/radio_buttons.h"

namespace quillmere::bench {

namespace {

constexpr int kRows = 30;
constexpr int kColumns = 10;

std::string words(std::size_t size)
{
    constexpr std::string_view kWords = "Filme von heute in allen S\xE4len, ";
    std::string text;
    while (text.size() < size)
        text += kWords.substr(0, size - text.size());
    return text;
}

std::string inFrame(const std::string& content)
{
    return R"(<!--card id="start" title="Kino" newcontext="true"--><HTML><HEAD></HEAD>)"
           R"(<BODY LINK="#0000ff" BGCOLOR="#247F07" STYLE="font-size:12">)"
        + content + "</BODY></HTML>";
}

std::string table(std::size_t size)
{
    constexpr std::size_t kCell = std::string_view("<td></td>").size();
    const auto share = size / (kRows * kColumns);
    const auto cell = "<td>" + words(share > kCell ? share - kCell : 1) + "</td>";
    std::string rows;
    for (int row = 0; row < kRows; ++row) {
        rows += "<tr>";
        for (int column = 0; column < kColumns; ++column)
            rows += cell;
        rows += "</tr>";
    }
    return R"(<table title="T" align="L" columns="10" border="1">)" + rows + "</table>";
}

} // namespace

std::string_view nameOf(AreaShape shape)
{
    switch (shape) {
    case AreaShape::Page:
        return "page";
    case AreaShape::Table:
        return "table";
    case AreaShape::Text:
        break;
    }
    return "text";
}

std::string areaOf(AreaShape shape, std::size_t size)
{
    if (shape == AreaShape::Table) return inFrame(table(size));
    if (shape == AreaShape::Text) return inFrame("<p>" + words(size) + "</p>");
    auto text = inputOf({"deck", ""}, Stage::Design, size);
    InsertTemporaeryRadioButtons(text);
    return text;
}

} // namespace quillmere::bench
