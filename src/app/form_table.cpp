// One list of fields serves both directions of a record. Held by form_table_test.cpp.

#include "app/form_table.h"

#include "app/binary_fields.h"
#include "app/resource_text.h"
#include "document/windows1252.h"

#include <algorithm>
#include <utility>

namespace quillmere {

namespace {

template <typename Entry> struct TextField {
    std::string Entry::*member;
    std::size_t width;
};

constexpr std::size_t kIdWidth = 50;

// Skip stands behind these.
constexpr TextField<FormEntry> kFormFields[] = {
    {&FormEntry::Id, kIdWidth},
    {&FormEntry::Caption, 1000},
    {&FormEntry::Img, 255},
    {&FormEntry::Rem, 1000},
};

// FormId and FormSkip stand ahead of these, Index behind the first two.
constexpr TextField<ControlEntry> kControlFields[] = {
    {&ControlEntry::Id, 100},
    {&ControlEntry::Text, 500},
    {&ControlEntry::List, 255},
    {&ControlEntry::Prefix, 255},
    {&ControlEntry::Img, 255},
    {&ControlEntry::Tooltip, 255},
};

constexpr std::size_t kFieldsAheadOfIndex = 2;

template <typename Entry> struct Attribute {
    std::string_view name;
    TextField<Entry> field;
};

constexpr Attribute<FormEntry> kFormAttributes[] = {
    {"id=", kFormFields[0]},
    {"caption=", kFormFields[1]},
    {"img=", kFormFields[2]},
    {"rem=", kFormFields[3]},
};

constexpr Attribute<ControlEntry> kControlAttributes[] = {
    {"id=", kControlFields[0]},
    {"list=", kControlFields[2]},
    {"prefix=", kControlFields[3]},
    {"img=", kControlFields[4]},
    {"tooltip=", kControlFields[5]},
};

template <typename Entry, std::size_t N>
void readAttributes(Entry& entry, std::string_view tag, const Attribute<Entry> (&attributes)[N])
{
    for (const auto& [name, field] : attributes)
        entry.*field.member = fieldText(resourceAttribute(tag, name), field.width);
}

ControlEntry controlFromText(const ResourceEntry& source, const FormEntry& form)
{
    ControlEntry control;
    readAttributes(control, source.tag, kControlAttributes);
    control.FormId = form.Id;
    control.FormSkip = form.Skip;
    control.Index = shortNumber(resourceAttribute(source.tag, "index=")).value_or(kNoArrayIndex);
    control.Text = fieldText(source.content, kControlFields[1].width);
    return control;
}

FormEntry formFromRecord(std::string_view bytes)
{
    FieldReader record(bytes);
    FormEntry form;
    for (const auto& field : kFormFields)
        form.*field.member = record.text(field.width);
    form.Skip = record.number();
    return form;
}

ControlEntry controlFromRecord(std::string_view bytes)
{
    FieldReader record(bytes);
    ControlEntry control;
    control.FormId = record.text(kIdWidth);
    control.FormSkip = record.number();
    for (std::size_t i = 0; i < std::size(kControlFields); ++i) {
        if (i == kFieldsAheadOfIndex) control.Index = record.number();
        control.*kControlFields[i].member = record.text(kControlFields[i].width);
    }
    return control;
}

} // namespace

FormTable formsFromText(std::string_view text)
{
    FormTable table;
    const std::string joined = withoutLineBreaks(text);
    ResourceEntries forms(joined, "<form", "</form");
    while (const auto source = forms.next()) {
        FormEntry form;
        readAttributes(form, source->tag, kFormAttributes);
        form.Skip = shortNumber(resourceAttribute(source->tag, "skip=")).value_or(0);
        ResourceEntries controls(source->content, "<control", "</control");
        while (const auto control = controls.next())
            table.controls.push_back(controlFromText(*control, form));
        table.forms.push_back(std::move(form));
    }
    return table;
}

FormTable formsFromRecords(std::string_view formRecords, std::string_view controlRecords)
{
    FormTable table;
    for (; formRecords.size() >= kFormRecordSize; formRecords.remove_prefix(kFormRecordSize))
        table.forms.push_back(formFromRecord(formRecords));
    for (; controlRecords.size() >= kControlRecordSize;
         controlRecords.remove_prefix(kControlRecordSize))
        table.controls.push_back(controlFromRecord(controlRecords));
    return table;
}

std::string recordsOfForms(const FormTable& table)
{
    std::string bytes;
    FieldWriter record(bytes);
    for (const auto& form : table.forms) {
        for (const auto& field : kFormFields)
            record.text(form.*field.member, field.width);
        record.number(form.Skip);
    }
    return bytes;
}

std::string recordsOfControls(const FormTable& table)
{
    std::string bytes;
    FieldWriter record(bytes);
    for (const auto& control : table.controls) {
        record.text(control.FormId, kIdWidth);
        record.number(control.FormSkip);
        for (std::size_t i = 0; i < std::size(kControlFields); ++i) {
            if (i == kFieldsAheadOfIndex) record.number(control.Index);
            record.text(control.*kControlFields[i].member, kControlFields[i].width);
        }
    }
    return bytes;
}

const FormEntry* findForm(const FormTable& table, std::string_view name, std::int16_t variant)
{
    const auto found
        = std::find_if(table.forms.begin(), table.forms.end(), [&](const FormEntry& form) {
              return form.Skip == variant && equalIgnoringCase(form.Id, name);
          });
    return found == table.forms.end() ? nullptr : &*found;
}

const ControlEntry* findControl(const FormTable& table, const FormEntry& form,
    std::string_view name, std::optional<std::int16_t> arrayIndex)
{
    const auto found = std::find_if(
        table.controls.begin(), table.controls.end(), [&](const ControlEntry& control) {
            return control.FormSkip == form.Skip && equalIgnoringCase(control.FormId, form.Id)
                && equalIgnoringCase(control.Id, name)
                && (!arrayIndex || control.Index == *arrayIndex);
        });
    return found == table.controls.end() ? nullptr : &*found;
}

std::vector<std::string> itemsOfList(std::string_view list)
{
    std::vector<std::string> items;
    while (!list.empty()) {
        const auto end = std::min(list.find(';'), list.size());
        items.emplace_back(list.substr(0, end));
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return items;
}

} // namespace quillmere
