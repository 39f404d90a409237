#pragma once

#include "document/session.h"

#include <cstddef>
#include <string>
#include <string_view>

// The pictures of a deck and their display copies, which the surface shows in their place.

namespace quillmere {

/// A name for a display copy that was chosen already; empty parts are chosen here.
struct DisplayCopyName {
    std::string directory;
    std::string file;
};

/// Makes sure that the WBMP picture `path` has an entry and a display copy in the area, and returns
/// the path of the display copy; "" for a name that does not end in "wbmp".
[[nodiscard]] std::string RegisterImage(DocumentSession& session, std::size_t areaIndex,
    const std::string& path, std::string_view alternativeText, const DisplayCopyName& chosen = {});

/// The first of Bmp0.bmp, Bmp1.bmp, ... that the work files have not.
[[nodiscard]] std::string FindFreeBmpName(DocumentSession& session);
/// The first of WBmp0.wbmp, WBmp1.wbmp, ... that the work files have not. Makes no file.
[[nodiscard]] std::string NewWbmpName(DocumentSession& session);

/// Deletes the area with its work files and those display copies that no area uses any more.
/// `withDeckFiles`: the last area takes the generated deck and the pristine copy with it.
void RemoveArea(DocumentSession& session, std::size_t areaIndex, bool withDeckFiles);

/// Reads what the person changed of the picture at `imageCursor` back out of the current area.
void ReadImageTags(DocumentSession& session);

/// Copies each picture that the deck's text names from one directory to the other.
/// Throws FileFailure.
void CopyDeckImages(std::string_view deckText, const std::string& fromDirectory,
    const std::string& toDirectory, DocumentSession& session);

} // namespace quillmere
