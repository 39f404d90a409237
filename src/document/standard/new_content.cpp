// Held by standard_road_test.cpp.

#include "document/standard/new_content.h"

#include <utility>

namespace quillmere {

namespace {

using Kind = DesignPiece::Kind;

} // namespace

void NewContent::prepareFor(const DesignPiece& piece, bool isNew, const WrittenNesting& written)
{
    followList(piece, isNew, written.parent());
    const bool isPart
        = piece.kind == Kind::Atom ? isAction(written.parent()) : isAction(piece.element);
    const bool isLayout = piece.kind == Kind::Space && behindAction_.empty();
    goesOut_ = written.isInAction() && !isPart && !isLayout;
}

/// Begins an entry at a new word, and ends it at what is no text.
void NewContent::followList(const DesignPiece& piece, bool isNew, WmlElement parent)
{
    const bool isText = piece.kind == Kind::Word || piece.kind == Kind::Space
        || piece.element == WmlElement::LineBreak;
    if (isInNewOption_ && !isText) result_.addNew("</option>");
    isInNewOption_ = isInNewOption_ && isText;
    const bool isInList = parent == WmlElement::Select || parent == WmlElement::OptionGroup;
    if (isInNewOption_ || !isInList || piece.kind != Kind::Word || !isNew) return;
    result_.addNew("<option>");
    isInNewOption_ = true;
}

void NewContent::add(std::string_view source)
{
    if (goesOut_)
        behindAction_ += source;
    else
        result_.addNew(source);
}

void NewContent::endAction()
{
    if (!behindAction_.empty()) result_.addNew(std::exchange(behindAction_, {}));
}

} // namespace quillmere
