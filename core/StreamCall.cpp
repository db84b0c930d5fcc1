// The calls that run on streams, kept as each thread's own value.
#include "core/StreamCall.h"

#include "core/Platform.h"

namespace kest {
namespace {

constexpr int deepestNesting = 100;

RunningStreamCall* Innermost() { return static_cast<RunningStreamCall*>(ThreadValue()); }

}  // namespace

RunningStreamCall* RunningCallOn(const CcObjectStorage& stream) {
    for (RunningStreamCall* call = Innermost(); call; call = call->outer)
        if (call->stream == &stream) return call;
    return nullptr;
}

StreamCall::StreamCall(const CcObjectStorage& stream) : running(RunningCallOn(stream)) {
    if (!running) {
        own.stream = &stream;
        own.outer = Innermost();
        isKnown = SetThreadValue(&own);
        running = &own;
    }
    ++running->depth;
}

StreamCall::~StreamCall() {
    --running->depth;
    if (IsOutermost() && isKnown) SetThreadValue(own.outer);
}

bool StreamCall::IsTooDeep() const { return running->depth > deepestNesting; }

}  // namespace kest
