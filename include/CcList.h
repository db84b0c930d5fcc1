// CcList: an ordered, growable list of objects with a current and a selected position.
#pragma once

#include "CcHLObject.h"
#include "KestBlocks.h"

/// A list of CcHLObject pointers with two cursors: the current index, moved by every positional operation, so that a
/// caller can walk the list; and the selected index, which marks one member.
///
/// With destruction type 1 the list deletes its members, in every delete operation, before a Load and in its
/// destructor; with type 0 (the default) they stay the caller's. A copy shares its source's slots (see KestBlocks.h)
/// and never deletes members, whatever its type. Memory failures show a message box with the caption
/// "Memory Error".
class KEST_API CcList : public CcHLObject {
public:
    /// 100 slots that grow by 50.
    CcList();
    /// iInitialSize slots that grow by iIncrement.
    CcList(int iInitialSize, int iIncrement);
    CcList(const CcList&) = default;
    CcList& operator=(const CcList&) = default;

    ~CcList() override;  // slot 0
    /// Empties the list, then reads the members that Store wrote; they are the list's own only if the stored
    /// destruction type is 1. -1 on a null stream or a failed read; members read so far stay in the list. (That of an
    /// image, and a copy of it, refuse members that are no ROI.)
    int Load(CcObjectStorage* pStorage) override;  // slot 1
    /// Writes a bag with the list's four numbers, then each member's record. -1 on the first failure.
    int Store(CcObjectStorage* pStorage) override;              // slot 2
    int GetClassNameA(char* pszBuffer, long lLength) override;  // slot 3

    /// @name Cursor and lookup
    /// The member, or null when there is none. Each moves the current index to the member it returns.
    /// @{
    CcHLObject* GetHead();               ///< the first member
    CcHLObject* GetTail();               ///< the last member
    CcHLObject* GetNext();               ///< the member after the current one
    CcHLObject* GetPrev();               ///< the member before the current one
    CcHLObject* GetAtIndex(int iIndex);  ///< the member at an index from 0
    /// The first member of exactly that name.
    CcHLObject* GetViaName(const char* pszName);
    CcHLObject* GetSelected();  ///< the selected member
    /// @}

    int GetNumberOfObjects();  ///< members in the list
    /// -1 only after a delete emptied the list.
    int GetCurrentObjectsIndex();
    /// -1 when none is selected.
    int GetSelectedObjectsIndex();
    /// Selects a member and makes it current; -1 clears the selection. Result -1 for any other index that is no member.
    int SelectObjectAtIndex(int iIndex);
    /// 1: the list deletes its members; 0: it does not. Anything else: -1.
    int SetDestructionType(int iNewType);

    /// @name Inserting
    /// 0, or -1 when the list cannot grow or the index is refused. Null members are accepted.
    /// @{
    int InsertHead(CcHLObject* pObject);  ///< before the first member
    int InsertTail(CcHLObject* pObject);  ///< behind the last member
    /// At a present member's index only: it cannot append.
    int InsertAtIndex(CcHLObject* pObject, int iIndex);
    /// At the current (not the selected) index; the new member becomes the selected one.
    int InsertSelected(CcHLObject* pObject);
    /// The shared step of the inserts: moves the members up and puts `pObject` in; count and current index stay.
    int InsertObjectAtIndex(CcHLObject* pObject, int iIndex);

    /// @}
    /// @name Deleting
    /// 0, or -1 when there is no such member. With destruction type 1 the member itself is deleted, too.
    /// @{
    int DeleteHead();                        ///< the first member
    int DeleteTail();                        ///< the last member
    int DeleteAtIndex(int iIndex);           ///< the member at an index from 0
    int DeleteViaName(const char* pszName);  ///< the first member of exactly that name
    int DeleteSelected();                    ///< the selected member
    /// Takes a member out without deleting it, whatever the destruction type, and returns it; null for no member.
    CcHLObject* TakeOut(int iIndex);
    /// The shared step of the deletes: takes the member out and moves the others down; the count stays.
    int DeleteObjectAtIndex(int iIndex);
    /// @}

    /// Adds the increment to the capacity. -1 after a message when memory is short.
    int MakeArrayLarger();
    /// Makes sure that as many inserts need no memory. -1 after a message when memory is short.
    int Reserve(int iInserts);

protected:
    int iInitialArraySize;         ///< slots of the first array
    int iArrayIncrement;           ///< slots that each growth adds
    int iArraySize;                ///< slots now
    int iDistructorFlag;           ///< the destruction type
    int iCurrentObject;            ///< the current index
    int iNumberOfObjects;          ///< members
    int iSelectedObject;           ///< the selected index, -1 for none
    CcHLObject** pObjectArray;     ///< the slots
    KestGlobalBlock hObjectArray;  ///< the block behind them

private:
    friend class CcImage;
    void MakeFirstArray();
    bool IsMember(int iIndex) const;
    CcHLObject* MoveTo(int iIndex);
    bool MakeRoom();
    int GrowBy(long long llSlots);
    int IndexOf(const char* pszName) const;
    int RemoveAt(int iIndex);
    bool DeletesMembers() const { return iDistructorFlag == 1 && bOwnsMembers; }

    /// The type code that a member needs for Load to take it; KEST_TYPE_NONE: any will do. It belongs to the list's
    /// place: another list that is assigned to it does not change it.
    struct MemberType {
        MemberType() = default;
        MemberType(const MemberType&) = default;
        MemberType& operator=(const MemberType&) { return *this; }
        int iType = KEST_TYPE_NONE;
    };

    KestOwnership bOwnsMembers;
    MemberType stLoaded;
};
