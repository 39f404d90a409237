#pragma once

#include "document/session.h"

#include <cstddef>
#include <span>
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
/// the path of the display copy; "" for a name that does not end in "wbmp". A picture that cannot
/// be read is shown by its alternative text. Throws InvalidArgument for an area that there is not,
/// FileFailure where the copy cannot be written, Overflow where no name is left; the area is then
/// as it was.
[[nodiscard]] std::string RegisterImage(DocumentSession& session, std::size_t areaIndex,
    const std::string& path, std::string_view alternativeText, const DisplayCopyName& chosen = {});

/// The first of Bmp0.bmp, Bmp1.bmp, ... that the work files have not. Throws Overflow beyond 32767.
[[nodiscard]] std::string FindFreeBmpName(DocumentSession& session);
/// The first of WBmp0.wbmp, WBmp1.wbmp, ... that the work files have not. Makes no file. Throws
/// Overflow beyond 32767.
[[nodiscard]] std::string NewWbmpName(DocumentSession& session);

/// Deletes the area with its work files and those display copies that no area uses any more.
/// `withDeckFiles`: the last area takes the generated deck and the pristine copy with it. Throws
/// InvalidArgument for an area that there is not, and FileFailure where another area's file cannot
/// be read; the deck is then as it was. Files that cannot be removed stay.
void RemoveArea(DocumentSession& session, std::size_t areaIndex, bool withDeckFiles);

/// Reads what the person changed of the picture at `imageCursor` back out of the current area: size
/// and alignment, as far as its tag tells them. Without area or picture nothing is done. Throws
/// FileFailure, TypeMismatch for a size that is no number and Overflow for one beyond 32 bits; the
/// picture's entry is then as it was.
void ReadImageTags(DocumentSession& session);

/// Copies each picture that the deck's text names from one directory to the other, where its
/// folders are made. A picture that is missing is told through the prompter, and one that is there
/// already with other bytes is asked for. Throws FileFailure; the pictures ahead of it are then
/// copied.
void CopyDeckImages(std::string_view deckText, const std::string& fromDirectory,
    const std::string& toDirectory, DocumentSession& session);
/// The same for pictures by their names.
void copyPictures(std::span<const std::string> names, const std::string& fromDirectory,
    const std::string& toDirectory, DocumentSession& session);

} // namespace quillmere
