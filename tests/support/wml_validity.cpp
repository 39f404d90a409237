// The document type's own file is not at hand, so the two characters that it names are declared in
// its place. Held by tests/project/wml_schema_test.cpp.

#include "support/wml_validity.h"

#include "support/run_program.h"

#include <stdexcept>

namespace quillmere::test {
namespace {

constexpr std::string_view kDocumentType = "<!DOCTYPE wml PUBLIC \"-//WAPFORUM//DTD WML 1.1//EN\" "
                                           "\"http://www.wapforum.org/DTD/wml_1.1.xml\">";
constexpr std::string_view kItsCharacters
    = "<!DOCTYPE wml [<!ENTITY nbsp \"&#160;\"><!ENTITY shy \"&#173;\">]>";

// The statuses of xmllint for a document that is at fault, not the schema or the call.
constexpr int kNotWellFormed = 1, kInvalid = 3, kInvalidToo = 4;

} // namespace

std::string wmlFaults(std::string_view deck)
{
    std::string document(deck);
    const auto type = document.find(kDocumentType);
    if (type == std::string::npos) return "1: the document type is not that of WML 1.1\n";
    document.replace(type, kDocumentType.size(), kItsCharacters);
    const auto result = runProgram(QUILLMERE_XMLLINT,
        {"--nonet", "--noent", "--noout", "--relaxng",
            std::string(QUILLMERE_SOURCE_DIR) + "/tests/data/wml11.rng", "-"},
        document);
    if (result.status == 0) return {};
    if (result.status != kNotWellFormed && result.status != kInvalid
        && result.status != kInvalidToo)
        throw std::runtime_error("xmllint: " + result.errors);
    return result.errors;
}

} // namespace quillmere::test
