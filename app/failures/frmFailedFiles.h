// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "app/failures/FailedFile.h"

namespace vell {

class ErrorLog;
class FailedFiles;
class Files;
class Translations;

// The rules of the dialog that lists the files which have not come, as they are when it is opened.
class frmFailedFiles {
  public:
    // `downloadFolder` holds the days' folders; no backslash at its end.
    frmFailedFiles(const FailedFiles& failed, const Files& disk, const std::string& downloadFolder,
                   const Translations& words, ErrorLog& log);

    struct Row {
        std::string Day;    // dd/mm/yyyy
        std::string Title;  // of its clipping
        std::string File;
        std::string Cause;
    };
    // In the order in which they failed.
    [[nodiscard]] const std::vector<Row>& rows() const { return rows_; }
    // The files of those rows, counted from 0; all when none is named.
    [[nodiscard]] std::vector<FailedFile> filesOf(const std::vector<std::size_t>& chosen) const;

  private:
    std::vector<FailedFile> files_;
    std::vector<Row> rows_;
};

}  // namespace vell
