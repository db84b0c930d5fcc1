// Something that is taken anew each time it is needed.
#pragma once

namespace kest {

/// Where a value comes from that belongs to the host, such as an image's pixels. Whatever runs messages (a box, a
/// dialog, a print job) lets the host replace it, so the value is asked for again afterwards and the one before is
/// forgotten. It refers to a function of the caller, for the time of a call.
template <class Value>
class Source {
public:
    template <class Take>
    Source(const Take& function)
        : take(&function), call([](const void* taker) -> Value { return (*static_cast<const Take*>(taker))(); }) {}

    Value operator()() const { return call(take); }

private:
    const void* take;
    Value (*call)(const void*);
};

}  // namespace kest
