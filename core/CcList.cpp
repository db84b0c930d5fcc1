// CcList: slots in one global memory block, a current and a selected position. Positions that came from a stream are
// kept as they are and checked where they are used.
#include "CcList.h"

#include <algorithm>
#include <cstring>

#include "CcObjectStorage.h"
#include "CcPropertyBag.h"
#include "core/ClassName.h"
#include "core/Messages.h"
#include "core/ObjectFactory.h"
#include "core/kernel/CheckedSize.h"
#include "core/kernel/Results.h"

namespace {

constexpr char memoryError[] = "Memory Error";

constexpr kest::Size64 SlotBytes(kest::Size64 slots) { return slots * static_cast<kest::Size64>(sizeof(CcHLObject*)); }

/// Where the current index stands after a delete at `index` left `count` members.
constexpr int CurrentAfterDelete(int index, int count) { return index >= count ? count - 1 : index; }

}  // namespace

CcList::CcList() : CcList(100, 50) {}

CcList::CcList(int iInitialSize, int iIncrement)
    : iInitialArraySize(iInitialSize),
      iArrayIncrement(iIncrement),
      iArraySize(0),
      iDistructorFlag(0),
      iCurrentObject(0),
      iNumberOfObjects(0),
      iSelectedObject(-1),
      pObjectArray(nullptr) {
    SetType(KEST_TYPE_LIST);
    MakeFirstArray();
}

// Without an array the capacity is 0, and the first insert tries again.
void CcList::MakeFirstArray() {
    switch (hObjectArray.AllocateLocked(SlotBytes(iInitialArraySize))) {
        case KestGlobalBlock::NotAllocated:
            kest::ShowMessage("Can't Allocate Memory for List Object", memoryError);
            return;
        case KestGlobalBlock::NotLocked: kest::ShowMessage("Can't Lock Memory for List Object", memoryError); return;
        case KestGlobalBlock::Allocated:
            pObjectArray = static_cast<CcHLObject**>(hObjectArray.Get());
            iArraySize = iInitialArraySize;
    }
}

CcList::~CcList() {
    if (DeletesMembers())
        for (int i = 0; i < iNumberOfObjects; ++i) delete pObjectArray[i];
    switch (hObjectArray.Release()) {
        case KestGlobalBlock::StillLocked:
            kest::ShowMessage("Can't UN-Lock Memory for List Object", memoryError);
            break;
        case KestGlobalBlock::NotFreed: kest::ShowMessage("Can't Free Memory for List Object", memoryError); break;
        case KestGlobalBlock::Released: break;
    }
}

int CcList::Load(CcObjectStorage* pStorage) {
    if (!pStorage) return KEST_FAILED;
    while (DeleteTail() == KEST_OK) {
    }
    CcPropertyBag bag;
    if (pStorage->GetNextObject(&bag) < 0) return KEST_FAILED;
    int count = 0;
    bag.GetInt("CcList::iNumberOfObjects", &count);
    for (int i = 0; i < count; ++i) {
        CcHLObject* member = nullptr;
        if (pStorage->GetNextObject(&member) < 0) return KEST_FAILED;
        const bool isRefused = stLoaded.iType != KEST_TYPE_NONE && member->GetType() != stLoaded.iType;
        if (isRefused || InsertTail(member) < 0) {
            kest::DeleteMade(member);
            return KEST_FAILED;
        }
    }
    bag.GetInt("CcList::iCurrentObject", &iCurrentObject);
    bag.GetInt("CcList::iSelectedObject", &iSelectedObject);
    bag.GetInt("CcList::iDistructorFlag", &iDistructorFlag);
    return KEST_OK;
}

int CcList::Store(CcObjectStorage* pStorage) {
    if (!pStorage) return KEST_FAILED;
    {
        CcPropertyBag bag;
        const bool isComplete = kest::AllSucceeded({bag.PutInt("CcList::iCurrentObject", iCurrentObject),
                                                    bag.PutInt("CcList::iNumberOfObjects", iNumberOfObjects),
                                                    bag.PutInt("CcList::iSelectedObject", iSelectedObject),
                                                    bag.PutInt("CcList::iDistructorFlag", iDistructorFlag)});
        if (!isComplete || pStorage->PutObject(&bag) < 0) return KEST_FAILED;
    }
    for (int i = 0; i < iNumberOfObjects; ++i)
        if (pStorage->PutObject(pObjectArray[i]) < 0) return KEST_FAILED;
    return KEST_OK;
}

int CcList::GetClassNameA(char* pszBuffer, long lLength) { return kest::WriteClassName(pszBuffer, lLength, "CcList"); }

bool CcList::IsMember(int iIndex) const { return iIndex >= 0 && iIndex < iNumberOfObjects; }

CcHLObject* CcList::MoveTo(int iIndex) {
    if (!IsMember(iIndex)) return nullptr;
    iCurrentObject = iIndex;
    return pObjectArray[iIndex];
}

CcHLObject* CcList::GetHead() { return MoveTo(0); }

CcHLObject* CcList::GetTail() { return MoveTo(iNumberOfObjects - 1); }

CcHLObject* CcList::GetNext() { return iCurrentObject < iNumberOfObjects ? MoveTo(iCurrentObject + 1) : nullptr; }

CcHLObject* CcList::GetPrev() { return iCurrentObject > 0 ? MoveTo(iCurrentObject - 1) : nullptr; }

CcHLObject* CcList::GetAtIndex(int iIndex) { return MoveTo(iIndex); }

CcHLObject* CcList::GetViaName(const char* pszName) { return MoveTo(IndexOf(pszName)); }

CcHLObject* CcList::GetSelected() { return MoveTo(iSelectedObject); }

int CcList::IndexOf(const char* pszName) const {
    if (!pszName) return -1;
    for (int i = 0; i < iNumberOfObjects; ++i)
        if (pObjectArray[i] && std::strcmp(pObjectArray[i]->GetName(), pszName) == 0) return i;
    return -1;
}

int CcList::GetNumberOfObjects() { return iNumberOfObjects; }

int CcList::GetCurrentObjectsIndex() { return iCurrentObject; }

int CcList::GetSelectedObjectsIndex() { return iSelectedObject; }

int CcList::SelectObjectAtIndex(int iIndex) {
    if (iIndex == -1) {
        iSelectedObject = -1;
        return KEST_OK;
    }
    if (!IsMember(iIndex)) return KEST_FAILED;
    iSelectedObject = iCurrentObject = iIndex;
    return KEST_OK;
}

int CcList::SetDestructionType(int iNewType) {
    if (iNewType != 0 && iNewType != 1) return KEST_FAILED;
    iDistructorFlag = iNewType;
    return KEST_OK;
}

int CcList::InsertHead(CcHLObject* pObject) {
    if (!MakeRoom()) return KEST_FAILED;
    InsertObjectAtIndex(pObject, 0);
    ++iNumberOfObjects;
    iCurrentObject = 0;
    return KEST_OK;
}

int CcList::InsertTail(CcHLObject* pObject) {
    if (!MakeRoom()) return KEST_FAILED;
    pObjectArray[iNumberOfObjects] = pObject;
    iCurrentObject = iNumberOfObjects++;
    return KEST_OK;
}

int CcList::InsertAtIndex(CcHLObject* pObject, int iIndex) {
    if (!MakeRoom() || !IsMember(iIndex)) return KEST_FAILED;
    InsertObjectAtIndex(pObject, iIndex);
    ++iNumberOfObjects;
    iCurrentObject = iIndex;
    return KEST_OK;
}

int CcList::InsertSelected(CcHLObject* pObject) {
    if (!MakeRoom() || iCurrentObject < 0 || iCurrentObject > iNumberOfObjects) return KEST_FAILED;
    InsertObjectAtIndex(pObject, iCurrentObject);
    ++iNumberOfObjects;
    iSelectedObject = iCurrentObject;
    return KEST_OK;
}

int CcList::InsertObjectAtIndex(CcHLObject* pObject, int iIndex) {
    if (iIndex < 0 || iIndex > iNumberOfObjects || iNumberOfObjects >= iArraySize) return KEST_FAILED;
    std::memmove(pObjectArray + iIndex + 1, pObjectArray + iIndex,
                 static_cast<std::size_t>(SlotBytes(iNumberOfObjects - iIndex)));
    pObjectArray[iIndex] = pObject;
    if (iSelectedObject >= iIndex && IsMember(iSelectedObject)) ++iSelectedObject;
    return KEST_OK;
}

int CcList::DeleteHead() {
    if (RemoveAt(0) < 0) return KEST_FAILED;
    iCurrentObject = 0;
    return KEST_OK;
}

int CcList::DeleteTail() { return RemoveAt(iNumberOfObjects - 1); }

int CcList::DeleteAtIndex(int iIndex) { return RemoveAt(iIndex); }

int CcList::DeleteViaName(const char* pszName) { return RemoveAt(IndexOf(pszName)); }

int CcList::DeleteSelected() { return RemoveAt(iSelectedObject); }

int CcList::RemoveAt(int iIndex) {
    if (DeleteObjectAtIndex(iIndex) < 0) return KEST_FAILED;
    --iNumberOfObjects;
    iCurrentObject = CurrentAfterDelete(iIndex, iNumberOfObjects);
    return KEST_OK;
}

CcHLObject* CcList::TakeOut(int iIndex) {
    if (!IsMember(iIndex)) return nullptr;
    CcHLObject* taken = pObjectArray[iIndex];
    pObjectArray[iIndex] = nullptr;
    RemoveAt(iIndex);
    return taken;
}

int CcList::DeleteObjectAtIndex(int iIndex) {
    if (!IsMember(iIndex)) return KEST_FAILED;
    if (DeletesMembers()) delete pObjectArray[iIndex];
    std::memmove(pObjectArray + iIndex, pObjectArray + iIndex + 1,
                 static_cast<std::size_t>(SlotBytes(iNumberOfObjects - 1 - iIndex)));
    pObjectArray[iNumberOfObjects - 1] = nullptr;
    if (iSelectedObject == iIndex)
        iSelectedObject = -1;
    else if (iSelectedObject > iIndex)
        --iSelectedObject;
    return KEST_OK;
}

/// The list always keeps one slot free: it grows before an insert would use the last one.
bool CcList::MakeRoom() { return iNumberOfObjects + 1 < iArraySize || MakeArrayLarger() == KEST_OK; }

int CcList::Reserve(int iInserts) {
    const kest::Size64 missing = kest::Size64{iNumberOfObjects} + iInserts + 1 - iArraySize;
    return missing <= 0 ? KEST_OK : GrowBy(std::max(missing, kest::Size64{iArrayIncrement}));
}

int CcList::MakeArrayLarger() { return GrowBy(iArrayIncrement); }

int CcList::GrowBy(long long llSlots) {
    const kest::Size64 slots = iArraySize + llSlots;
    KestGlobalBlock larger;
    // An increment that adds nothing to slots that are all in use is refused like a block that cannot be had.
    const bool isEnough = slots > iNumberOfObjects || slots == 0;
    const auto allocated = isEnough ? larger.AllocateLocked(SlotBytes(slots)) : KestGlobalBlock::NotAllocated;
    if (allocated == KestGlobalBlock::NotAllocated) {
        kest::ShowMessage("Can't Increase Memory for List Object", memoryError);
        return KEST_FAILED;
    }
    if (allocated == KestGlobalBlock::NotLocked) {
        kest::ShowMessage("Can't Lock Increased Memory for List Object", memoryError);
        return KEST_FAILED;
    }
    auto** slotArray = static_cast<CcHLObject**>(larger.Get());
    if (iNumberOfObjects > 0)
        std::memcpy(slotArray, pObjectArray, static_cast<std::size_t>(SlotBytes(iNumberOfObjects)));
    hObjectArray.Swap(larger);
    pObjectArray = slotArray;
    iArraySize = static_cast<int>(slots);
    return KEST_OK;
}
