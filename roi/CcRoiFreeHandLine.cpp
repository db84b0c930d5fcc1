// CcRoiFreeHandLine: the open line drawn freely.
#include "CcRoiFreeHandLine.h"

#include "roi/OutlineMembers.h"

using Members = KestOutlineMembers<CcRoiFreeHandLine>;

int CcRoiFreeHandLine::iFLineROICount = 0;

CcRoiFreeHandLine::CcRoiFreeHandLine() { Members::Construct(*this, "FreeLine.%d", iFLineROICount); }

CcRoiFreeHandLine::~CcRoiFreeHandLine() { Members::Destroy(*this); }

#define ROI_CLASS CcRoiFreeHandLine
#include "roi/OutlineOverrides.inl"
