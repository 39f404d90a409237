// Any bytes as a file of forms, in both kinds: what is read compiles into records that read alike.

#include "fuzz_target.h"

#include "app/form_table.h"

#include <string>

using namespace quillmere;

namespace {

void requireRoundTrip(const FormTable& table)
{
    fuzz::require(formsFromRecords(recordsOfForms(table), recordsOfControls(table)) == table);
    for (const FormEntry& form : table.forms)
        (void)findControl(table, form, "btnOk", std::int16_t{1});
    for (const ControlEntry& control : table.controls)
        (void)itemsOfList(control.List);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(data, data + size);
    requireRoundTrip(formsFromText(bytes));
    const std::size_t half = bytes.size() / 2;
    requireRoundTrip(formsFromRecords(bytes.substr(0, half), bytes.substr(half)));
    return 0;
}
