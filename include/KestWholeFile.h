// Files that are replaced only by whole ones.
#pragma once

#include "KestExport.h"
#include "KestPlatform.h"
#include "KestTypes.h"

/// Writes a file so that nobody loses the old one: the bytes go to a new file in the same folder, which takes the old
/// one's place once the system has taken every byte. (Nothing is flushed: of a machine that loses its power the disk
/// may have less.) All files that the library writes, but for object streams, are written by it.
///
/// An old file that has another name (a link), that others hold open and do not let go, or whose folder allows no new
/// file, stays the file that it is: the new one (which is made in the temporary folder, if need be) is copied into it
/// when it is complete. Others see the bytes through the handles that they have; but those who share the file for
/// deleting keep the old one. Only a device or pipe is written to at once, and a new file at a path beside which no
/// other name fits (which is deleted when it does not become whole).
///
///     KestWholeFile file("plate.csv");
///     file.Write(text, length);
///     if (file.Replace() != KEST_OK) ... file.GetResult() tells why, and plate.csv is as it was
///
/// An object is used once, by one thread. No function shows a message.
class KEST_API KestWholeFile {
public:
    /// What was reached so far.
    enum Result {
        Writing,     ///< the new file is open, and what was written is in it
        Replaced,    ///< the path has all that was written
        NotCreated,  ///< the file at the path cannot be written to, or no file can be made there
        NotWritten,  ///< the disk did not take all bytes, or the old file could not be replaced
    };

    /// Makes the new file. A null path, or one that is too long (for the system, or over 267 characters), is
    /// NotCreated; so is one at which there is a read-only file, or one that cannot be opened for writing with
    /// `ulSharing` (what other handles on it may do: FILE_SHARE_READ and FILE_SHARE_WRITE, or 0).
    explicit KestWholeFile(const char* pszPath, unsigned long ulSharing = FILE_SHARE_READ | FILE_SHARE_WRITE);
    /// What was not put in place by Replace is deleted.
    ~KestWholeFile();
    KestWholeFile(const KestWholeFile&) = delete;
    KestWholeFile& operator=(const KestWholeFile&) = delete;

    /// Appends `llBytes` bytes (0 or more). KEST_FAILED once anything went wrong; GetResult tells what.
    int Write(const void* pBytes, long long llBytes);

    /// For a writer that wants a path: closes the new file, still empty, and returns its name, which ends in the
    /// extension of the path. After that writer Replace puts the file in place; Write must not be called. What is
    /// written to at once gives the path itself; null when the file was not created.
    const char* LendPath();

    /// For files that are replaced together: closes the new file and asks whether the old one lets itself be replaced,
    /// so that all of them are ready before the first one is put in place. Nothing can be written after it. KEST_OK, or
    /// KEST_FAILED with the old file as it was.
    int Complete();

    /// Puts the new file in the old one's place. KEST_OK, or KEST_FAILED with the old file as it was. Should the system
    /// break off in the middle, so that the old file is gone or half overwritten, the new one stays where it was made
    /// ("~kest1" and so on, with the extension of the path). So does a copied one that somebody holds open.
    int Replace();

    /// Gives up: nothing is replaced, and the result is NotWritten.
    void Abandon();

    Result GetResult() const { return eResult; }  ///< what was reached so far

private:
    void OpenForNewFile(unsigned long ulSharing);
    void OpenForOldFile(HANDLE hOld);
    bool IsDevice() const;
    bool IsInPlace() const;
    bool CloseNew();
    void DeleteNew();
    bool AskForReplacing();
    bool MoveIntoPlace();
    bool CopyIntoPlace();

    /// Longer than any path that a class keeps: a wide image's raw file has an extension more than its BMP file.
    enum { PathSize = KEST_NAME_SIZE + 8 };

    char szPath[PathSize];     ///< the file to replace
    char szNewPath[PathSize];  ///< what is deleted when it does not become whole: the new file; empty for a device
    bool bOldFile = false;     ///< there was a file at the path
    bool bComplete = false;    ///< the new file is closed, and how it gets into place is known
    bool bMovable = false;     ///< it can be moved there
    HANDLE hFile = INVALID_HANDLE_VALUE;
    Result eResult = NotCreated;
};
