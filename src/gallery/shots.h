#pragma once

#include <QString>

namespace quillmere {

/// Writes pictures of the sample areas in `samples` at 96, 120 and 192 dpi into `directory`, which
/// is made. Throws FileFailure for a sample that cannot be read and a picture that cannot be
/// written.
void writeShots(const QString& samples, const QString& directory);

} // namespace quillmere
