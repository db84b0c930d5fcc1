// CcRoiHistory: snapshots of a list of ROIs, one before each edit.
#include "CcRoiHistory.h"

#include <cstring>
#include <initializer_list>
#include <utility>

#include "CcMemObjectStorage.h"
#include "core/ObjectFactory.h"
#include "core/kernel/TextField.h"
#include "roi/KeptRoi.h"

namespace {

/// One ROI as it was: its class, name, selection, and what its Store wrote.
struct RoiState : KestHeapObject {
    RoiState* next = nullptr;
    CcHLObject* roi = nullptr;  ///< where it was; compared only, never followed unless the list still holds it
    char className[50] = {};
    char name[KEST_NAME_SIZE] = {};
    int isSelected = 0;
    CcMemObjectStorage record{1024, 65536};

    bool Take(CcRoiBase& source) {
        roi = &source;
        kest::CopyCut(name, source.GetName());
        isSelected = source.IsROISelected();
        return source.GetClassNameA(className, sizeof className) == KEST_OK && source.Store(&record) >= 0;
    }
    bool PutBack(CcRoiBase& target) {
        record.Reset();
        if (target.Load(&record) < 0) return false;
        target.SetName(name);
        target.SetSelected(isSelected);
        return true;
    }

    // While the list is brought to this state:
    CcRoiBase* made = nullptr;  ///< the ROI made anew, where the list has it no more
    kest::KeptRoi before;       ///< what the ROI held, where the list has it
};

void DeleteStates(RoiState* states) {
    while (states) {
        RoiState* next = states->next;
        delete states;
        states = next;
    }
}

CcRoiBase* AsRoi(CcHLObject* object) {
    return object && object->GetType() == KEST_TYPE_ROI ? static_cast<CcRoiBase*>(object) : nullptr;
}

int IndexOf(CcList& list, const CcHLObject* wanted) {
    for (int i = 0; i < list.GetNumberOfObjects(); ++i)
        if (list.GetAtIndex(i) == wanted) return i;
    return -1;
}

/// Whether the list still holds the ROI, and not another one at its address.
bool IsThere(CcList& list, const RoiState& state) {
    const int index = IndexOf(list, state.roi);
    char className[sizeof state.className] = {};
    return index >= 0 && list.GetAtIndex(index)->GetClassNameA(className, sizeof className) == KEST_OK &&
           std::strcmp(className, state.className) == 0;
}

/// Makes the ROI of a state anew, outside of the list.
bool MakeAnew(RoiState& state) {
    CcHLObject* created = nullptr;
    if (kest::MakeObject(state.className, created) < 0) return false;
    state.made = AsRoi(created);
    if (!state.made) delete created;
    return state.made && state.PutBack(*state.made);
}

/// Makes sure that as many inserts do not need memory.
bool MakeRoom(CcList& list, int inserts) {
    int made = 0;
    while (made < inserts && list.InsertTail(nullptr) == KEST_OK) ++made;
    for (int i = 0; i < made; ++i) list.TakeOut(list.GetNumberOfObjects() - 1);
    return made == inserts;
}

void Place(CcList& list, CcHLObject* roi, int place) {
    const int index = IndexOf(list, roi);
    if (index == place) return;
    if (index >= 0) list.TakeOut(index);
    if (place < list.GetNumberOfObjects())
        list.InsertAtIndex(roi, place);
    else
        list.InsertTail(roi);
}

}  // namespace

struct CcRoiHistory::Snapshot : KestHeapObject {
    Snapshot* next = nullptr;
    RoiState* states = nullptr;
    int selected = -1;

    Snapshot() = default;
    Snapshot(const Snapshot&) = delete;
    Snapshot& operator=(const Snapshot&) = delete;
    ~Snapshot() { DeleteStates(states); }
};

namespace {

template <class Snapshot>
void DeleteAll(Snapshot*& newest) {
    while (newest) {
        Snapshot* next = newest->next;
        delete newest;
        newest = next;
    }
}

template <class Snapshot>
void Push(Snapshot*& newest, Snapshot* added) {
    added->next = newest;
    newest = added;
}

}  // namespace

CcRoiHistory::CcRoiHistory(CcList* pNewList, int iSteps)
    : pList(pNewList),
      iMaxSteps(iSteps < 1 ? 1 : iSteps),
      pUndo(nullptr),
      pRedo(nullptr),
      pRedoBefore(nullptr),
      bCanCancel(false) {}

CcRoiHistory::~CcRoiHistory() { Clear(); }

void CcRoiHistory::Clear() {
    for (Snapshot** newest : {&pUndo, &pRedo, &pRedoBefore})
        DeleteAll(*newest);
    bCanCancel = false;
}

int CcRoiHistory::Remember() {
    bCanCancel = false;
    Snapshot* snapshot = Take();
    if (!snapshot) return KEST_FAILED;
    DeleteAll(pRedoBefore);
    pRedoBefore = pRedo;
    pRedo = nullptr;
    bCanCancel = true;
    Push(pUndo, snapshot);
    int steps = 1;
    for (Snapshot* kept = pUndo; kept; kept = kept->next)
        if (steps++ == iMaxSteps) DeleteAll(kept->next);
    return KEST_OK;
}

int CcRoiHistory::Undo() { return GoTo(pUndo, pRedo); }

int CcRoiHistory::Redo() { return GoTo(pRedo, pUndo); }

int CcRoiHistory::Cancel() {
    if (!bCanCancel || !Restore(*pUndo)) return KEST_FAILED;
    bCanCancel = false;
    Snapshot* remembered = pUndo;
    pUndo = remembered->next;
    delete remembered;
    pRedo = pRedoBefore;
    pRedoBefore = nullptr;
    return KEST_OK;
}

int CcRoiHistory::GoTo(Snapshot*& from, Snapshot*& other) {
    Snapshot* present = from ? Take() : nullptr;
    if (!present) return KEST_FAILED;
    Push(other, present);
    if (!Restore(*from)) {
        other = present->next;
        delete present;
        return KEST_FAILED;
    }
    Snapshot* done = from;
    from = done->next;
    delete done;
    DeleteAll(pRedoBefore);
    bCanCancel = false;
    return KEST_OK;
}

CcRoiHistory::Snapshot* CcRoiHistory::Take() const {
    if (!pList) return nullptr;
    auto* snapshot = new Snapshot;
    if (!snapshot) return nullptr;
    const int current = pList->GetCurrentObjectsIndex();
    snapshot->selected = pList->GetSelectedObjectsIndex();
    RoiState** end = &snapshot->states;
    bool isWhole = true;
    for (int i = 0; i < pList->GetNumberOfObjects() && isWhole; ++i) {
        CcRoiBase* roi = AsRoi(pList->GetAtIndex(i));
        if (!roi) continue;
        *end = new RoiState;
        isWhole = *end && (*end)->Take(*roi);
        if (*end) end = &(*end)->next;
    }
    pList->GetAtIndex(current);
    if (isWhole) return snapshot;
    delete snapshot;
    return nullptr;
}

/// All that may fail comes first; when it does, the list and its ROIs are as they were.
bool CcRoiHistory::Restore(Snapshot& snapshot) {
    const int current = pList->GetCurrentObjectsIndex();
    const bool isPrepared = Prepare(snapshot);
    for (RoiState* state = snapshot.states; state && !isPrepared; state = state->next) {
        state->before.PutBack();
        delete std::exchange(state->made, nullptr);
    }
    pList->GetAtIndex(current);
    if (isPrepared) Arrange(snapshot);
    return isPrepared;
}

/// Makes the ROIs that are missing, and gives those that are there what they held.
bool CcRoiHistory::Prepare(Snapshot& snapshot) const {
    int missing = 0;
    for (RoiState* state = snapshot.states; state; state = state->next) {
        if (IsThere(*pList, *state)) continue;
        if (!MakeAnew(*state)) return false;
        ++missing;
    }
    if (!MakeRoom(*pList, missing)) return false;
    for (RoiState* state = snapshot.states; state; state = state->next) {
        if (state->made) continue;
        CcRoiBase* roi = AsRoi(state->roi);
        state->before.Keep(*roi);
        if (!state->PutBack(*roi)) return false;
    }
    return true;
}

/// Takes out the ROIs that were not there, and puts the others in their old order at the front. Cannot fail.
void CcRoiHistory::Arrange(Snapshot& snapshot) {
    for (RoiState* state = snapshot.states; state; state = state->next) {
        state->before.Forget();
        if (CcRoiBase* made = std::exchange(state->made, nullptr)) RenameInAll(state->roi, made);
    }
    const auto isWanted = [&snapshot](const CcHLObject* object) {
        for (const RoiState* state = snapshot.states; state; state = state->next)
            if (state->roi == object) return true;
        return false;
    };
    for (int i = pList->GetNumberOfObjects() - 1; i >= 0; --i) {
        CcHLObject* member = pList->GetAtIndex(i);
        if (AsRoi(member) && !isWanted(member)) pList->DeleteAtIndex(i);
    }
    int place = 0;
    for (RoiState* state = snapshot.states; state; state = state->next)
        Place(*pList, state->roi, place++);
    pList->SelectObjectAtIndex(-1);
    pList->SelectObjectAtIndex(snapshot.selected);
}

/// A ROI that was made anew takes the place of the old one in every snapshot.
void CcRoiHistory::RenameInAll(const CcHLObject* pOld, CcHLObject* pNew) {
    for (Snapshot* newest : {pUndo, pRedo, pRedoBefore})
        for (Snapshot* snapshot = newest; snapshot; snapshot = snapshot->next)
            for (RoiState* state = snapshot->states; state; state = state->next)
                if (state->roi == pOld) state->roi = pNew;
}
