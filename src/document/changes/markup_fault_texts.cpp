// Held by deck_changes_report_test.cpp, which walks the rows.

#include "document/changes/markup_fault_texts.h"

#include "document/text/windows1252.h"

#include <algorithm>
#include <iterator>

namespace quillmere {

namespace {

struct FaultText {
    MarkupFault fault;
    std::string_view text; // "%" is the name
};

constexpr FaultText kFaultTexts[] = {
    {MarkupFault::StrayLess, "Ein „<“ beginnt kein Tag"},
    {MarkupFault::UnendedTag, "Das Tag <%> hat kein „>“"},
    {MarkupFault::BadTag, "Das Tag <%> enthält Zeichen, die dort nicht stehen dürfen"},
    {MarkupFault::MissingBlank, "Vor einem Attribut von <%> fehlt das Leerzeichen"},
    {MarkupFault::MissingValue, "Das Attribut % hat keinen Wert"},
    {MarkupFault::UnquotedValue, "Der Wert des Attributs % steht nicht in Anführungszeichen"},
    {MarkupFault::UnendedValue, "Dem Wert des Attributs % fehlt das schließende Anführungszeichen"},
    {MarkupFault::LessInValue, "Im Wert des Attributs % steht ein „<“"},
    {MarkupFault::DoubleAttribute, "Das Attribut % steht zweimal in einem Tag"},
    {MarkupFault::UnendedComment, "Ein Kommentar hat kein Ende"},
    {MarkupFault::DashesInComment, "Ein Kommentar enthält „--“"},
    {MarkupFault::UnendedSection, "Ein CDATA-Abschnitt hat kein Ende"},
    {MarkupFault::UnendedInstruction,
        "Eine Verarbeitungsanweisung hat keinen Namen oder kein Ende"},
    {MarkupFault::BadDeclaration, "Die XML-Deklaration ist falsch oder steht nicht am Anfang"},
    {MarkupFault::BadDoctype, "Die Angabe des Dokumenttyps ist falsch oder steht am falschen Ort"},
    {MarkupFault::BadCharacter, "Der Text enthält ein Steuerzeichen"},
    {MarkupFault::CharacterBeyondEncoding,
        "Ein Zeichen jenseits von 7 Bit steht da, ohne dass eine Kodierung angegeben ist"},
    {MarkupFault::BadReference, "Ein „&“ beginnt keine Zeichenreferenz"},
    {MarkupFault::UnknownEntity, "Die Zeichenreferenz &%; ist nicht bekannt"},
    {MarkupFault::SectionEndInText, "Im Text steht „]]>“"},
    {MarkupFault::TextOutsideRoot, "Text steht außerhalb des äußersten Elements"},
    {MarkupFault::SecondRoot, "Hinter dem äußersten Element steht ein weiteres: <%>"},
    {MarkupFault::NoRoot, "Die Datei enthält kein Element"},
    {MarkupFault::WrongEnd, "</%> beendet nicht das Element, das gerade offen ist"},
    {MarkupFault::UnendedElement, "Das Element <%> hat kein Ende"},
};

} // namespace

std::string describeFault(MarkupFault fault, std::string_view name)
{
    const auto* const found = std::find_if(std::begin(kFaultTexts), std::end(kFaultTexts),
        [&](const FaultText& text) { return text.fault == fault; });
    std::string sentence = fromUtf8(found->text);
    if (const auto gap = sentence.find('%'); gap != std::string::npos)
        sentence.replace(gap, 1, name);
    return sentence;
}

} // namespace quillmere
