// What is known of the objects that are being written to or read from a stream right now: how deep they are nested, and
// whether bytes were lost. Streams themselves have no room for it, and each thread uses streams of its own, so it is
// kept for each thread.
#pragma once

#include "KestTypes.h"

class CcObjectStorage;

namespace kest {

/// A PutObject or GetNextObject that runs on a stream, with those that it leads to on the same stream.
struct RunningStreamCall {
    const CcObjectStorage* stream = nullptr;
    RunningStreamCall* outer = nullptr;  ///< of this thread, on another stream
    int depth = 0;
    /// The first failure of a write: nothing is written behind it, so that what is half there does not read as whole.
    int firstLost = KEST_OK;
};

/// This thread's outermost call that runs on the stream; null without one.
RunningStreamCall* RunningCallOn(const CcObjectStorage& stream);

/// Begins a call, and ends it with its scope.
class StreamCall {
public:
    explicit StreamCall(const CcObjectStorage& stream);
    ~StreamCall();
    StreamCall(const StreamCall&) = delete;
    StreamCall& operator=(const StreamCall&) = delete;

    bool IsOutermost() const { return running == &own; }
    /// Deeper than a stream may lead, so that one that lies does not exhaust the stack.
    bool IsTooDeep() const;
    /// False when memory for the first call of a thread is short.
    bool IsKnown() const { return isKnown; }

private:
    RunningStreamCall own;
    RunningStreamCall* running;
    bool isKnown = true;
};

}  // namespace kest
