// What the tests of classes read first: the library, real windows and dialogs, and objects with known content.
#pragma once

#include <windows.h>

#include "KestApi.h"
#include "support/Bytes.h"
#include "support/Census.h"
#include "support/Dialogs.h"
#include "support/KernelTests.h"
#include "support/KnownImages.h"
#include "support/KnownRois.h"
#include "support/Slots.h"
#include "support/Streams.h"
#include "support/TestData.h"
#include "support/TestWindow.h"
