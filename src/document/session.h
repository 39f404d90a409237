#pragma once

#include "document/deck.h"
#include "document/display_copies.h"
#include "document/platform/prompter.h"
#include "document/platform/settings_store.h"
#include "document/platform/words.h"
#include "document/platform/work_files.h"
#include "document/text/output_rules.h"

#include <array>
#include <cstdint>
#include <string>

namespace quillmere {

/// The editing surface as the document core sees it.
class EditingSurface {
public:
    EditingSurface() = default;
    EditingSurface(const EditingSurface&) = delete;
    EditingSurface& operator=(const EditingSurface&) = delete;
    EditingSurface(EditingSurface&&) = delete;
    EditingSurface& operator=(EditingSurface&&) = delete;
    virtual ~EditingSurface() = default;

    [[nodiscard]] virtual bool Busy() const = 0;
    /// Writes the shown area to its design work file.
    virtual void SaveDocument(const std::string& path) = 0;
    /// Lets waiting events run once.
    virtual void yieldToEvents() = 0;
};

/// How the pages of a device look.
struct PageStyle {
    std::int32_t backColour = 0; ///< red in the low byte
    std::int16_t fontSizePt = 0;
    std::string fontFamily; ///< a field of 150 characters, blanks behind the text
};

/// The open deck and what the operations on it stand on. All operations get it by reference;
/// nothing of it is owned but the deck and the values.
struct DocumentSession {
    WorkFiles& workFiles;
    DisplayCopies& displayCopies;
    Prompter& prompter;
    SettingsStore& settings;
    const Words& words;
    OutputRules output;

    Deck deck{};
    EditingSurface* surface = nullptr; ///< no window: nothing to wait for
    std::array<PageStyle*, 2> devices{}; ///< current device by surface kind; null: none
    int twipsPerPixel = 15;
    int currentArea = 0;
    std::int32_t imageColour = 0; ///< drawing colour of the last display copy, red in the low byte
};

} // namespace quillmere
