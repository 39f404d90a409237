// The operations of the surface. What they show is in surface_view.cpp, what they change in
// surface_edits.cpp, and a person's part in surface_keys.cpp and surface_mouse.cpp. Held by
// design_surface_test.cpp.

#include "editor/design_surface.h"

#include "document/text/failure.h"
#include "document/text/text_search.h"
#include "editor/page/page_places.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace quillmere {
namespace {

constexpr std::string_view kEmptyArea;

std::string withoutScheme(const std::string& path)
{
    constexpr std::string_view kScheme = "file://";
    return findIgnoringCase(path, kScheme) == 0 ? path.substr(kScheme.size()) : path;
}

/// The directory of a path, with its separator.
std::string directoryOf(const std::string& path)
{
    return path.substr(0, path.find_last_of("/\\") + 1);
}

/// Where a place of a text lies in another that was made of it by changes of one piece: from its
/// begin where it lies ahead of them, else from its end.
std::size_t offsetInChanged(std::string_view before, std::string_view now, std::size_t offset)
{
    const auto ahead = std::ranges::mismatch(before, now).in1 - before.begin();
    if (offset <= static_cast<std::size_t>(ahead)) return offset;
    const auto fromEnd = before.size() - offset;
    return now.size() - std::min(fromEnd, now.size());
}

} // namespace

DesignSurface::DesignSurface(WorkFiles& files, QWidget* parent)
    : QTextEdit(parent)
    , files_(files)
    , page_(readSurfacePage(std::string(kEmptyArea)))
{
    setAcceptRichText(true);
    setTabChangesFocus(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setWordWrapMode(QTextOption::WordWrap);
    viewport()->setMouseTracking(true);
    connect(this, &QTextEdit::cursorPositionChanged, this, &DesignSurface::caretMoved);
    connect(this, &QTextEdit::selectionChanged, this, &DesignSurface::caretMoved);
    restyle();
}

void DesignSurface::ExecCommand(int id)
{
    switch (id) {
    case surface_command::kCopy:
        return copy();
    case surface_command::kCut:
        return cut();
    case surface_command::kPaste:
        return paste();
    case surface_command::kUndo:
        return undo();
    case surface_command::kRemoveFormat:
        return removeFormat();
    default:
        return;
    }
}

int DesignSurface::QueryStatus(int id) const
{
    constexpr int kDisabled = 1, kEnabled = 3;
    return id == surface_command::kItalic && control_ ? kDisabled : kEnabled;
}

void DesignSurface::SaveDocument(const std::string& path)
{
    files_.write(path, page_.text);
}

void DesignSurface::LoadURL(const std::string& path)
{
    const auto plain = withoutScheme(path);
    auto text = files_.read(plain);
    pictures_.reset(directoryOf(plain));
    const bool isSame = plain == shownPath_;
    const auto caret = isSame ? offsetInChanged(page_.text, text, caretOffset()) : std::size_t{0};
    showAnew(std::move(text), caret);
    shownPath_ = plain;
}

void DesignSurface::NewDocument()
{
    shownPath_.clear();
    setDocumentHTML(std::string(kEmptyArea));
}

void DesignSurface::setDocumentHTML(std::string text)
{
    showAnew(std::move(text), 0);
}

// Keys and clicks wait until the operation is done, so that none of them meets half of it.
void DesignSurface::yieldToEvents()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void DesignSurface::setLook(const SurfaceStyle& look)
{
    if (look == style_) return;
    style_ = look;
    restyle();
}

void DesignSurface::setFgColor(const QColor& colour)
{
    auto look = style_;
    look.ink = colour;
    setLook(look);
}

void DesignSurface::setBgColor(const QColor& colour)
{
    auto look = style_;
    look.ground = colour;
    setLook(look);
}

void DesignSurface::setFontFamily(const QString& family)
{
    auto look = style_;
    look.fontFamily = family.trimmed();
    setLook(look);
}

void DesignSurface::setFontSizePx(int size)
{
    auto look = style_;
    look.fontSizePx = std::max(1, size);
    setLook(look);
}

} // namespace quillmere
