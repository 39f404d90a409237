#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The texts and pictures that are laid over the forms, and their file forms. All functions take any
// bytes.

namespace quillmere {

inline constexpr std::int16_t kNoArrayIndex = -1; ///< a control that is in no array
inline constexpr std::int16_t kAtLoad = -1; ///< the variant that a form asks for when it loads

struct FormEntry {
    std::string Id; ///< name of the form
    std::string Caption;
    std::string Img; ///< picture file in the directory of skins
    std::string Rem;
    std::int16_t Skip = 0; ///< tells entries of the same Id apart
    bool operator==(const FormEntry&) const = default;
};

struct ControlEntry {
    std::string FormId;
    std::int16_t FormSkip = 0;
    std::string Id; ///< name of the control
    std::string Text;
    std::int16_t Index = kNoArrayIndex; ///< place in a control array
    std::string List; ///< items, separated by ";"
    std::string Prefix;
    std::string Img;
    std::string Tooltip;
    bool operator==(const ControlEntry&) const = default;
};

struct FormTable {
    std::vector<FormEntry> forms;
    std::vector<ControlEntry> controls; ///< each belongs to the form of its FormId and FormSkip
    bool operator==(const FormTable&) const = default;
};

inline constexpr std::size_t kFormRecordSize = 2307;
inline constexpr std::size_t kControlRecordSize = 1674;

/// Reads the text form: `<Form id=".." caption=".." img=".." rem=".." skip="..">`, in it any number
/// of `<control id=".." index=".." list=".." prefix=".." img=".." tooltip="..">text</control`, and
/// `</Form`. A skip that is no number of 16 bits counts as 0, such an index as none. Texts are cut
/// to the widths that the binary forms have.
[[nodiscard]] FormTable formsFromText(std::string_view text);

/// Reads the binary forms: forms in records of 2307 bytes and controls in records of 1674. A part
/// of a record at the end is passed over.
[[nodiscard]] FormTable formsFromRecords(
    std::string_view formRecords, std::string_view controlRecords);

[[nodiscard]] std::string recordsOfForms(const FormTable& table);
[[nodiscard]] std::string recordsOfControls(const FormTable& table);

/// The first entry of the form `name` with this variant; null where there is none. Ignores case.
[[nodiscard]] const FormEntry* findForm(
    const FormTable& table, std::string_view name, std::int16_t variant = kAtLoad);

/// The first entry of the control `name` in `form`; null where there is none. Ignores case. A
/// control of an array has the entry of its index, any other control one of whatever index.
[[nodiscard]] const ControlEntry* findControl(const FormTable& table, const FormEntry& form,
    std::string_view name, std::optional<std::int16_t> arrayIndex = std::nullopt);

/// The items of a list in their order; none for an empty text.
[[nodiscard]] std::vector<std::string> itemsOfList(std::string_view list);

} // namespace quillmere
