// Files that are replaced only by whole ones.
#pragma once

#include <functional>
#include <string>

namespace kestview {

/// Lets `write` write a new file beside the one at `path`. When it succeeds, the new file takes its place; else the new
/// one is deleted and `path` is as it was.
bool WriteWhole(const std::string& path, const std::function<bool(const std::string& newPath)>& write);

/// A name beside `path`, with its extension, that no file has; also not with another extension, as that decides about
/// the names of files that are written along.
std::string UnusedPath(const std::string& path);

/// -1 when there is no such file.
long long BytesOfFile(const std::string& path);

}  // namespace kestview
