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

CcRoiBase* AsRoi(CcHLObject* object) {
    return object && object->GetType() == KEST_TYPE_ROI ? static_cast<CcRoiBase*>(object) : nullptr;
}

int IndexOf(CcList& list, const CcHLObject* wanted) {
    for (int i = 0; i < list.GetNumberOfObjects(); ++i)
        if (list.GetAtIndex(i) == wanted) return i;
    return -1;
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

/// What the states of one ROI share. Its address tells which ROI it is only while the list has it: the next ROI may be
/// made where a deleted one was.
struct CcRoiHistory::Identity : KestHeapObject {
    Identity* next = nullptr;
    CcRoiBase* roi = nullptr;  ///< null when the list has it no more
    char className[50] = {};
    int states = 0;

    bool IsIn(CcList& list) const {
        const int index = IndexOf(list, roi);
        char nameThere[sizeof className] = {};
        return index >= 0 && list.GetAtIndex(index)->GetClassNameA(nameThere, sizeof nameThere) == KEST_OK &&
               std::strcmp(nameThere, className) == 0;
    }
};

/// One ROI as it was: its name, selection, and what its Store wrote.
struct CcRoiHistory::State : KestHeapObject {
    State* next = nullptr;
    Identity& identity;
    char name[KEST_NAME_SIZE] = {};
    int isSelected = 0;
    CcMemObjectStorage record{1024, 65536};

    // While the list is brought to this state:
    CcRoiBase* made = nullptr;  ///< the ROI made anew, where the list has it no more
    kest::KeptRoi before;       ///< what the ROI held, where the list has it

    explicit State(Identity& of) : identity(of) { ++identity.states; }
    ~State() { --identity.states; }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    bool Take() {
        kest::CopyCut(name, identity.roi->GetName());
        isSelected = identity.roi->IsROISelected();
        return identity.roi->Store(&record) >= 0;
    }
    bool PutInto(CcRoiBase& target) {
        record.Reset();
        if (target.Load(&record) < 0) return false;
        target.SetName(name);
        target.SetSelected(isSelected);
        return true;
    }
    /// Makes the ROI anew, outside of the list.
    bool MakeAnew() {
        CcHLObject* created = nullptr;
        if (kest::MakeObject(identity.className, created) < 0) return false;
        made = AsRoi(created);
        if (!made) delete created;
        return made && PutInto(*made);
    }
};

struct CcRoiHistory::Snapshot : KestHeapObject {
    Snapshot* next = nullptr;
    State* states = nullptr;
    int selected = -1;

    Snapshot() = default;
    Snapshot(const Snapshot&) = delete;
    Snapshot& operator=(const Snapshot&) = delete;
    ~Snapshot();
};

namespace {

template <class Link>
void DeleteAll(Link*& first) {
    while (first) delete std::exchange(first, first->next);
}

template <class Link>
void Push(Link*& first, Link* added) {
    added->next = first;
    first = added;
}

/// Marks the history as in use, so that calls out of a message box, or out of a host's ROI class, are refused.
class Turn {
public:
    explicit Turn(bool& flag) : isMine(!flag), isTaken(flag) { isTaken = true; }
    ~Turn() {
        if (isMine) isTaken = false;
    }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;
    explicit operator bool() const { return isMine; }

private:
    const bool isMine;
    bool& isTaken;
};

}  // namespace

CcRoiHistory::Snapshot::~Snapshot() { DeleteAll(states); }

CcRoiHistory::CcRoiHistory(CcList* pNewList, int iSteps)
    : pList(pNewList),
      iMaxSteps(iSteps < 1 ? 1 : iSteps),
      pUndo(nullptr),
      pRedo(nullptr),
      pRedoBefore(nullptr),
      pIdentities(nullptr),
      bCanCancel(false),
      bInUse(false) {}

CcRoiHistory::~CcRoiHistory() { Clear(); }

void CcRoiHistory::Clear() {
    if (bInUse) return;
    for (Snapshot** newest : {&pUndo, &pRedo, &pRedoBefore}) DeleteAll(*newest);
    DeleteAll(pIdentities);
    bCanCancel = false;
}

int CcRoiHistory::Remember() {
    const Turn turn(bInUse);
    if (!turn) return KEST_FAILED;
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
    const Turn turn(bInUse);
    if (!turn || !bCanCancel || !MakeRoom(*pUndo) || !Restore(*pUndo)) return KEST_FAILED;
    bCanCancel = false;
    delete std::exchange(pUndo, pUndo->next);
    pRedo = std::exchange(pRedoBefore, nullptr);
    return KEST_OK;
}

int CcRoiHistory::GoTo(Snapshot*& from, Snapshot*& other) {
    const Turn turn(bInUse);
    if (!turn || !from || !MakeRoom(*from)) return KEST_FAILED;
    Snapshot* present = Take();
    if (!present) return KEST_FAILED;
    Push(other, present);
    if (!Restore(*from)) {
        other = present->next;
        delete present;
        return KEST_FAILED;
    }
    delete std::exchange(from, from->next);
    DeleteAll(pRedoBefore);
    bCanCancel = false;
    return KEST_OK;
}

/// Forgets the address of each ROI that the list has no more, and the identities that no state needs.
void CcRoiHistory::ForgetTheGone() {
    for (Identity** link = &pIdentities; *link;) {
        Identity& identity = **link;
        if (identity.states == 0) {
            delete std::exchange(*link, identity.next);
            continue;
        }
        if (identity.roi && !identity.IsIn(*pList)) identity.roi = nullptr;
        link = &identity.next;
    }
}

/// That of a ROI of the list; null when memory is short, or the ROI has no class name.
CcRoiHistory::Identity* CcRoiHistory::IdentityOf(CcRoiBase& roi) {
    for (Identity* identity = pIdentities; identity; identity = identity->next)
        if (identity->roi == &roi) return identity;
    auto* identity = new Identity;
    if (!identity) return nullptr;
    identity->roi = &roi;
    Push(pIdentities, identity);
    return roi.GetClassNameA(identity->className, sizeof identity->className) == KEST_OK ? identity : nullptr;
}

CcRoiHistory::Snapshot* CcRoiHistory::Take() {
    if (!pList) return nullptr;
    auto* snapshot = new Snapshot;
    if (!snapshot) return nullptr;
    const int current = pList->GetCurrentObjectsIndex();
    ForgetTheGone();
    snapshot->selected = pList->GetSelectedObjectsIndex();
    State** end = &snapshot->states;
    bool isWhole = true;
    for (int i = 0; i < pList->GetNumberOfObjects() && isWhole; ++i) {
        CcRoiBase* roi = AsRoi(pList->GetAtIndex(i));
        if (!roi) continue;
        Identity* identity = IdentityOf(*roi);
        *end = identity ? new State(*identity) : nullptr;
        isWhole = *end && (*end)->Take();
        if (*end) end = &(*end)->next;
    }
    pList->GetAtIndex(current);
    if (isWhole) return snapshot;
    delete snapshot;
    return nullptr;
}

/// Makes sure that what Arrange puts into the list needs no memory. Comes before anything is taken from the ROIs: the
/// list says in a box that memory is short.
bool CcRoiHistory::MakeRoom(const Snapshot& snapshot) {
    const int current = pList->GetCurrentObjectsIndex();
    ForgetTheGone();
    pList->GetAtIndex(current);
    int missing = 0;
    for (const State* state = snapshot.states; state; state = state->next) missing += state->identity.roi == nullptr;
    return pList->Reserve(missing) == KEST_OK;
}

/// All that may fail comes first; when it does, the list and its ROIs are as they were.
bool CcRoiHistory::Restore(Snapshot& snapshot) {
    const bool isPrepared = Prepare(snapshot);
    for (State* state = snapshot.states; state && !isPrepared; state = state->next) {
        state->before.PutBack();
        delete std::exchange(state->made, nullptr);
    }
    if (isPrepared) Arrange(snapshot);
    return isPrepared;
}

/// Makes the ROIs that are missing, and gives those that are there what they held.
bool CcRoiHistory::Prepare(Snapshot& snapshot) {
    for (State* state = snapshot.states; state; state = state->next)
        if (!state->identity.roi && !state->MakeAnew()) return false;
    for (State* state = snapshot.states; state; state = state->next) {
        if (state->made) continue;
        CcRoiBase& roi = *state->identity.roi;
        state->before.Keep(roi);
        if (!state->PutInto(roi)) return false;
    }
    return true;
}

/// Takes out the ROIs that were not there, and puts the others in their old order at the front. Cannot fail.
void CcRoiHistory::Arrange(Snapshot& snapshot) {
    for (State* state = snapshot.states; state; state = state->next) {
        state->before.Forget();
        if (CcRoiBase* made = std::exchange(state->made, nullptr)) state->identity.roi = made;
    }
    const auto isWanted = [&snapshot](const CcHLObject* object) {
        for (const State* state = snapshot.states; state; state = state->next)
            if (state->identity.roi == object) return true;
        return false;
    };
    for (int i = pList->GetNumberOfObjects() - 1; i >= 0; --i) {
        CcHLObject* member = pList->GetAtIndex(i);
        if (AsRoi(member) && !isWanted(member)) pList->DeleteAtIndex(i);
    }
    int place = 0;
    for (State* state = snapshot.states; state; state = state->next) Place(*pList, state->identity.roi, place++);
    ForgetTheGone();
    pList->SelectObjectAtIndex(-1);
    pList->SelectObjectAtIndex(snapshot.selected);
}
