#pragma once

namespace quillmere {

/// Holds back the signals that ask the program to end, from this thread, until the end of the last
/// one of its kind: they arrive then. What lies on the disk for the moment only is removed ahead
/// of them.
class HeldSignals {
public:
    HeldSignals();
    HeldSignals(const HeldSignals&) = delete;
    HeldSignals& operator=(const HeldSignals&) = delete;
    HeldSignals(HeldSignals&&) = delete;
    HeldSignals& operator=(HeldSignals&&) = delete;
    ~HeldSignals();
};

} // namespace quillmere
