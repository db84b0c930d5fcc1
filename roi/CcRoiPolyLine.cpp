// CcRoiPolyLine: the open chain of straight segments.
#include "CcRoiPolyLine.h"

#include "roi/OutlineMembers.h"

using Members = KestOutlineMembers<CcRoiPolyLine>;

int CcRoiPolyLine::iPLineROICount = 0;

CcRoiPolyLine::CcRoiPolyLine() { Members::Construct(*this, "PolyLine.%d", iPLineROICount); }

CcRoiPolyLine::~CcRoiPolyLine() { Members::Destroy(*this); }

#define ROI_CLASS CcRoiPolyLine
#include "roi/OutlineOverrides.inl"
