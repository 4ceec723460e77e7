// SPDX-License-Identifier: MIT
#include "platform/windows/network/WindowsRas.h"

#include <algorithm>
#include <string>
#include <vector>

#include "platform/common/RasRecords.h"
#include "platform/windows/rasHeaders.h"
#include "platform/windows/systemText.h"

namespace vell {

namespace {

constexpr std::size_t longestText = 512;
constexpr DWORD betweenLooks = 50;  // milliseconds
constexpr int mostLooks = 60;

template <class Call>
Call* procedure(HMODULE library, const char* name) {
    return reinterpret_cast<Call*>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

// Records of the service's own, as many as it has; empty when it fails. `ask` is told where to put them.
template <class Record, class Ask>
std::uint32_t all(std::vector<Record>& records, Ask ask) {
    records.resize(1);
    std::uint32_t error = 0;
    for (int attempt = 0; attempt < 3; ++attempt) {  // there may be more of them meanwhile
        records.front() = Record{};
        records.front().dwSize = sizeof(Record);
        auto bytes = static_cast<DWORD>(records.size() * sizeof(Record));
        DWORD count = 0;
        error = ask(records.data(), &bytes, &count);
        if (error != ERROR_BUFFER_TOO_SMALL) {
            records.resize(error == 0 ? count : 0);
            return error;
        }
        records.resize(bytes / sizeof(Record) + 1);
    }
    return error;
}

}  // namespace

struct WindowsRas::Library {
    HMODULE Handle = LoadLibraryExW(L"rasapi32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    decltype(&RasEnumEntriesW) EnumEntries = procedure<decltype(RasEnumEntriesW)>(Handle, "RasEnumEntriesW");
    decltype(&RasEnumConnectionsW) EnumConnections =
        procedure<decltype(RasEnumConnectionsW)>(Handle, "RasEnumConnectionsW");
    decltype(&RasHangUpW) HangUp = procedure<decltype(RasHangUpW)>(Handle, "RasHangUpW");
    decltype(&RasGetConnectStatusW) GetConnectStatus =
        procedure<decltype(RasGetConnectStatusW)>(Handle, "RasGetConnectStatusW");
    decltype(&RasGetErrorStringW) GetErrorString =
        procedure<decltype(RasGetErrorStringW)>(Handle, "RasGetErrorStringW");

    Library() = default;
    ~Library() {
        if (Handle != nullptr) FreeLibrary(Handle);
    }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    [[nodiscard]] bool isComplete() const {
        return EnumEntries != nullptr && EnumConnections != nullptr && HangUp != nullptr &&
               GetConnectStatus != nullptr && GetErrorString != nullptr;
    }
};

WindowsRas::WindowsRas() = default;
WindowsRas::~WindowsRas() = default;

const WindowsRas::Library* WindowsRas::library() const {
    if (!isLoaded_) {
        library_ = std::make_unique<Library>();
        if (!library_->isComplete()) library_.reset();
        isLoaded_ = true;
    }
    return library_.get();
}

bool WindowsRas::isInstalled() const {
    return library() != nullptr;
}

std::uint32_t WindowsRas::RasEnumEntries(std::string_view phoneBook, std::span<std::byte> records, std::uint32_t& bytes,
                                         std::uint32_t& count) {
    const RasLayout* layout = rasEntryLayout(records);
    if (layout == nullptr) return InvalidSize;
    if (!isInstalled()) return ERROR_CALL_NOT_IMPLEMENTED;
    const std::wstring book = wideFromCodePage(phoneBook);
    std::vector<RASENTRYNAMEW> entries;
    const std::uint32_t error = all(entries, [&](RASENTRYNAMEW* first, DWORD* size, DWORD* number) {
        return library()->EnumEntries(nullptr, book.empty() ? nullptr : book.c_str(), first, size, number);
    });
    if (error != Success) return error;
    std::vector<RasNamed> names;
    for (const auto& one : entries)
        names.push_back({codePageFromWideLossy(one.szEntryName)});
    return writeRasRecords(names, records, *layout, bytes, count);
}

std::uint32_t WindowsRas::RasEnumConnections(std::span<std::byte> records, std::uint32_t& bytes, std::uint32_t& count) {
    const RasLayout* layout = rasConnectionLayout(records);
    if (layout == nullptr) return InvalidSize;
    if (!isInstalled()) return ERROR_CALL_NOT_IMPLEMENTED;
    std::vector<RASCONNW> connections;
    const std::uint32_t error = all(connections, [&](RASCONNW* first, DWORD* size, DWORD* number) {
        return library()->EnumConnections(first, size, number);
    });
    if (error != Success) return error;
    std::vector<RasNamed> names;
    for (const auto& one : connections)
        names.push_back({codePageFromWideLossy(one.szEntryName), numberOf(one.hrasconn)});
    return writeRasRecords(names, records, *layout, bytes, count);
}

std::uint32_t WindowsRas::numberOf(void* handle) {
    const auto known = std::ranges::find_if(handles_, [&](const auto& one) { return one.second == handle; });
    if (known != handles_.end()) return known->first;
    const std::uint32_t number = handles_.empty() ? 1 : handles_.rbegin()->first + 1;
    handles_.emplace(number, handle);
    return number;
}

std::uint32_t WindowsRas::RasHangUp(std::uint32_t connection) {
    const auto known = handles_.find(connection);
    if (known == handles_.end()) return connection == 0 ? std::uint32_t{Success} : std::uint32_t{ERROR_NO_CONNECTION};
    const auto handle = static_cast<HRASCONN>(known->second);
    handles_.erase(known);
    const std::uint32_t error = library()->HangUp(handle);
    for (int look = 0; error == Success && look < mostLooks; ++look) {
        RASCONNSTATUSW status{};
        status.dwSize = sizeof status;
        if (library()->GetConnectStatus(handle, &status) == ERROR_INVALID_HANDLE) break;
        Sleep(betweenLooks);
    }
    return error;
}

std::uint32_t WindowsRas::RasGetErrorString(std::uint32_t code, std::span<char> text) {
    if (!isInstalled()) return ERROR_CALL_NOT_IMPLEMENTED;
    std::wstring words(longestText, L'\0');
    const DWORD error = library()->GetErrorString(code, words.data(), static_cast<DWORD>(words.size()));
    if (error != Success) return error;
    const std::string found = codePageFromWideLossy(words.c_str());
    if (text.size() <= found.size()) return BufferTooSmall;
    std::ranges::copy(found, text.begin());
    text[found.size()] = '\0';
    return Success;
}

}  // namespace vell
