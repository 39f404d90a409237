#pragma once

#include "document/session.h"

#include <cstdint>
#include <set>
#include <string>

namespace quillmere {

/// Sets the session's deck aside while another one is built in its place. At the end the old deck
/// comes back, and the work files of the new one are removed; or, after commit(), the new deck
/// stays, and those of the old one are removed. Files that the other deck names are kept.
class DeckReplacement {
public:
    explicit DeckReplacement(DocumentSession& session);
    DeckReplacement(const DeckReplacement&) = delete;
    DeckReplacement& operator=(const DeckReplacement&) = delete;
    DeckReplacement(DeckReplacement&&) = delete;
    DeckReplacement& operator=(DeckReplacement&&) = delete;
    ~DeckReplacement();

    [[nodiscard]] const Deck& old() const { return old_; }
    /// This file is neither deck's to remove.
    void keep(std::string path) { kept_.insert(std::move(path)); }
    void commit();

private:
    void removeFilesOf(const Deck& gone, const Deck& other);

    DocumentSession& session_;
    Deck old_;
    std::int32_t oldImageColour_;
    std::set<std::string> kept_;
    bool isCommitted_ = false;
};

} // namespace quillmere
