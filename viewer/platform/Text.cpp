// Texts: formatting, numbers that a person typed, parts of paths, and the system's wide texts.
#include "platform/Text.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace kestview {
namespace {

std::size_t NameStart(const std::string& path) {
    const std::size_t slash = path.find_last_of("\\/:");
    return slash == std::string::npos ? 0 : slash + 1;
}

std::size_t ExtensionStart(const std::string& path) {
    const std::size_t dot = path.find_last_of('.');
    return dot == std::string::npos || dot < NameStart(path) ? path.size() : dot;
}

}  // namespace

std::string Format(const char* format, ...) {
    va_list arguments, again;
    va_start(arguments, format);
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    va_end(arguments);
    std::string text(length > 0 ? static_cast<std::size_t>(length) : 0, 0);
    if (length > 0) std::vsnprintf(text.data(), text.size() + 1, format, again);
    va_end(again);
    return text;
}

std::string PlainNumber(double value, int significantDigits) {
    const std::string text = Format("%.*g", significantDigits, value);
    const bool isWhole = std::abs(value) >= 1 && std::abs(value) < 1e15;
    return isWhole && text.find('e') != std::string::npos ? Format("%.0f", value) : text;
}

std::string NumberText(float value) {
    char digits[32] = {};
    std::to_chars(digits, digits + sizeof digits - 1, value);
    return digits;
}

std::optional<double> ParseNumber(std::string text) {
    std::replace(text.begin(), text.end(), ',', '.');
    const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
    while (!text.empty() && isBlank(text.back())) text.pop_back();
    if (text.empty()) return std::nullopt;
    char* end = nullptr;
    const double value = std::strtod(text.c_str(), &end);
    if (*end != 0 || !std::isfinite(value)) return std::nullopt;
    return value;
}

std::wstring Wide(const std::string& utf8) {
    std::wstring wide(static_cast<std::size_t>(
                          MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), nullptr, 0)),
                      0);
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), wide.data(),
                        static_cast<int>(wide.size()));
    return wide;
}

std::string Utf8(const wchar_t* wide) {
    const int size = WideCharToMultiByte(CP_UTF8, 0, wide, -1, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(std::max(size, 1)), 0);
    WideCharToMultiByte(CP_UTF8, 0, wide, -1, text.data(), size, nullptr, nullptr);
    text.pop_back();
    return text;
}

std::string FileNameOf(const std::string& path) { return path.substr(NameStart(path)); }

std::string FileTitleOf(const std::string& path) {
    return path.substr(NameStart(path), ExtensionStart(path) - NameStart(path));
}

std::string ExtensionOf(const std::string& path) {
    std::string extension = path.substr(ExtensionStart(path));
    for (char& c : extension) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return extension;
}

std::string FolderOf(const std::string& path) { return path.substr(0, NameStart(path)); }

std::string WithoutExtension(const std::string& path) { return path.substr(0, ExtensionStart(path)); }

std::string FullPathOf(const std::string& path) {
    char full[4 * MAX_PATH];
    const DWORD length = GetFullPathNameA(path.c_str(), sizeof full, full, nullptr);
    return length > 0 && length < sizeof full ? full : path;
}

bool FileExists(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

std::string CutToBytes(const std::string& text, std::size_t longest) {
    if (text.size() <= longest) return text;
    const auto continuesCharacter = [&](std::size_t at) {
        return (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
    };
    std::size_t end = longest;
    while (end > 0 && continuesCharacter(end)) --end;
    return text.substr(0, end);
}

std::string CutForStreams(const std::string& name) {
    constexpr std::size_t longestName = 49;
    return CutToBytes(name, longestName);
}

}  // namespace kestview
