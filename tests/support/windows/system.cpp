// SPDX-License-Identifier: MIT
#include "tests/support/system.h"

#include <cstdlib>
#include <vector>

#include <aclapi.h>

namespace vell::test {

void setVariable(const std::string& name, const std::string& value) {
    _putenv_s(name.c_str(), value.c_str());
}

void removeVariable(const std::string& name) {
    _putenv_s(name.c_str(), "");
}

// Everybody may do nothing with it.
bool isPrivate(const std::filesystem::path& file) {
    PACL rights = nullptr;
    PSECURITY_DESCRIPTOR owned = nullptr;
    std::wstring path = file.wstring();
    if (GetNamedSecurityInfoW(path.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, &rights,
                              nullptr, &owned) != ERROR_SUCCESS)
        return false;
    std::vector<std::byte> everybody(SECURITY_MAX_SID_SIZE);
    auto size = static_cast<DWORD>(everybody.size());
    CreateWellKnownSid(WinWorldSid, nullptr, everybody.data(), &size);
    TRUSTEE_W who{};
    BuildTrusteeWithSidW(&who, everybody.data());
    ACCESS_MASK allowed = 0;
    const bool isKnown = rights != nullptr && GetEffectiveRightsFromAclW(rights, &who, &allowed) == ERROR_SUCCESS;
    LocalFree(owned);
    return isKnown && (allowed & FILE_READ_DATA) == 0;
}

}  // namespace vell::test
