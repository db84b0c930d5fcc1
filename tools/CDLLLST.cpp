// CDLLLST: a fixed array of tools, a current and a selected position. The positions are kept as they are when the list
// changes, and checked where they are used.
#include "CDLLLST.h"

#include <cstring>

#include "KestTypes.h"

CDLLLST::CDLLLST() : iCurrentElement(0), iNumberOfElements(0), iSelectedElement(-1), pElements{} {}

CDLLLST::~CDLLLST() {
    if (!bOwnsElements) return;
    for (int i = 0; i < iNumberOfElements; ++i) delete pElements[i];
}

CLOADDLL* CDLLLST::GetHead() {
    iCurrentElement = 0;
    return pElements[0];
}

CLOADDLL* CDLLLST::GetNext() {
    if (iCurrentElement + 1 >= iNumberOfElements) return nullptr;
    return pElements[++iCurrentElement];
}

// After deletes the current position may lie behind the last tool, in slots that are null.
CLOADDLL* CDLLLST::GetPrev() {
    if (iCurrentElement - 1 < 0) return nullptr;
    return pElements[--iCurrentElement];
}

CLOADDLL* CDLLLST::GetTail() {
    iCurrentElement = iNumberOfElements - 1;
    return GetAt(iCurrentElement);
}

CLOADDLL* CDLLLST::GetAt(int iIndex) { return iIndex >= 0 && iIndex < iNumberOfElements ? pElements[iIndex] : nullptr; }

int CDLLLST::GetNumberOfElements() { return iNumberOfElements; }

int CDLLLST::InsertTail(CLOADDLL* pTool) { return InsertAt(iNumberOfElements, pTool); }

int CDLLLST::InsertAt(int iIndex, CLOADDLL* pTool) {
    if (iNumberOfElements >= iMaxElements || iIndex < 0 || iIndex > iNumberOfElements) return KEST_FAILED;
    std::memmove(pElements + iIndex + 1, pElements + iIndex,
                 static_cast<std::size_t>(iNumberOfElements - iIndex) * sizeof(CLOADDLL*));
    pElements[iIndex] = pTool;
    ++iNumberOfElements;
    return KEST_OK;
}

int CDLLLST::DelAt(int iIndex) {
    if (iNumberOfElements == 0 || iIndex < 0 || iIndex > iNumberOfElements) return KEST_FAILED;
    const int last = iNumberOfElements - 1;
    if (iIndex <= last) {
        if (bOwnsElements) delete pElements[iIndex];
        std::memmove(pElements + iIndex, pElements + iIndex + 1,
                     static_cast<std::size_t>(last - iIndex) * sizeof(CLOADDLL*));
    }
    pElements[last] = nullptr;
    iNumberOfElements = last;
    return KEST_OK;
}

int CDLLLST::SelectElement(int iIndex) {
    if (iIndex >= iNumberOfElements) return KEST_FAILED;
    iSelectedElement = iIndex;
    return KEST_OK;
}

int CDLLLST::GetSelectedElement() { return iSelectedElement; }
