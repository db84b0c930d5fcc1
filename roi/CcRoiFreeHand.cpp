// CcRoiFreeHand: the closed outline drawn freely.
#include "CcRoiFreeHand.h"

#include "roi/OutlineMembers.h"

using Members = KestOutlineMembers<CcRoiFreeHand>;

int CcRoiFreeHand::iFreehandROICount = 0;

CcRoiFreeHand::CcRoiFreeHand() { Members::Construct(*this, "Freehand.%d", iFreehandROICount); }

CcRoiFreeHand::~CcRoiFreeHand() { Members::Destroy(*this); }

#define ROI_CLASS CcRoiFreeHand
#include "roi/OutlineOverrides.inl"
