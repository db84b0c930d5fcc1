// The calls that run on streams, kept in a slot of the system for each thread. (The compiler's own thread-local variables
// would end the process when memory is short.)
#include "core/StreamCall.h"

#include <windows.h>

namespace kest {
namespace {

constexpr int deepestNesting = 100;

DWORD innermostSlot = TLS_OUT_OF_INDEXES;

RunningStreamCall* Innermost() { return static_cast<RunningStreamCall*>(TlsGetValue(innermostSlot)); }

}  // namespace

bool BeginStreamCalls() {
    innermostSlot = TlsAlloc();
    return innermostSlot != TLS_OUT_OF_INDEXES;
}

void EndStreamCalls() { TlsFree(innermostSlot); }

RunningStreamCall* RunningCallOn(const CcObjectStorage& stream) {
    for (RunningStreamCall* call = Innermost(); call; call = call->outer)
        if (call->stream == &stream) return call;
    return nullptr;
}

StreamCall::StreamCall(const CcObjectStorage& stream) : running(RunningCallOn(stream)) {
    if (!running) {
        own.stream = &stream;
        own.outer = Innermost();
        isKnown = TlsSetValue(innermostSlot, &own) != FALSE;
        running = &own;
    }
    ++running->depth;
}

StreamCall::~StreamCall() {
    --running->depth;
    if (IsOutermost() && isKnown) TlsSetValue(innermostSlot, own.outer);
}

bool StreamCall::IsTooDeep() const { return running->depth > deepestNesting; }

}  // namespace kest
