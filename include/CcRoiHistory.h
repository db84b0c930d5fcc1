// CcRoiHistory: undo and redo for the ROIs of a list.
#pragma once

#include "CcList.h"
#include "CcRoiBase.h"

/// A bounded history of a list of ROIs. Call Remember before each edit (drawing, moving, resizing, renaming, selecting,
/// deleting, ...); Undo then brings back what was remembered last, deleted ROIs included, and Redo what was undone.
///
/// ROIs that are still in the list keep their address: their record, name and selection are put back. ROIs that are not
/// are made anew by class name (which advances the class's naming counter). Members that are no ROIs are left out of
/// the history; they stay, behind the ROIs.
///
/// Results: 0, or -1 when there is nothing to undo or redo, or a ROI could not be stored or restored, as when memory is
/// short (which a list that cannot grow says in a box). The list, its ROIs and the history are then as they were; only
/// what a host's ROI class adds to name, selection and the record of a rectangle, line, ellipse or point of the library
/// (by its type code) is what its Load left.
///
/// While Remember, Undo, Redo or Cancel runs (a box is open, or it calls a host's ROI class) each of them returns -1,
/// and Clear does nothing; list and history must not be deleted then.
class KEST_API CcRoiHistory {
public:
    /// The list stays the caller's; its destruction type says whether ROIs that an undo takes out are deleted.
    /// `iSteps` edits are kept; older ones are forgotten.
    explicit CcRoiHistory(CcList* pNewList, int iSteps = 100);
    ~CcRoiHistory();
    CcRoiHistory(const CcRoiHistory&) = delete;
    CcRoiHistory& operator=(const CcRoiHistory&) = delete;

    /// Notes the list as it is, before an edit. What was undone before can no longer be redone.
    int Remember();
    /// Brings back what Remember noted last. A deleted ROI of a host's own class cannot be made anew: -1, at each call.
    int Undo();
    /// Brings back what Undo replaced last.
    int Redo();
    /// To be called instead of finishing the edit that Remember was called for: all is as before that call, what could
    /// be redone then can be again; only the oldest step of a full history is gone. -1 when Undo or Redo came in
    /// between.
    int Cancel();
    /// 1 when there is something to undo.
    int CanUndo() const { return pUndo != nullptr; }
    /// 1 when there is something to redo.
    int CanRedo() const { return pRedo != nullptr; }
    /// Forgets everything.
    void Clear();

private:
    struct Identity;
    struct State;
    struct Snapshot;

    Snapshot* Take();
    int GoTo(Snapshot*& from, Snapshot*& other);
    bool MakeRoom(const Snapshot& snapshot);
    bool Restore(Snapshot& snapshot);
    static bool Prepare(Snapshot& snapshot);
    void Arrange(Snapshot& snapshot);
    Identity* IdentityOf(CcRoiBase& roi);
    void ForgetTheGone();

    CcList* pList;
    int iMaxSteps;
    Snapshot* pUndo;  // the newest first
    Snapshot* pRedo;
    Snapshot* pRedoBefore;  // what the last Remember took from pRedo
    Identity* pIdentities;  // of all ROIs in the history
    bool bCanCancel;        // nothing came after the last Remember
    bool bInUse;            // one of the functions runs
};
