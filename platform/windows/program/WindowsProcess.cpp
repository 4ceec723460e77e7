// SPDX-License-Identifier: MIT
#include "platform/windows/program/WindowsProcess.h"

#include <utility>

#include <shlobj.h>

#include "base/text.h"
#include "platform/windows/files/FileHandle.h"
#include "platform/windows/files/paths.h"
#include "platform/windows/program/knownFolder.h"
#include "platform/windows/systemText.h"

namespace vell {

namespace {

std::string expressed(const std::wstring& folder) {
    const std::string utf8 = utf8FromWide(plainPath(folder));
    if (auto text = codePageFromUtf8(utf8)) return *text;
    throw RunTimeError(
        error_number::BadFileName,
        "Characters of the program folder's name are not in code page 1253: " + codePageFromUtf8Lossy(utf8));
}

std::wstring identityOf(const std::wstring& folder) {
    FileHandle::How how = FileHandle::ToRead;
    how.Access = FILE_READ_ATTRIBUTES;
    how.Flags = FILE_FLAG_BACKUP_SEMANTICS;
    const FileHandle handle({codePageFromWideLossy(folder), folder}, how);
    BY_HANDLE_FILE_INFORMATION status{};
    if (!GetFileInformationByHandle(handle.get(), &status)) return {};
    return std::to_wstring(status.dwVolumeSerialNumber) + L"_" + std::to_wstring(status.nFileIndexHigh) + L"_" +
           std::to_wstring(status.nFileIndexLow);
}

}  // namespace

WindowsProcess::WindowsProcess(const ProgramPlace& place) {
    const std::wstring folder = place.programFolder();
    folder_ = expressed(folder);
    name_ = L"Vell_" + identityOf(folder);
}

WindowsProcess::~WindowsProcess() {
    if (mutex_ != nullptr) CloseHandle(mutex_);
}

std::string WindowsProcess::DocumentsFolder() const {
    return codePageFromUtf8(utf8FromWide(knownFolder(FOLDERID_Documents))).value_or("");
}

// Of all sessions of the machine: two users may share the folder.
bool WindowsProcess::IsPreviousInstance() {
    if (mutex_ != nullptr) return false;
    const HANDLE mutex = CreateMutexW(nullptr, FALSE, (L"Global\\" + name_).c_str());
    const DWORD error = GetLastError();
    if (mutex == nullptr) {
        if (error == ERROR_ACCESS_DENIED) return true;  // another user's
        throw RunTimeError(error_number::PermissionDenied, "Permission denied: " + folder_, "Vell",
                           static_cast<std::int32_t>(error));
    }
    if (error == ERROR_ALREADY_EXISTS) {
        CloseHandle(mutex);
        return true;
    }
    mutex_ = mutex;
    return false;
}

void WindowsProcess::RaisePrevious() {
    RaiseWindow::ask(name_);
}

void WindowsProcess::OnRaise(std::function<void()> raise) {
    window_ = std::make_unique<RaiseWindow>(name_, std::move(raise));
}

}  // namespace vell
