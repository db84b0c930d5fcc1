// The base of all guards.
#pragma once

namespace kest {

/// Neither copied nor assigned.
class Guard {
protected:
    Guard() = default;
    ~Guard() = default;

public:
    Guard(const Guard&) = delete;
    Guard& operator=(const Guard&) = delete;
};

}  // namespace kest
