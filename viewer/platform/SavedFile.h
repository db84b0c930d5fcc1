// Files that are replaced only by whole ones, and why one could not be.
#pragma once

#include <functional>
#include <string>

namespace kestview {

/// Why `path` cannot take a file of so many bytes, in a sentence for the user; empty when it can.
std::string WhyNotWritable(const std::string& path, long long bytes);

/// What the user is told when `what` ("The session") could not be written, with the reason when there is one.
std::string NotWritten(const std::string& what, const std::string& path, const std::string& reason);

/// What has come of writing a file.
struct Written {
    Written(bool isAll) : isWhole(isAll) {}
    /// Something other than the file is in the way: a sentence for the user.
    static Written Not(const std::string& reason) { return {false, false, reason}; }
    /// The library could not write the file, and has said so in a box of its own.
    static Written NotAsTold() { return {false, true, ""}; }

    bool isWhole;
    bool isTold = false;
    std::string reason;

private:
    Written(bool isAll, bool hasBox, const std::string& why) : isWhole(isAll), isTold(hasBox), reason(why) {}
};

/// Lets `write` write a new file of at least so many bytes beside the one at `path`, which it then replaces. On failure
/// `path` is as it was, and `error` tells why `what` could not be written; it is empty when the user has been told, and
/// there is nothing to add.
bool SaveWhole(const std::string& what, const std::string& path, long long bytes,
               const std::function<Written(const std::string& newPath)>& write, std::string& error);

/// -1 when there is no such file.
long long BytesOfFile(const std::string& path);

}  // namespace kestview
