// All public headers of the library.
#pragma once

#include "CcFileObjectStorage.h"
#include "CcGrayImage256.h"
#include "CcHLObject.h"
#include "CcImage.h"
#include "CcList.h"
#include "CcMemObjectStorage.h"
#include "CcNumber.h"
#include "CcObjectStorage.h"
#include "CcPropertyBag.h"
#include "CcRoiBase.h"
#include "CcRoiRect.h"
#include "CcRoiRows.h"
#include "CcString.h"
#include "KestBlocks.h"
#include "KestExport.h"
#include "KestTypes.h"
