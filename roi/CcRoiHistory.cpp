// CcRoiHistory: snapshots of a list of ROIs, one before each edit.
#include "CcRoiHistory.h"

#include <cstring>
#include <initializer_list>

#include "CcMemObjectStorage.h"
#include "core/ObjectFactory.h"
#include "core/kernel/TextField.h"

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
};

void DeleteStates(RoiState* states) {
    while (states) {
        RoiState* next = states->next;
        delete states;
        states = next;
    }
}

CcRoiBase* AsRoi(CcHLObject* object) { return dynamic_cast<CcRoiBase*>(object); }

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
    if (!from) return KEST_FAILED;
    DeleteAll(pRedoBefore);
    bCanCancel = false;
    Snapshot* present = Take();
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

/// Makes what is missing first, so that a failure leaves the list as it was; then takes out the ROIs that were not there,
/// puts the others in their old order and restores them.
bool CcRoiHistory::Restore(const Snapshot& snapshot) {
    const auto indexOf = [this](const CcHLObject* wanted) {
        for (int i = 0; i < pList->GetNumberOfObjects(); ++i)
            if (pList->GetAtIndex(i) == wanted) return i;
        return -1;
    };
    CcList made(64, 64);
    made.SetDestructionType(1);
    for (RoiState* state = snapshot.states; state; state = state->next) {
        CcHLObject* roi = state->roi;
        char className[sizeof state->className] = {};
        const bool isThere = indexOf(roi) >= 0 && roi->GetClassNameA(className, sizeof className) == KEST_OK &&
                             std::strcmp(className, state->className) == 0;
        if (isThere) continue;
        CcHLObject* created = nullptr;
        if (kest::MakeObject(state->className, created) < 0) return false;
        CcRoiBase* createdRoi = AsRoi(created);
        if (!createdRoi || !state->PutBack(*createdRoi) || made.InsertTail(created) < 0) {
            delete created;
            return false;
        }
        RenameInAll(roi, created);
    }
    made.SetDestructionType(0);

    const auto isWanted = [&snapshot](const CcHLObject* object) {
        for (const RoiState* state = snapshot.states; state; state = state->next)
            if (state->roi == object) return true;
        return false;
    };
    for (int i = pList->GetNumberOfObjects() - 1; i >= 0; --i) {
        CcHLObject* member = pList->GetAtIndex(i);
        if (AsRoi(member) && !isWanted(member)) pList->DeleteAtIndex(i);
    }
    // From the list's front on each ROI comes to its old place.
    int place = 0;
    for (RoiState* state = snapshot.states; state; state = state->next, ++place) {
        const int index = indexOf(state->roi);
        if (index == place) {
            state->PutBack(*AsRoi(state->roi));
            continue;
        }
        if (index >= 0) {
            state->PutBack(*AsRoi(state->roi));
            pList->TakeOut(index);
        }
        if (place < pList->GetNumberOfObjects())
            pList->InsertAtIndex(state->roi, place);
        else
            pList->InsertTail(state->roi);
    }
    pList->SelectObjectAtIndex(-1);
    pList->SelectObjectAtIndex(snapshot.selected);
    return true;
}

/// A ROI that was made anew takes the place of the old one in every snapshot.
void CcRoiHistory::RenameInAll(const CcHLObject* pOld, CcHLObject* pNew) {
    for (Snapshot* newest : {pUndo, pRedo, pRedoBefore})
        for (Snapshot* snapshot = newest; snapshot; snapshot = snapshot->next)
            for (RoiState* state = snapshot->states; state; state = state->next)
                if (state->roi == pOld) state->roi = pNew;
}
