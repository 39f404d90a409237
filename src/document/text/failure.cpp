#include "document/text/failure.h"

#include "document/text/limits.h"
#include "document/text/windows1252.h"

namespace quillmere {

Failure::Failure(std::string_view description)
    : description_(fromUtf8(description))
    , utf8_(description)
{
}

Overflow::Overflow()
    : RuntimeFailure("Überlauf")
{
}

DeckTooLong::DeckTooLong()
    : Overflow("Das Deck ist zu lang: seine Datei kann höchstens "
        + std::to_string(kMaxLosslessDeckLength) + " Byte (1 MB) haben. Es wurde nichts geändert.")
{
}

InvalidArgument::InvalidArgument()
    : RuntimeFailure("Ungültiger Prozeduraufruf oder ungültiges Argument")
{
}

TypeMismatch::TypeMismatch()
    : RuntimeFailure("Typen unverträglich")
{
}

} // namespace quillmere
