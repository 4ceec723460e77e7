// SPDX-License-Identifier: MIT
#include "platform/Arguments.h"

#include <shellapi.h>

#include "platform/windows/systemText.h"

namespace vell {

std::vector<std::string> programArguments(int /*argc*/, char** /*argv*/) {
    int count = 0;
    wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; words != nullptr && i < count; ++i)
        arguments.push_back(utf8FromWide(words[i]));
    LocalFree(words);
    return arguments;
}

std::filesystem::path programPath() {
    std::wstring path(MAX_PATH, L'\0');
    while (GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())) == path.size())
        path.resize(path.size() * 2);
    path.resize(path.find(L'\0'));
    return path;
}

}  // namespace vell
