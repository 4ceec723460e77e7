// SPDX-License-Identifier: MIT
#include "platform/windows/files/paths.h"

#include <algorithm>

#include "base/errors.h"
#include "base/text.h"
#include "platform/windows/systemText.h"

namespace vell {

namespace {

constexpr std::wstring_view longDrive = L"\\\\?\\";
constexpr std::wstring_view longShare = L"\\\\?\\UNC\\";
// Where the old calls end, less a name of the old kind.
constexpr std::size_t longestPlain = MAX_PATH - 13;

std::wstring absolute(const std::wstring& path) {
    std::wstring full(GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
    full.resize(GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    return full;
}

bool isDevice(const std::wstring& full) {
    return full.starts_with(L"\\\\.\\");
}

// Behind a drive's letter alone.
bool namesStream(const std::wstring& full) {
    return full.starts_with(longDrive) ? full.find(L':', longDrive.size() + 2) != std::wstring::npos
                                       : full.find(L':', 2) != std::wstring::npos;
}

std::wstring checked(const std::wstring& wide) {
    std::wstring full = wide.starts_with(longDrive) ? wide : absolute(wide);
    if (full.empty() || isDevice(full) || namesStream(full)) return {};
    while (full.size() > 3 && full.ends_with(L'\\'))
        full.pop_back();
    if (full.size() <= longestPlain || full.starts_with(longDrive)) return full;
    return isOnShare(full) ? std::wstring(longShare) + full.substr(2) : std::wstring(longDrive) + full;
}

bool hasControls(std::string_view path) {
    return std::ranges::any_of(path, [](char c) { return static_cast<unsigned char>(c) < 32 || c == 127; });
}

std::wstring checkedPath(std::string_view path) {
    return path.empty() || hasControls(path) ? std::wstring() : checked(wideFromCodePage(path));
}

[[noreturn]] void refuse(const std::string& path) {
    throw RunTimeError(error_number::BadFileName, "Bad file name or number: " + path);
}

}  // namespace

std::wstring systemPath(std::string_view path) {
    std::wstring system = checkedPath(path);
    if (system.empty()) refuse(std::string(path));
    return system;
}

std::wstring systemPathFromUtf8(const std::string& path) {
    std::wstring system = checked(wideFromUtf8(path));
    if (system.empty()) refuse(codePageFromUtf8Lossy(path));
    return system;
}

bool isUsablePath(std::string_view path) {
    return !checkedPath(path).empty();
}

bool isOnShare(const std::wstring& systemPath) {
    if (systemPath.starts_with(longDrive)) return systemPath.starts_with(longShare);
    return systemPath.starts_with(L"\\\\");
}

std::wstring plainPath(const std::wstring& systemPath) {
    if (systemPath.starts_with(longShare)) return L"\\\\" + systemPath.substr(longShare.size());
    return systemPath.starts_with(longDrive) ? systemPath.substr(longDrive.size()) : systemPath;
}

std::wstring folderOf(const std::wstring& systemPath) {
    const auto slash = systemPath.rfind(L'\\');
    if (slash == std::wstring::npos) return systemPath;
    const bool isDrive = slash > 0 && systemPath[slash - 1] == L':';
    return systemPath.substr(0, isDrive ? slash + 1 : slash);
}

std::wstring nameOf(const std::wstring& systemPath) {
    return systemPath.substr(systemPath.rfind(L'\\') + 1);  // npos + 1 is 0
}

std::wstring joined(const std::wstring& folder, const std::wstring& name) {
    return folder.ends_with(L'\\') ? folder + name : folder + L'\\' + name;
}

}  // namespace vell
