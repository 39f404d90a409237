// What a tag or comment has wrong in itself is known from reading it; here elements are matched
// with a stack, and characters and references are looked at. The fault that stands first in the
// text is told. Held by markup_document_test.cpp.

#include "document/changes/well_formedness.h"

#include "document/changes/character_references.h"
#include "document/changes/doctype_head.h"
#include "document/changes/markup_cursor.h"
#include "document/changes/plain_markup.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <vector>

namespace quillmere {

namespace {

using Kind = MarkupToken::Kind;
using Form = DecodedCharacter::Form;
constexpr auto kNowhere = std::string_view::npos;

/// What stands between "<!DOCTYPE" and '>': a name, where its file lies, declarations in brackets.
bool isDoctype(std::string_view content)
{
    MarkupCursor in(content);
    if (!passDoctypeHead(in)) return false;
    const auto rest = content.substr(in.at);
    const auto last = rest.find_last_not_of(" \t\r\n");
    return last == kNowhere || (rest.front() == '[' && rest[last] == ']');
}

class StructureCheck {
public:
    StructureCheck(std::string_view text, const MarkupDocument& document)
        : text_(text)
        , document_(document)
    {
    }

    std::optional<MarkupFaultAt> run()
    {
        for (const auto& token : document_.tokens) {
            check(token);
            if (fault_) return fault_;
        }
        if (!open_.empty())
            note(MarkupFault::UnendedElement, open_.back()->begin, open_.back()->name);
        if (!rootSeen_) note(MarkupFault::NoRoot, text_.size());
        return fault_;
    }

private:
    void note(MarkupFault fault, std::size_t offset, std::string_view name = {})
    {
        if (!fault_) fault_ = MarkupFaultAt{fault, offset, std::string(name)};
    }

    void check(const MarkupToken& token)
    {
        switch (token.kind) {
        case Kind::Start:
        case Kind::Empty:
            return checkStart(token);
        case Kind::End:
            return checkEnd(token);
        case Kind::Text:
            return checkText(token);
        case Kind::Section:
            if (open_.empty()) note(MarkupFault::TextOutsideRoot, token.begin);
            return;
        case Kind::Instruction:
            return checkInstruction(token);
        case Kind::Doctype:
            return checkDoctype(token);
        case Kind::Comment:
            return;
        }
    }

    void checkStart(const MarkupToken& token)
    {
        if (open_.empty() && rootSeen_) note(MarkupFault::SecondRoot, token.begin, token.name);
        rootSeen_ = true;
        for (const auto& attribute : document_.attributesOf(token))
            checkReferences(attribute.value);
        if (token.kind == Kind::Start) open_.push_back(&token);
    }

    void checkEnd(const MarkupToken& token)
    {
        if (open_.empty() || open_.back()->name != token.name)
            return note(MarkupFault::WrongEnd, token.begin, token.name);
        open_.pop_back();
    }

    void checkText(const MarkupToken& token)
    {
        const auto& content = token.content;
        if (open_.empty()) {
            const auto* const first
                = std::find_if_not(content.begin(), content.end(), isMarkupSpace);
            if (first != content.end()) note(MarkupFault::TextOutsideRoot, offsetOf(first));
            return;
        }
        const auto sectionEnd = content.find("]]>");
        checkReferences(content.substr(0, sectionEnd));
        if (sectionEnd != kNowhere) note(MarkupFault::SectionEndInText, token.begin + sectionEnd);
    }

    void checkReferences(std::string_view content)
    {
        for (auto at = content.find('&'); at != kNowhere; at = content.find('&', at + 1)) {
            const auto reference = decodeCharacter(content, at, document_.bytes);
            const auto offset = offsetOf(content.data()) + at;
            if (reference.form == Form::Broken) return note(MarkupFault::BadReference, offset);
            if (!isDeclared(reference, content.substr(at, reference.length)))
                return note(MarkupFault::UnknownEntity, offset,
                    content.substr(at + 1, reference.length - 2));
        }
    }

    /// The five entities of XML need no declaration; others may stand in the document type's file
    /// or in its brackets.
    [[nodiscard]] bool isDeclared(const DecodedCharacter& reference, std::string_view source) const
    {
        if (mayDeclare_ || source.starts_with("&#")) return true;
        return reference.form == Form::Known && source != "&nbsp;" && source != "&shy;";
    }

    void checkInstruction(const MarkupToken& token)
    {
        if (!equalIgnoringCase(token.name, "xml")) return;
        const bool valid
            = token.begin == 0 && token.name == "xml" && token.content.find("version") != kNowhere;
        if (!valid) note(MarkupFault::BadDeclaration, token.begin);
    }

    void checkDoctype(const MarkupToken& token)
    {
        if (doctypeSeen_ || rootSeen_ || !isDoctype(token.content))
            note(MarkupFault::BadDoctype, token.begin);
        doctypeSeen_ = true;
        mayDeclare_ = token.content.find_first_of("\"'[") != kNowhere;
    }

    [[nodiscard]] std::size_t offsetOf(const char* character) const
    {
        return static_cast<std::size_t>(character - text_.data());
    }

    std::string_view text_;
    const MarkupDocument& document_;
    std::vector<const MarkupToken*> open_;
    bool rootSeen_ = false;
    bool doctypeSeen_ = false;
    bool mayDeclare_ = false; ///< entities
    std::optional<MarkupFaultAt> fault_;
};

std::optional<MarkupFaultAt> characterFault(std::string_view text, const MarkupDocument& document)
{
    if (isPlainText(text)) return std::nullopt;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto code = static_cast<unsigned char>(text[at]);
        if (code < 0x20 && !isMarkupSpace(text[at]))
            return MarkupFaultAt{MarkupFault::BadCharacter, at, {}};
        if (code >= 0x80 && document.bytes == MarkupBytes::Undeclared)
            return MarkupFaultAt{MarkupFault::CharacterBeyondEncoding, at, {}};
    }
    return std::nullopt;
}

} // namespace

std::optional<MarkupFaultAt> firstFault(std::string_view text, const MarkupDocument& document)
{
    std::optional<MarkupFaultAt> first = StructureCheck(text, document).run();
    for (const auto& other : {document.firstFault, characterFault(text, document)}) {
        if (other
            && (!first || first->fault == MarkupFault::UnendedElement
                || other->offset <= first->offset))
            first = other;
    }
    return first;
}

} // namespace quillmere
