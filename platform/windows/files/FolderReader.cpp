// SPDX-License-Identifier: MIT
#include "platform/windows/files/FolderReader.h"

#include <utility>

#include "platform/windows/files/paths.h"

namespace vell {

namespace {

std::int64_t joinedHalves(DWORD high, DWORD low) {
    return static_cast<std::int64_t>(std::uint64_t{high} << 32 | low);
}

FolderReader::Found described(const WIN32_FIND_DATAW& data) {
    return {data.cFileName, joinedHalves(data.nFileSizeHigh, data.nFileSizeLow),
            joinedHalves(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime),
            (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0,
            (data.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0};
}

}  // namespace

FolderReader::FolderReader(const std::wstring& folder) {
    WIN32_FIND_DATAW data{};
    const HANDLE search = FindFirstFileExW(joined(folder, L"*").c_str(), FindExInfoBasic, &data, FindExSearchNameMatch,
                                           nullptr, FIND_FIRST_EX_LARGE_FETCH);
    if (search == INVALID_HANDLE_VALUE) {
        error_ = GetLastError();
        return;
    }
    search_ = search;
    first_ = described(data);
    hasFirst_ = true;
}

FolderReader::~FolderReader() {
    if (search_ != nullptr) FindClose(search_);
}

bool FolderReader::next(Found& found) {
    do {
        WIN32_FIND_DATAW data{};
        if (search_ == nullptr || (!hasFirst_ && !FindNextFileW(search_, &data))) return false;
        found = std::exchange(hasFirst_, false) ? std::move(first_) : described(data);
    } while (found.Name == L"." || found.Name == L"..");
    return true;
}

}  // namespace vell
