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

std::string table(const std::string& cell)
{
    std::string rows;
    for (int row = 0; row < kRows; ++row) {
        rows += "<tr>";
        for (int column = 0; column < kColumns; ++column)
            rows.append("<td>").append(cell).append("</td>");
        rows += "</tr>";
    }
    return R"(<table title="T" align="L" columns="10" border="1">)" + rows + "</table>";
}

std::string cells(std::size_t size)
{
    constexpr std::size_t kTags = std::string_view("<td></td>").size();
    const auto share = size / (std::size_t{kRows} * kColumns);
    return table(words(share > kTags ? share - kTags : 1));
}

std::string longArea(std::size_t size)
{
    constexpr std::string_view kPiece
        = R"(<p align="left">Filme von <b>heute</b> in allen Hallen, <a href="#a">Karten</a> an der )"
          R"(Kasse.</p><p align="left">Name: <!--#input &lt;input name="n"/&gt;--><br/>Wie viele )"
          R"(Karten im <i>Parkett</i>?</p><!--#comment Saal--><p align="center">Ende</p>)";
    std::string content = R"(<!--#timer &lt;timer value="10"/&gt;-->)";
    while (content.size() < size)
        content += kPiece;
    return inFrame(content);
}

std::string page(std::size_t size)
{
    auto text = inputOf({"deck", ""}, Stage::Design, size);
    InsertTemporaeryRadioButtons(text);
    return text;
}

std::string pageWithTable(std::size_t size)
{
    constexpr std::size_t kPiece = 1000; // the least that a page can be made of
    const auto last = table("Zelle");
    auto text = page(size > last.size() + kPiece ? size - last.size() : 2 * kPiece);
    return text.insert(text.find("</BODY>"), last);
}

} // namespace

std::string_view nameOf(AreaShape shape)
{
    constexpr std::string_view kNames[] = {"page", "table", "cells", "text", "long"};
    return kNames[static_cast<std::size_t>(shape)];
}

std::string areaOf(AreaShape shape, std::size_t size)
{
    switch (shape) {
    case AreaShape::Page:
        return page(size);
    case AreaShape::Table:
        return pageWithTable(size);
    case AreaShape::Cells:
        return inFrame(cells(size));
    case AreaShape::Long:
        return longArea(size);
    case AreaShape::Text:
        break;
    }
    return inFrame("<p>" + words(size) + "</p>");
}

} // namespace quillmere::bench
