// All classes whose objects a stream can make. The only file that knows every folder: a new class is added here.
#include <span>

#include "Cc24BitHSLImage.h"
#include "Cc24BitRGBImage.h"
#include "CcBinaryImage.h"
#include "CcCalibration.h"
#include "CcCurve.h"
#include "CcGraph.h"
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
#include "core/ObjectFactory.h"

namespace kest {
namespace {

template <class Class>
CcHLObject* Make() {
    return new Class;
}

constexpr ListedClass classes[] = {
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

std::span<const ListedClass> ClassList() { return classes; }

}  // namespace kest
