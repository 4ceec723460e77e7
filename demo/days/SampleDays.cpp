// SPDX-License-Identifier: MIT
#include "demo/days/SampleDays.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <string_view>

#include "base/text.h"
#include "demo/days/ClippingsTree.h"
#include "demo/days/TsvTable.h"
#include "platform/Arguments.h"

namespace vell::demo {

namespace fs = std::filesystem;

namespace {

// Lists the folders of the sample days, one in each line; its presence says that the tree was made here.
constexpr const char* listName = "sample-days.txt";

// A folder of the samples, and how many days before today it is served. Yesterday has none, so that a range holds an
// empty day.
struct SampleDay {
    const char* Folder;
    int DaysBack;
};
constexpr std::array<SampleDay, 3> sampleDays{{{"first", 0}, {"second", 2}, {"third", 3}}};

void write(const fs::path& file, std::string_view bytes) {
    std::ofstream stream;
    stream.exceptions(std::ios::failbit | std::ios::badbit);
    try {
        stream.open(file, std::ios::binary);
        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        stream.close();
    } catch (const std::ios::failure&) {
        throw fs::filesystem_error("cannot write", file, std::make_error_code(std::errc::io_error));
    }
}

std::string bytesOf(const fs::path& file) {
    if (fs::file_size(file) == 0)
        throw fs::filesystem_error("empty", file, std::make_error_code(std::errc::no_message_available));
    return fileText(file);
}

// "ANEM01.PDF" of the samples becomes "ANEM01_20040307.PDF": files of the service carry their day before the ending.
struct Naming {
    Date Day;
    std::string Suffix;

    explicit Naming(const Date& day) : Day(day) {
        const std::string ddmmyyyy = day.folderName();
        Suffix = ddmmyyyy.substr(4) + ddmmyyyy.substr(2, 2) + ddmmyyyy.substr(0, 2);
    }
    [[nodiscard]] std::string pdfName(std::string_view base) const { return std::string(base) + "_" + Suffix + ".PDF"; }
};

void copyClipping(const fs::path& sample, const fs::path& folder, const std::string& base, const Naming& naming) {
    const std::string name = naming.pdfName(base);
    write(folder / name, bytesOf(sample / "pdf" / (base + ".PDF")));
    write(folder / formName(name, ".TXT"), bytesOf(sample / "txt" / (base + ".TXT")));
    write(folder / formName(name, ".MT"),
          "FILE: " + name + "\r\nDATE: " + naming.Day.dayName() + "\r\n" + bytesOf(sample / "mt" / (base + ".MT")));
}

// The table of the sample with the names and the change field of this day.
void makeDay(const fs::path& sample, const fs::path& folder, const Date& day) {
    fs::create_directories(folder);
    const Naming naming(day);
    std::string table;
    const std::string lines = bytesOf(sample / ClippingsTree::TableName);
    for (auto line : Split(lines, "\r\n")) {
        const auto ending = line.find(".PDF\t");
        if (table.empty()) {
            table.append(line).append("\tchange\r\n");
        } else if (ending != std::string_view::npos) {
            const std::string base(line.substr(0, ending));
            copyClipping(sample, folder, base, naming);
            table.append(naming.pdfName(base))
                .append(line.substr(ending + 4))
                .append("\t" + naming.Suffix + "0630\r\n");
        }
    }
    write(folder / ClippingsTree::TableName, table);
    if (const fs::path alert = sample / ClippingsTree::AlertName; fs::exists(alert))
        write(folder / ClippingsTree::AlertName, bytesOf(alert));
}

bool wasChangedAfter(const fs::path& folder, fs::file_time_type moment) {
    if (fs::last_write_time(folder) > moment) return true;
    return std::any_of(fs::directory_iterator(folder), fs::directory_iterator{},
                       [&](const fs::directory_entry& entry) { return entry.last_write_time() > moment; });
}

// The sample days of an earlier start that nobody has touched since then, and that today has no use for.
void removeOutdated(const fs::path& root, const std::vector<Date>& wanted) {
    const std::string text = Replace(fileText(root / listName), "\r", "");
    for (auto name : Split(text, "\n")) {
        const auto day = Date::fromFolderName(name);
        if (!day || std::find(wanted.begin(), wanted.end(), *day) != wanted.end()) continue;
        if (fs::is_directory(root / name) && !wasChangedAfter(root / name, fs::last_write_time(root / listName)))
            fs::remove_all(root / name);
    }
}

}  // namespace

void prepareTree(const fs::path& root, const Date& today, const fs::path& samples) {
    fs::create_directories(root);
    const bool isNew = fs::is_empty(root);
    if (!isNew && !fs::exists(root / listName)) {
        fs::create_directories(root / ClippingsTree::UploadName);
        return;
    }
    if (isNew) {
        const std::string advertisement = bytesOf(samples / ClippingsTree::AdvertisementName);
        write(root / ClippingsTree::UsersName, "user\tpassword\r\ndemo\tdemo\r\n");
        write(root / ClippingsTree::AdvertisementName, advertisement);
    }
    fs::create_directories(root / ClippingsTree::UploadName);
    std::vector<Date> wanted;
    std::string list;
    for (const auto& sample : sampleDays) {
        wanted.push_back(today.plusDays(-sample.DaysBack));
        list += wanted.back().folderName() + "\r\n";
    }
    removeOutdated(root, wanted);
    for (std::size_t i = 0; i < sampleDays.size(); ++i)
        if (const fs::path folder = root / wanted[i].folderName(); !fs::exists(folder))
            makeDay(samples / sampleDays[i].Folder, folder, wanted[i]);
    write(root / listName, list);
}

fs::path installedSamples() {
    return (programPath().parent_path() / VELL_DEMO_SAMPLES).lexically_normal();
}

}  // namespace vell::demo
