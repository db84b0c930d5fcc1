// What all ROIs of a class, or of all classes, share: pens, counts and work arrays. Different ROIs may be used by
// different threads, so whoever touches these holds the lock.
#pragma once

#include <windows.h>

#include "core/GdiGuards.h"

namespace kest {

inline SRWLOCK classWideLock = SRWLOCK_INIT;

/// Held from construction to destruction; one at a time in a thread.
class ClassWideGuard : Guard {
public:
    ClassWideGuard() { AcquireSRWLockExclusive(&classWideLock); }
    ~ClassWideGuard() { ReleaseSRWLockExclusive(&classWideLock); }
};

}  // namespace kest
