// SPDX-License-Identifier: MIT
#include "platform/windows/program/WindowsShell.h"

#include <vector>

#include <shellapi.h>

#include "base/text.h"
#include "platform/Arguments.h"
#include "platform/common/documents.h"
#include "platform/windows/files/paths.h"
#include "platform/windows/systemText.h"

namespace vell {

namespace {

int execute(const wchar_t* verb, const std::wstring& file, const std::wstring& parameters) {
    const HINSTANCE result =
        ShellExecuteW(nullptr, verb, file.c_str(), parameters.empty() ? nullptr : parameters.c_str(), nullptr, SW_SHOW);
    return static_cast<int>(reinterpret_cast<INT_PTR>(result));
}

bool exists(const std::wstring& path) {
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

int openPath(std::string_view file) {
    const std::wstring path = systemPath(file);
    if (!exists(path)) return exists(folderOf(path)) ? shell_code::FileNotFound : shell_code::PathNotFound;
    const bool isFolder = (GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if (!isFolder && hasRunnableEnding(file)) return shell_code::AccessDenied;
    return execute(isFolder ? L"explore" : L"open", plainPath(path), L"");
}

// What is asked of the reader, of the program that prints such documents.
int printDocument(std::string_view parameters) {
    for (const std::string& part : splitParameters(parameters))
        if (isUsablePath(part) && part.find('\\') != std::string::npos)
            return execute(L"print", plainPath(systemPath(part)), L"");
    return shell_code::FileNotFound;
}

}  // namespace

int WindowsShell::Open(std::string_view file, std::string_view parameters) {
    file = Trim(file);
    if (isAddress(file)) return execute(L"open", wideFromCodePage(file), L"");
    if (!isUsablePath(file)) return shell_code::FileNotFound;
    if (file.find_first_of("\\/") == std::string_view::npos) return openByName(file, parameters);
    return openPath(file);
}

int WindowsShell::openByName(std::string_view name, std::string_view parameters) {
    const std::wstring beside = joined(folderOf(programPath().wstring()), wideFromCodePage(name));
    const std::wstring words = wideFromCodePage(Trim(parameters));
    if (exists(beside)) return execute(L"open", beside, words);
    const int code = execute(L"open", wideFromCodePage(name), words);
    if (code == shell_code::FileNotFound && equalNoCase(name, pdfReader)) return printDocument(parameters);
    return code;
}

}  // namespace vell
