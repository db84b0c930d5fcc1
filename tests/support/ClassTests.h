// What the tests of classes read first: the library, objects with known content, and on Windows real windows.
#pragma once

#include "KestApi.h"
#include "support/Bytes.h"
#include "support/Census.h"
#include "support/Dialogs.h"
#include "support/KernelTests.h"
#include "support/KnownImages.h"
#include "support/KnownRois.h"
#include "support/Slots.h"
#include "support/Streams.h"
#include "support/Surroundings.h"
#include "support/TestData.h"

#if defined(_WIN32)
#include "support/TestWindow.h"
#endif
