#pragma once

#include <string>
#include <string_view>

// Slow versions of the corrections of WML and design HTML: each search runs over the whole text and
// each step changes it at once. They are what the fast versions are held against, and share nothing
// with them. Limits of length are not looked at.

namespace quillmere::literal {

void RepairOnePair(std::string& text, std::string_view open, std::string_view close);
void RepairNesting(std::string& text);
bool FormatAroundSelect(
    std::string& text, std::string_view open, std::string_view close, bool apply);
/// As if the question were answered with assent.
void RepairFormatAroundSelect(std::string& text);
void RepairParagraphs(std::string& text);
void WrapInParagraph(std::string& text, std::string_view open, std::string_view close);
void SplitAtParagraphs(std::string& text, std::string_view open, std::string_view close);
void RepairOverlap(std::string& text, std::string_view openA, std::string_view closeA,
    std::string_view openB, std::string_view closeB);
void RepairFormatNesting(std::string& text);
[[nodiscard]] std::string TakeDoBlock(std::string& text);
void BreakWmlLines(std::string& text);
void RestoreWhitespace(std::string& text, std::string_view pristine);
void InsertTemporaeryRadioButtons(std::string& text);
void DeleteAllTemporaeryRadioButtons(std::string& text);

} // namespace quillmere::literal
