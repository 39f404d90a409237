#pragma once

#include <QString>

namespace quillmere {

/// Writes pictures of the main window and of its forms into `directory`, in each skin of the
/// directory `skins`, at 96 and 192 dpi. What they show are the decks in the folders of `examples`.
/// Throws FileFailure for what cannot be read or written.
void writeWindowShots(const QString& skins, const QString& examples, const QString& directory);

} // namespace quillmere
