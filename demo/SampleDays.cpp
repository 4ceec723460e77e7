// SPDX-License-Identifier: MIT
#include "demo/SampleDays.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <string_view>

#include "base/text.h"
#include "demo/ArticlePage.h"
#include "demo/ClippingsTree.h"
#include "demo/SampleArticles.h"
#include "demo/SamplePictures.h"
#include "demo/TsvTable.h"

namespace vell::demo {

namespace fs = std::filesystem;

namespace {

// Lists the folders of the sample days, one in each line; its presence says that the tree was made here.
constexpr const char* listName = "sample-days.txt";

// How many days before today the sample days lie. Yesterday has none, so that a range holds an empty day.
constexpr std::array<int, sampleSets> daysBack{0, 2, 3};

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

std::string dateLine(const Date& day, bool isGreek) {
    static constexpr std::array<std::array<const char*, 7>, 2> weekdays{
        {{"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"},
         {"Δευτέρα", "Τρίτη", "Τετάρτη", "Πέμπτη", "Παρασκευή", "Σάββατο", "Κυριακή"}}};
    static constexpr std::array<std::array<const char*, 12>, 2> months{
        {{"January", "February", "March", "April", "May", "June", "July", "August", "September", "October", "November",
          "December"},
         {"Ιανουαρίου", "Φεβρουαρίου", "Μαρτίου", "Απριλίου", "Μαΐου", "Ιουνίου", "Ιουλίου", "Αυγούστου", "Σεπτεμβρίου",
          "Οκτωβρίου", "Νοεμβρίου", "Δεκεμβρίου"}}};
    const std::size_t language = isGreek ? 1 : 0;
    return weekdays[language][static_cast<std::size_t>(day.weekday() - 1)] + std::string(", ") +
           std::to_string(day.Day) + " " + months[language][static_cast<std::size_t>(day.Month - 1)] + " " +
           std::to_string(day.Year);
}

// From small to large, so that progress shows.
const std::vector<Picture>& pressPictures() {
    static const std::vector<Picture> pictures{
        pressPicture(Motif::Harbour, 480, 2), pressPicture(Motif::City, 420, 3), pressPicture(Motif::WindPark, 600, 2),
        pressPicture(Motif::Chart, 360, 3),   pressPicture(Motif::City, 660, 1), pressPicture(Motif::Harbour, 300, 3)};
    return pictures;
}

std::string codePage(std::string_view utf8) {
    return codePageFromUtf8Lossy(utf8);
}

// Three sentences make a paragraph.
std::vector<std::string> paragraphsOf(const SampleArticle& sample) {
    std::vector<std::string> paragraphs;
    for (std::size_t i = 1; i < sample.Sentences.size(); ++i) {
        if (i % 3 == 1) paragraphs.emplace_back();
        paragraphs.back().append(paragraphs.back().empty() ? "" : " ").append(codePage(sample.Sentences[i]));
    }
    return paragraphs;
}

Article articleOf(const SampleArticle& sample, const Date& day) {
    Article article{codePage(sample.Newspaper),
                    codePage(dateLine(day, sample.IsGreek)),
                    codePage((sample.IsGreek ? "Σελίδα " : "Page ") + std::to_string(sample.Page)),
                    codePage(sample.Title),
                    codePage(sample.Sentences.front()),
                    paragraphsOf(sample),
                    codePage(sample.IsGreek ? "Εικόνα του συνεργάτη μας." : "Picture by our correspondent."),
                    nullptr};
    if (sample.Picture >= 0) article.Image = &pressPictures()[static_cast<std::size_t>(sample.Picture)];
    return article;
}

std::string textForm(const Article& article) {
    std::string text = article.Newspaper + "\r\n" + article.DateLine + ", " + article.PageLine + "\r\n\r\n";
    if (!article.Title.empty()) text += Upper(article.Title) + "\r\n\r\n";
    text += article.Lead + "\r\n";
    for (const auto& paragraph : article.Paragraphs)
        text += "\r\n" + paragraph + "\r\n";
    return text;
}

std::string companionForm(const SampleArticle& sample, const Date& day, const std::string& name) {
    const std::string text = "FILE: " + name + "\r\nDATE: " + day.dayName() + "\r\nNEWSPAPER: " + sample.Newspaper +
                             "\r\nPAGE: " + std::to_string(sample.Page) + "\r\nTITLE: " + sample.Title +
                             "\r\nCATEGORY: " + sample.Category + "\r\nTYPE: " + sample.Type +
                             "\r\nLANGUAGE: " + (sample.IsGreek ? "el" : "en") + "\r\n";
    return codePage(text);
}

void makeDay(const fs::path& folder, const Date& day, std::size_t set) {
    fs::create_directories(folder);
    const std::string ddmmyyyy = day.folderName();
    const std::string yyyymmdd = ddmmyyyy.substr(4) + ddmmyyyy.substr(2, 2) + ddmmyyyy.substr(0, 2);
    std::string table = "file\tnewspaper\ttitle\tcategory\ttype\tchange\r\n";
    for (const auto& sample : sampleArticles(set)) {
        const std::string name = sample.Name + "_" + yyyymmdd + ".PDF";
        const Article article = articleOf(sample, day);
        write(folder / name, articlePage(article));
        write(folder / formName(name, ".TXT"), textForm(article));
        write(folder / formName(name, ".MT"), companionForm(sample, day, name));
        for (const auto& cell : {name, sample.Newspaper, sample.Title, sample.Category, sample.Type})
            table += cell + "\t";
        table += yyyymmdd + "0630\r\n";
    }
    write(folder / ClippingsTree::TableName, table);
    if (const std::string alert = sampleAlert(set); !alert.empty()) write(folder / ClippingsTree::AlertName, alert);
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

void prepareTree(const fs::path& root, const Date& today) {
    fs::create_directories(root);
    const bool isNew = fs::is_empty(root);
    fs::create_directories(root / ClippingsTree::UploadName);
    if (!isNew && !fs::exists(root / listName)) return;
    std::vector<Date> wanted(daysBack.size());
    std::transform(daysBack.begin(), daysBack.end(), wanted.begin(), [&](int back) { return today.plusDays(-back); });
    if (isNew) {
        write(root / ClippingsTree::UsersName, "user\tpassword\r\ndemo\tdemo\r\n");
        write(root / ClippingsTree::AdvertisementName, advertisementPicture());
    }
    removeOutdated(root, wanted);
    std::string list;
    for (std::size_t set = 0; set < sampleSets; ++set) {
        const fs::path folder = root / wanted[set].folderName();
        if (!fs::exists(folder)) makeDay(folder, wanted[set], set);
        list += wanted[set].folderName() + "\r\n";
    }
    write(root / listName, list);
}

}  // namespace vell::demo
