// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include <archive.h>
#include <archive_entry.h>

namespace vell {

// libarchive, which the program loads when it has an archive to read: linked, it would cost every start a tenth of its
// memory, for what happens once in months. Raises RunTimeError where the system does not have it.
class ArchiveLibrary {
  public:
    ArchiveLibrary();

    // Its functions of these names.
    decltype(&::archive_read_new) ReadNew = nullptr;
    decltype(&::archive_read_free) ReadFree = nullptr;
    decltype(&::archive_read_support_filter_gzip) ReadSupportFilterGzip = nullptr;
    decltype(&::archive_read_support_format_tar) ReadSupportFormatTar = nullptr;
    decltype(&::archive_read_open_filename) ReadOpenFilename = nullptr;
    decltype(&::archive_read_next_header) ReadNextHeader = nullptr;
    decltype(&::archive_read_data) ReadData = nullptr;
    decltype(&::archive_error_string) ErrorString = nullptr;
    decltype(&::archive_entry_pathname) EntryPathname = nullptr;
    decltype(&::archive_entry_hardlink) EntryHardlink = nullptr;
    decltype(&::archive_entry_filetype) EntryFiletype = nullptr;
    decltype(&::archive_entry_perm) EntryPerm = nullptr;

  private:
    struct Closed {
        void operator()(void* library) const;
    };
    template <class Function>
    void load(Function*& function, const char* name);

    std::unique_ptr<void, Closed> library_;
};

}  // namespace vell
