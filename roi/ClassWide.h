// What all ROIs of a class, or of all classes, share: pens, counts and work arrays. Different ROIs may be used by
// different threads, so whoever touches these holds the lock.
#pragma once

#include "core/Platform.h"
#include "core/kernel/Guard.h"

namespace kest {

/// Held from construction to destruction; one at a time in a thread.
class ClassWideGuard : Guard {
public:
    ClassWideGuard() { TakeLock(); }
    ~ClassWideGuard() { GiveLock(); }
};

}  // namespace kest
