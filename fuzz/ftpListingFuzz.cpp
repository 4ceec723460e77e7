// SPDX-License-Identifier: MIT
#include "ftp/listing/FtpListing.h"
#include "fuzz/fuzzing.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto files = vell::ParseListing(vell::fuzz::textOf(data, size), 2004);
    vell::fuzz::must(static_cast<std::size_t>(files.Count()) <= size);
    for (const auto& file : files) {
        vell::fuzz::must(file->FileName.size() <= size);
        const auto day = file->LastWriteTime.Day;
        vell::fuzz::must(day == vell::Date{} || day.isReal());
    }
    return 0;
}
