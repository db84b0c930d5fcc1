// The table of the classes that a stream can make.
#include "core/ObjectFactory.h"

#include <cstring>

#include "Cc24BitHSLImage.h"
#include "Cc24BitRGBImage.h"
#include "CcBinaryImage.h"
#include "CcCurve.h"
#include "CcGraph.h"
#include "CcCalibration.h"
#include "CcGrayImage256.h"
#include "CcGrayImageFloat.h"
#include "CcGrayImageInt16.h"
#include "CcGrayImageInt32.h"
#include "CcList.h"
#include "CcNumber.h"
#include "CcPropertyBag.h"
#include "CcRoiEllipse.h"
#include "CcRoiFreeHand.h"
#include "CcRoiFreeHandLine.h"
#include "CcRoiLine.h"
#include "CcRoiPoint.h"
#include "CcRoiPolyFreeHand.h"
#include "CcRoiPolyLine.h"
#include "CcRoiRect.h"
#include "CcString.h"

namespace kest {
namespace {

template <class Class>
CcHLObject* Make() {
    return new Class;
}

struct FactoryRow {
    const char* className;
    CcHLObject* (*make)();
};

// Names are compared exactly, from the top.
constexpr FactoryRow factory[] = {
    {"CcGrayImage256", Make<CcGrayImage256>},
    {"CcGrayImageInt16", Make<CcGrayImageInt16>},
    {"CcGrayImageInt32", Make<CcGrayImageInt32>},
    {"CcGrayImageFloat", Make<CcGrayImageFloat>},
    {"Cc24BitRGBImage", Make<Cc24BitRGBImage>},
    {"Cc24BitHSLImage", Make<Cc24BitHSLImage>},
    {"CcBinaryImage", Make<CcBinaryImage>},
    {"CcRoiRect", Make<CcRoiRect>},
    {"CcRoiLine", Make<CcRoiLine>},
    {"CcRoiFreeHandLine", Make<CcRoiFreeHandLine>},
    {"CcRoiPolyLine", Make<CcRoiPolyLine>},
    {"CcRoiEllipse", Make<CcRoiEllipse>},
    {"CcRoiFreeHand", Make<CcRoiFreeHand>},
    {"CcRoiPolyFreeHand", Make<CcRoiPolyFreeHand>},
    {"CcRoiPoint", Make<CcRoiPoint>},
    {"CcCurve", Make<CcCurve>},
    {"CcGraph", Make<CcGraph>},
    {"CcList", Make<CcList>},
    {"CcCalibration", Make<CcCalibration>},
    {"CcNumber", Make<CcNumber>},
    {"CcString", Make<CcString>},
    {"CcPropertyBag", Make<CcPropertyBag>},
};

}  // namespace

int MakeObject(const char* className, CcHLObject*& made) {
    made = nullptr;
    for (const FactoryRow& row : factory) {
        if (std::strcmp(row.className, className) != 0) continue;
        made = row.make();
        return made ? KEST_OK : KEST_NO_MEMORY;
    }
    return KEST_FAILED;
}

void DeleteMade(CcHLObject* object) {
    // Only the classes above can be met here, so the type code tells a list.
    if (object && object->GetType() == KEST_TYPE_LIST) {
        auto& list = *static_cast<CcList*>(object);
        while (list.GetNumberOfObjects() > 0) DeleteMade(list.TakeOut(list.GetNumberOfObjects() - 1));
    }
    delete object;
}

}  // namespace kest
