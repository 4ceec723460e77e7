// SPDX-License-Identifier: MIT
#include "platform/windows/files/ini/ProfileFile.h"

#include <vector>

#include "base/errors.h"
#include "base/text.h"
#include "platform/windows/files/FileHandle.h"
#include "platform/windows/systemText.h"

namespace vell {

namespace {

constexpr std::wstring_view byteOrderMark = L"\xFEFF";
constexpr std::string_view blanks = " \t";
constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";  // which editors put before a text of one code page, too

// A file in the user's folder for temporary ones.
class ScratchFile {
  public:
    explicit ScratchFile(const std::string& bytes) {
        std::wstring folder(MAX_PATH + 1, L'\0');
        folder.resize(GetTempPathW(static_cast<DWORD>(folder.size()), folder.data()));
        std::wstring path(MAX_PATH, L'\0');
        if (GetTempFileNameW(folder.c_str(), L"vel", 0, path.data()) == 0)
            raiseFileError({codePageFromWideLossy(folder), folder});
        path.resize(path.find(L'\0'));
        place_ = {codePageFromWideLossy(path), path};
        const std::wstring text = std::wstring(byteOrderMark) + wideFromCodePage(bytes);
        FileHandle(place_, {GENERIC_WRITE, 0, CREATE_ALWAYS, FILE_ATTRIBUTE_TEMPORARY})
            .writeAt(0, {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t)}, place_);
    }
    ~ScratchFile() { DeleteFileW(path()); }
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;

    [[nodiscard]] const wchar_t* path() const { return place_.System.c_str(); }
    [[nodiscard]] std::string bytes() const {
        const std::string raw = FileHandle(place_, FileHandle::ToRead).readAll(place_);
        std::wstring text(raw.size() / sizeof(wchar_t), L'\0');
        raw.copy(reinterpret_cast<char*>(text.data()), text.size() * sizeof(wchar_t));
        if (text.starts_with(byteOrderMark)) text.erase(0, byteOrderMark.size());
        return codePageFromWideLossy(text);
    }
    void edit(const wchar_t* section, const wchar_t* key, const wchar_t* value) const {
        if (!WritePrivateProfileStringW(section, key, value, path())) raiseFileError(place_);
    }
    // What the system keeps in memory goes to the file.
    void flush() const { WritePrivateProfileStringW(nullptr, nullptr, nullptr, path()); }

  private:
    FilePlace place_;
};

// The texts that one of the calls puts one behind the other, each ended by a zero.
template <class Ask>
std::vector<std::string> texts(Ask ask) {
    std::wstring buffer(4096, L'\0');
    DWORD length = ask(buffer.data(), static_cast<DWORD>(buffer.size()));
    while (length + 2 >= buffer.size()) {  // how it says that there is more
        buffer.assign(buffer.size() * 4, L'\0');
        length = ask(buffer.data(), static_cast<DWORD>(buffer.size()));
    }
    std::vector<std::string> found;
    for (std::size_t at = 0; at < length;) {
        const std::wstring one = buffer.substr(at, buffer.find(L'\0', at) - at);
        at += one.size() + 1;
        found.push_back(codePageFromWideLossy(one));
    }
    return found;
}

std::string_view trimmed(std::string_view text) {
    const auto begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos) return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

std::string_view withoutQuotes(std::string_view value) {
    const bool isQuoted =
        value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.back() == value.front();
    return isQuoted ? value.substr(1, value.size() - 2) : value;
}

std::string nameKey(std::string_view name) {
    return Upper(trimmed(name));
}

void refuseLineEnd(std::string_view text) {
    if (text.find_first_of("\r\n") != std::string_view::npos)
        throw RunTimeError(error_number::InvalidCall, "Invalid procedure call or argument");
}

}  // namespace

ProfileFile::ProfileFile(const std::string& bytes) {
    if (bytes.starts_with(utf8Mark)) {
        *this = ProfileFile(bytes.substr(utf8Mark.size()));
        return;
    }
    const ScratchFile file(bytes);
    const auto names =
        texts([&](wchar_t* buffer, DWORD size) { return GetPrivateProfileSectionNamesW(buffer, size, file.path()); });
    for (const std::string& name : names) {
        const auto [section, isNew] = sections_.try_emplace(nameKey(name));
        if (!isNew) continue;
        const std::wstring wideName = wideFromCodePage(name);
        const auto lines = texts([&](wchar_t* buffer, DWORD size) {
            return GetPrivateProfileSectionW(wideName.c_str(), buffer, size, file.path());
        });
        for (const std::string_view line : lines) {
            const auto equals = line.find('=');
            if (equals == std::string_view::npos) continue;
            section->second.try_emplace(nameKey(line.substr(0, equals)),
                                        withoutQuotes(trimmed(line.substr(equals + 1))));
        }
    }
}

std::optional<std::string_view> ProfileFile::value(std::string_view section, std::string_view key) const {
    const auto keys = sections_.find(nameKey(section));
    if (keys == sections_.end()) return std::nullopt;
    const auto found = keys->second.find(nameKey(key));
    return found == keys->second.end() ? std::nullopt : std::optional<std::string_view>(found->second);
}

std::string ProfileFile::edited(const std::string& bytes, const std::vector<IniEdit>& edits) {
    if (bytes.starts_with(utf8Mark)) return std::string(utf8Mark) + edited(bytes.substr(utf8Mark.size()), edits);
    const ScratchFile file(bytes);
    for (const IniEdit& edit : edits) {
        for (const std::string& part : {edit.Section, edit.Key.value_or(""), edit.Value.value_or("")})
            refuseLineEnd(part);
        const std::wstring section = wideFromCodePage(edit.Section), key = wideFromCodePage(edit.Key.value_or("")),
                           value = wideFromCodePage(edit.Value.value_or(""));
        file.edit(section.c_str(), edit.Key ? key.c_str() : nullptr, edit.Value ? value.c_str() : nullptr);
    }
    file.flush();
    // The system ends every line that it writes in its own way; a file from elsewhere keeps that of its first line.
    const auto lineFeed = bytes.find('\n');
    const bool isForeign = lineFeed != std::string::npos && (lineFeed == 0 || bytes[lineFeed - 1] != '\r');
    return isForeign ? Replace(file.bytes(), "\r\n", "\n") : file.bytes();
}

}  // namespace vell
