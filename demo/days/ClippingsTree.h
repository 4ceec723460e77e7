// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Date.h"

namespace vell::demo {

// One article of a day, as the day's table describes it. Texts are in code page 1253.
struct Clipping {
    std::string File;  // of the page form, upper case: "ANEM01_20040307.PDF"
    std::string Newspaper;
    std::string Title;
    std::string Category;
    std::string Type;
    std::string Change;
    std::array<std::uintmax_t, 3> Sizes{};  // of the .PDF, .TXT and .MT forms; 0 for one that is missing
};

// A day's table as it could be read, and what could not.
struct DayTable {
    std::vector<Clipping> Clippings;    // in the byte order of their names
    std::vector<std::string> Problems;  // UTF-8, one line each
};

// The folder that everything is served from. It is read anew for each question, so an edit counts at once:
//   users.tsv, ADVERTISMENT.JPG, upload/, and for each day ddmmyyyy/ with clippings.tsv, alert.txt and the files.
class ClippingsTree {
  public:
    static constexpr std::string_view AdvertisementName = "ADVERTISMENT.JPG";
    static constexpr std::string_view TableName = "clippings.tsv";
    static constexpr std::string_view AlertName = "alert.txt";
    static constexpr std::string_view UsersName = "users.tsv";
    static constexpr std::string_view UploadName = "upload";

    explicit ClippingsTree(std::filesystem::path root) : root_(std::move(root)) {}

    [[nodiscard]] const std::filesystem::path& root() const { return root_; }
    [[nodiscard]] std::filesystem::path dayFolder(const Date& day) const { return root_ / day.folderName(); }

    [[nodiscard]] bool isUser(std::string_view name, std::string_view password) const;
    // Newest first.
    [[nodiscard]] std::vector<Date> days() const;
    [[nodiscard]] DayTable table(const Date& day) const;
    // Empty when the day has none.
    [[nodiscard]] std::string alert(const Date& day) const;

    [[nodiscard]] std::optional<std::filesystem::path> advertisement() const;
    // A form of a clipping of that day's table. Nothing else in the folder is found by this.
    [[nodiscard]] std::optional<std::filesystem::path> articleFile(const Date& day, std::string_view name) const;
    // The same from the newest day that has it.
    [[nodiscard]] std::optional<std::filesystem::path> articleFile(std::string_view name) const;

  private:
    std::filesystem::path root_;
};

// "X.PDF" with another ending: formName("X.PDF", ".MT") is "X.MT".
[[nodiscard]] std::string formName(std::string_view pdfName, std::string_view ending);

}  // namespace vell::demo
