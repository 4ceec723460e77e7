// SPDX-License-Identifier: MIT
#include "platform/windows/systemText.h"

#include "base/text.h"

namespace vell {

std::wstring wideFromUtf8(std::string_view utf8) {
    if (utf8.empty()) return {};
    const int bytes = static_cast<int>(utf8.size());
    std::wstring wide(utf8.size(), L'\0');  // no character has more units than bytes
    const int units = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, wide.data(), bytes);
    wide.resize(static_cast<std::size_t>(units));
    return wide;
}

std::string utf8FromWide(std::wstring_view wide) {
    if (wide.empty()) return {};
    const int units = static_cast<int>(wide.size());
    const int bytes = WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(bytes), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), units, utf8.data(), bytes, nullptr, nullptr);
    return utf8;
}

std::wstring wideFromCodePage(std::string_view text) {
    return wideFromUtf8(utf8FromCodePage(text));
}

std::string codePageFromWideLossy(std::wstring_view wide) {
    return codePageFromUtf8Lossy(utf8FromWide(wide));
}

std::string systemMessage(std::uint32_t error, const wchar_t* module) {
    const HMODULE library = module != nullptr ? GetModuleHandleW(module) : nullptr;
    const DWORD where = library != nullptr ? FORMAT_MESSAGE_FROM_HMODULE : 0;
    std::wstring text(2048, L'\0');
    const DWORD units = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | where, library,
                                       error, 0, text.data(), static_cast<DWORD>(text.size()), nullptr);
    text.resize(units);
    return codePageFromWideLossy(text);
}

std::string environmentVariable(const wchar_t* name) {
    std::wstring value(GetEnvironmentVariableW(name, nullptr, 0), L'\0');
    if (value.empty()) return {};
    value.resize(GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size())));
    return utf8FromWide(value);
}

}  // namespace vell
