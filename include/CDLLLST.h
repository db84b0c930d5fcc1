// CDLLLST: the list of a host's tools.
#pragma once

#include "CLOADDLL.h"

/// A list of up to 100 tools with a current position, by which a caller walks it, and a selected one. Neither position
/// follows the tools when others are inserted or deleted before them.
///
/// The list owns its tools: DelAt and the destructor delete them, which unloads their libraries. A null entry is
/// accepted. A copy refers to the same tools and deletes none.
class KEST_API CDLLLST : public KestHeapObject {
public:
    CDLLLST();
    CDLLLST(const CDLLLST&) = default;
    CDLLLST& operator=(const CDLLLST&) = default;
    virtual ~CDLLLST();

    /// @name Walking
    /// Each returns the tool that it moved the current position to; null when there is none.
    /// @{
    CLOADDLL* GetHead();  ///< the first tool
    /// The tool after the current one; stays where it is at the end.
    CLOADDLL* GetNext();
    /// The tool before the current one; stays where it is at the start.
    CLOADDLL* GetPrev();
    CLOADDLL* GetTail();  ///< the last tool
    /// @}
    /// The tool at an index without moving the current position; null for no such index.
    CLOADDLL* GetAt(int iIndex);
    int GetNumberOfElements();  ///< tools in the list

    /// Appends. -1 when the list is full.
    int InsertTail(CLOADDLL* pTool);
    /// Inserts before the tool at `iIndex`; the number of tools as the index appends. -1 when the list is full or for
    /// any other index.
    int InsertAt(int iIndex, CLOADDLL* pTool);
    /// Deletes a tool. The number of tools as the index takes the last one out of the list without deleting it. -1 when
    /// the list is empty or for any other index.
    int DelAt(int iIndex);

    /// Selects a tool, or none with a negative index. -1 for an index beyond the list.
    int SelectElement(int iIndex);
    /// Negative when none is selected.
    int GetSelectedElement();

protected:
    static constexpr int iMaxElements = 100;  ///< the most tools in a list

    int iCurrentElement;                ///< index of the current tool
    int iNumberOfElements;              ///< tools in the list
    int iSelectedElement;               ///< index of the selected tool, -1 for none
    CLOADDLL* pElements[iMaxElements];  ///< the tools in order

private:
    KestOwnership bOwnsElements;
};
