// SPDX-License-Identifier: MIT
#include "demo/days/ClippingsTree.h"

#include <algorithm>

#include "base/text.h"
#include "demo/days/FileNames.h"
#include "demo/days/TsvTable.h"

namespace vell::demo {

namespace fs = std::filesystem;

namespace {

constexpr std::array<std::string_view, 3> formEndings{".PDF", ".TXT", ".MT"};

std::uintmax_t sizeOf(const fs::path& folder, std::string_view name) {
    const auto file = fileNamed(folder, name);
    return file ? fs::file_size(*file) : 0;
}

// Empty when the row describes a clipping that can be served.
std::string problemOf(const fs::path& folder, const std::string& name) {
    if (!isPlainName(name)) return "the file name \"" + utf8FromCodePage(name) + "\" is not plain ASCII without blanks";
    if (!name.ends_with(formEndings[0])) return name + " does not end in .PDF";
    if (!fileNamed(folder, name)) return "there is no file " + name;
    return {};
}

bool isForm(std::string_view pdfName, std::string_view name) {
    return std::any_of(formEndings.begin(), formEndings.end(),
                       [&](std::string_view ending) { return equalNoCase(formName(pdfName, ending), name); });
}

}  // namespace

std::string formName(std::string_view pdfName, std::string_view ending) {
    return std::string(pdfName.substr(0, pdfName.size() - formEndings[0].size())).append(ending);
}

bool ClippingsTree::isUser(std::string_view name, std::string_view password) const {
    const TsvTable users = TsvTable::read(root_ / UsersName);
    return !name.empty() && std::any_of(users.rows().begin(), users.rows().end(), [&](const TsvTable::Row& row) {
        return users.cell(row, "user") == name && users.cell(row, "password") == password;
    });
}

std::vector<Date> ClippingsTree::days() const {
    std::vector<Date> days;
    std::error_code problem;
    for (const auto& entry : fs::directory_iterator(root_, problem)) {
        const auto day = Date::fromFolderName(entry.path().filename().string());
        if (day && entry.is_directory(problem)) days.push_back(*day);
    }
    std::sort(days.rbegin(), days.rend());
    return days;
}

DayTable ClippingsTree::table(const Date& day) const {
    const fs::path folder = dayFolder(day);
    const TsvTable rows = TsvTable::read(folder / TableName);
    DayTable result;
    for (const auto& row : rows.rows()) {
        const std::string name = Upper(rows.cell(row, "file"));
        if (const std::string problem = problemOf(folder, name); !problem.empty()) {
            result.Problems.push_back(day.folderName() + "/" + std::string(TableName) + ", line " +
                                      std::to_string(row.Line) + ": " + problem + "; the line is left out");
            continue;
        }
        result.Clippings.push_back({name,
                                    rows.cell(row, "newspaper"),
                                    rows.cell(row, "title"),
                                    rows.cell(row, "category"),
                                    rows.cell(row, "type"),
                                    rows.cell(row, "change"),
                                    {}});
        std::transform(formEndings.begin(), formEndings.end(), result.Clippings.back().Sizes.begin(),
                       [&](std::string_view ending) { return sizeOf(folder, formName(name, ending)); });
    }
    std::sort(result.Clippings.begin(), result.Clippings.end(),
              [](const Clipping& a, const Clipping& b) { return a.File < b.File; });
    return result;
}

std::string ClippingsTree::alert(const Date& day) const {
    return codePageFileText(dayFolder(day) / AlertName);
}

std::optional<fs::path> ClippingsTree::advertisement() const {
    return fileNamed(root_, AdvertisementName);
}

std::optional<fs::path> ClippingsTree::articleFile(const Date& day, std::string_view name) const {
    const TsvTable rows = TsvTable::read(dayFolder(day) / TableName);
    for (const auto& row : rows.rows()) {
        const std::string pdfName = Upper(rows.cell(row, "file"));
        if (pdfName.ends_with(formEndings[0]) && isForm(pdfName, name)) return fileNamed(dayFolder(day), name);
    }
    return std::nullopt;
}

std::optional<fs::path> ClippingsTree::articleFile(std::string_view name) const {
    for (const Date& day : days())
        if (auto file = articleFile(day, name)) return file;
    return std::nullopt;
}

}  // namespace vell::demo
