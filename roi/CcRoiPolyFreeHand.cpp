// CcRoiPolyFreeHand: the closed polygon.
#include "CcRoiPolyFreeHand.h"

#include "roi/OutlineMembers.h"

using Members = KestOutlineMembers<CcRoiPolyFreeHand>;

int CcRoiPolyFreeHand::iPFreeROICount = 0;

CcRoiPolyFreeHand::CcRoiPolyFreeHand() { Members::Construct(*this, "PolyFree.%d", iPFreeROICount); }

CcRoiPolyFreeHand::~CcRoiPolyFreeHand() { Members::Destroy(*this); }

#define ROI_CLASS CcRoiPolyFreeHand
#include "roi/OutlineOverrides.inl"
