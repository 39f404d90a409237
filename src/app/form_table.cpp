// The layout of a record stands once, for both directions. Held by form_table_test.cpp.

#include "app/form_table.h"

#include "app/resource_text.h"
#include "document/text/record_fields.h"
#include "document/text/text_lines.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <utility>

namespace quillmere {

namespace {

constexpr std::size_t kFormIdWidth = 50;
constexpr std::size_t kControlIdWidth = 100;
constexpr std::size_t kTextWidth = 500;
constexpr std::size_t kLongWidth = 1000;
constexpr std::size_t kShortWidth = 255;

struct FormRecord {
    static constexpr std::size_t kSize = kFormRecordSize;
    TextField<kFormIdWidth> id;
    TextField<kLongWidth> caption;
    TextField<kShortWidth> img;
    TextField<kLongWidth> rem;
    std::int16_t skip = 0;
    static void eachField(auto& record, auto&& field)
    {
        field(0, record.id);
        field(50, record.caption);
        field(1050, record.img);
        field(1305, record.rem);
        field(2305, record.skip);
    }
};

struct ControlRecord {
    static constexpr std::size_t kSize = kControlRecordSize;
    TextField<kFormIdWidth> formId;
    std::int16_t formSkip = 0;
    TextField<kControlIdWidth> id;
    TextField<kTextWidth> text;
    std::int16_t index = 0;
    TextField<kShortWidth> list;
    TextField<kShortWidth> prefix;
    TextField<kShortWidth> img;
    TextField<kShortWidth> tooltip;
    static void eachField(auto& record, auto&& field)
    {
        field(0, record.formId);
        field(50, record.formSkip);
        field(52, record.id);
        field(152, record.text);
        field(652, record.index);
        field(654, record.list);
        field(909, record.prefix);
        field(1164, record.img);
        field(1419, record.tooltip);
    }
};

/// Calls `pair` with each field of a record and its counterpart in an entry.
void eachPair(auto& record, auto& entry, auto&& pair) requires requires
{
    entry.Caption;
}
{
    pair(record.id, entry.Id);
    pair(record.caption, entry.Caption);
    pair(record.img, entry.Img);
    pair(record.rem, entry.Rem);
    pair(record.skip, entry.Skip);
}

void eachPair(auto& record, auto& entry, auto&& pair) requires requires
{
    entry.FormId;
}
{
    pair(record.formId, entry.FormId);
    pair(record.formSkip, entry.FormSkip);
    pair(record.id, entry.Id);
    pair(record.text, entry.Text);
    pair(record.index, entry.Index);
    pair(record.list, entry.List);
    pair(record.prefix, entry.Prefix);
    pair(record.img, entry.Img);
    pair(record.tooltip, entry.Tooltip);
}

struct FromRecord {
    void operator()(std::int16_t field, std::int16_t& member) const { member = field; }
    template <std::size_t Length>
    void operator()(const TextField<Length>& field, std::string& member) const
    {
        member = field.text();
    }
};

struct IntoRecord {
    void operator()(std::int16_t& field, std::int16_t member) const { field = member; }
    template <std::size_t Length>
    void operator()(TextField<Length>& field, const std::string& member) const
    {
        field.set(member);
    }
};

template <typename Record, typename Entry> std::vector<Entry> entriesFrom(std::string_view bytes)
{
    std::vector<Entry> entries;
    for (; bytes.size() >= Record::kSize; bytes.remove_prefix(Record::kSize)) {
        Record record;
        Record::eachField(record, RecordReader(bytes));
        eachPair(record, entries.emplace_back(), FromRecord());
    }
    return entries;
}

template <typename Record, typename Entry> std::string bytesOf(const std::vector<Entry>& entries)
{
    std::string bytes;
    bytes.reserve(entries.size() * Record::kSize);
    for (const auto& entry : entries) {
        Record record;
        eachPair(record, entry, IntoRecord());
        appendRecord(bytes, record);
    }
    return bytes;
}

ControlEntry controlFromText(const ResourceEntry& source, const FormEntry& form)
{
    const auto field = [&](std::string_view name, std::size_t width) {
        return fieldText(resourceAttribute(source.tag, name), width);
    };
    ControlEntry control;
    control.FormId = form.Id;
    control.FormSkip = form.Skip;
    control.Id = field("id=", kControlIdWidth);
    control.Text = fieldText(source.content, kTextWidth);
    control.Index = shortNumber(resourceAttribute(source.tag, "index=")).value_or(kNoArrayIndex);
    control.List = field("list=", kShortWidth);
    control.Prefix = field("prefix=", kShortWidth);
    control.Img = field("img=", kShortWidth);
    control.Tooltip = field("tooltip=", kShortWidth);
    return control;
}

FormEntry formFromTag(std::string_view tag)
{
    const auto field = [&](std::string_view name, std::size_t width) {
        return fieldText(resourceAttribute(tag, name), width);
    };
    FormEntry form;
    form.Id = field("id=", kFormIdWidth);
    form.Caption = field("caption=", kLongWidth);
    form.Img = field("img=", kShortWidth);
    form.Rem = field("rem=", kLongWidth);
    form.Skip = shortNumber(resourceAttribute(tag, "skip=")).value_or(0);
    return form;
}

} // namespace

FormTable formsFromText(std::string_view text)
{
    FormTable table;
    const std::string joined = joinLines(text);
    ResourceEntries forms(joined, "<form", "</form");
    while (const auto source = forms.next()) {
        const auto& form = table.forms.emplace_back(formFromTag(source->tag));
        ResourceEntries controls(source->content, "<control", "</control");
        while (const auto control = controls.next())
            table.controls.push_back(controlFromText(*control, form));
    }
    return table;
}

FormTable formsFromRecords(std::string_view formRecords, std::string_view controlRecords)
{
    return {entriesFrom<FormRecord, FormEntry>(formRecords),
        entriesFrom<ControlRecord, ControlEntry>(controlRecords)};
}

std::string recordsOfForms(const FormTable& table)
{
    return bytesOf<FormRecord>(table.forms);
}

std::string recordsOfControls(const FormTable& table)
{
    return bytesOf<ControlRecord>(table.controls);
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
