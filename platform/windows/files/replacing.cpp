// SPDX-License-Identifier: MIT
#include "platform/windows/files/replacing.h"

#include <memory>
#include <vector>

#include <sddl.h>

namespace vell {

namespace {

struct FreeLocal {
    void operator()(void* memory) const { LocalFree(memory); }
};
template <class Thing>
using LocalPtr = std::unique_ptr<Thing, FreeLocal>;

// Empty when the file system knows no rights.
std::vector<std::byte> rightsOf(const std::wstring& path) {
    DWORD needed = 0;
    GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &needed);
    std::vector<std::byte> rights(needed);
    if (needed == 0 || !GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, rights.data(), needed, &needed))
        return {};
    return rights;
}

std::wstring thisUser() {
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token)) return {};
    DWORD needed = 0;
    GetTokenInformation(token, TokenUser, nullptr, 0, &needed);
    std::vector<std::byte> user(needed);
    const bool isKnown = GetTokenInformation(token, TokenUser, user.data(), needed, &needed) != 0;
    CloseHandle(token);
    wchar_t* text = nullptr;
    if (!isKnown || !ConvertSidToStringSidW(reinterpret_cast<TOKEN_USER*>(user.data())->User.Sid, &text)) return {};
    const LocalPtr<wchar_t> owned(text);
    return text;
}

// For the user, the system and the administrators, and nothing from the folder above.
LocalPtr<void> privateRights() {
    const std::wstring user = thisUser();
    if (user.empty()) return nullptr;
    const std::wstring text = L"D:P(A;;FA;;;" + user + L")(A;;FA;;;SY)(A;;FA;;;BA)";
    PSECURITY_DESCRIPTOR rights = nullptr;
    ConvertStringSecurityDescriptorToSecurityDescriptorW(text.c_str(), SDDL_REVISION_1, &rights, nullptr);
    return LocalPtr<void>(rights);
}

}  // namespace

void prepareToReplace(const FilePlace& target, const FilePlace& by) {
    const DWORD attributes = GetFileAttributesW(target.System.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        if (isAbsence(GetLastError())) return;
        raiseFileError(target);
    }
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) throw fileError(ERROR_ALREADY_EXISTS, target);
    if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) throw fileError(ERROR_ACCESS_DENIED, target);
    auto rights = rightsOf(target.System);
    if (!rights.empty() && !SetFileSecurityW(by.System.c_str(), DACL_SECURITY_INFORMATION, rights.data()))
        raiseFileError(target);
}

void makePrivate(const FilePlace& place) {
    const auto rights = privateRights();
    SECURITY_ATTRIBUTES security{sizeof security, rights.get(), FALSE};
    const HANDLE made = CreateFileW(place.System.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, &security,
                                    CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (made != INVALID_HANDLE_VALUE) {
        CloseHandle(made);
        return;
    }
    if (GetLastError() != ERROR_FILE_EXISTS) raiseFileError(place);
}

}  // namespace vell
