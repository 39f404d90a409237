#pragma once

#include "app/settings.h"
#include "document/platform/memory_work_files.h"
#include "document/session.h"
#include "imageconv/wbmp_display_copies.h"

#include <string>

namespace quillmere::cli {

/// Says yes to everything and shows nothing.
class AssentingPrompter : public Prompter {
public:
    [[nodiscard]] bool ask(int, std::span<const std::string>, MessageIcon) override { return true; }
    void show(int, std::span<const std::string>, MessageIcon) override { }
    [[nodiscard]] bool showNote(Note) override { return true; }
};

/// No texts: what the commands run asks for none.
class NoWords : public Words {
public:
    [[nodiscard]] std::string GetWord(int, std::initializer_list<std::string_view>) const override
    {
        return {};
    }
};

/// A document session without window, disk and questions.
struct CoreSession {
    /// `copies` draws display copies, which must outlive the session; without it none are drawn.
    explicit CoreSession(bool standardOutput, DisplayCopies* copies = nullptr)
        : session{workFiles, copies != nullptr ? *copies : sizes, prompter, settings, words,
            OutputRules(standardOutput)}
        , sizes(session.output)
    {
    }

    MemoryWorkFiles workFiles;
    AssentingPrompter prompter;
    MemorySettings settings;
    NoWords words;
    DocumentSession session;
    WbmpSizes sizes;
};

} // namespace quillmere::cli
