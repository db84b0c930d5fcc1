// Texts: formatting, numbers that a person typed, parts of paths, and the system's wide texts. All texts are UTF-8.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace kestview {

[[gnu::format(printf, 1, 2)]] std::string Format(const char* format, ...);

/// So many significant digits, or all of those before the decimal point: without an exponent up to 15 of them.
std::string PlainNumber(double value, int significantDigits);
/// As few digits as tell the number from every other one.
std::string NumberText(float value);
/// The number that the whole text is; none for anything else or a number that is not finite. A comma counts as the
/// decimal point.
std::optional<double> ParseNumber(std::string text);

std::wstring Wide(const std::string& utf8);
std::string Utf8(const wchar_t* wide);

/// "C:\pictures\coins.bmp": "coins.bmp", "coins", ".bmp" (in small letters), "C:\pictures\".
std::string FileNameOf(const std::string& path);
std::string FileTitleOf(const std::string& path);
std::string ExtensionOf(const std::string& path);
std::string FolderOf(const std::string& path);
std::string WithoutExtension(const std::string& path);
/// The whole path of a path that may be relative.
std::string FullPathOf(const std::string& path);
bool FileExists(const std::string& path);

/// At most so many bytes of a text, cut between two characters.
std::string CutToBytes(const std::string& text, std::size_t longest);
/// A name of at most 49 bytes, as object streams take them.
std::string CutForStreams(const std::string& name);

}  // namespace kestview
