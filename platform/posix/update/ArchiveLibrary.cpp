// SPDX-License-Identifier: MIT
#include "platform/posix/update/ArchiveLibrary.h"

#include <string>

#include <dlfcn.h>

#include "base/errors.h"

namespace vell {

namespace {

// The version that the headers speak of.
constexpr const char* fileName = "libarchive.so.13";

}  // namespace

void ArchiveLibrary::Closed::operator()(void* library) const {
    dlclose(library);
}

template <class Function>
void ArchiveLibrary::load(Function*& function, const char* name) {
    function = reinterpret_cast<Function*>(dlsym(library_.get(), name));
    if (function == nullptr)
        throw RunTimeError(error_number::FileNotFound, std::string(fileName) + " does not have " + name);
}

ArchiveLibrary::ArchiveLibrary() : library_(dlopen(fileName, RTLD_NOW | RTLD_LOCAL)) {
    if (!library_)
        throw RunTimeError(error_number::FileNotFound,
                           std::string("The system has no ") + fileName + " (package libarchive13)");
    load(ReadNew, "archive_read_new");
    load(ReadFree, "archive_read_free");
    load(ReadSupportFilterGzip, "archive_read_support_filter_gzip");
    load(ReadSupportFormatTar, "archive_read_support_format_tar");
    load(ReadOpenFilename, "archive_read_open_filename");
    load(ReadNextHeader, "archive_read_next_header");
    load(ReadData, "archive_read_data");
    load(ErrorString, "archive_error_string");
    load(EntryPathname, "archive_entry_pathname");
    load(EntryHardlink, "archive_entry_hardlink");
    load(EntryFiletype, "archive_entry_filetype");
    load(EntryPerm, "archive_entry_perm");
}

}  // namespace vell
