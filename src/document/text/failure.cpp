#include "document/text/failure.h"

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

InvalidArgument::InvalidArgument()
    : RuntimeFailure("Ungültiger Prozeduraufruf oder ungültiges Argument")
{
}

TypeMismatch::TypeMismatch()
    : RuntimeFailure("Typen unverträglich")
{
}

} // namespace quillmere
