// SPDX-License-Identifier: MIT
#include "tests/support/system.h"

#include <cstdlib>
#include <string_view>
#include <vector>

#include <sddl.h>

namespace vell::test {

void setVariable(const std::string& name, const std::string& value) {
    _putenv_s(name.c_str(), value.c_str());
}

void removeVariable(const std::string& name) {
    _putenv_s(name.c_str(), "");
}

// No word of everybody among its rights.
bool isPrivate(const std::filesystem::path& file) {
    DWORD size = 0;
    GetFileSecurityW(file.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<std::byte> rights(size);
    if (!GetFileSecurityW(file.c_str(), DACL_SECURITY_INFORMATION, rights.data(), size, &size)) return false;
    wchar_t* text = nullptr;
    if (!ConvertSecurityDescriptorToStringSecurityDescriptorW(rights.data(), SDDL_REVISION_1, DACL_SECURITY_INFORMATION,
                                                              &text, nullptr))
        return false;
    const bool isForAll = std::wstring_view(text).find(L";WD)") != std::wstring_view::npos;
    LocalFree(text);
    return !isForAll;
}

}  // namespace vell::test
