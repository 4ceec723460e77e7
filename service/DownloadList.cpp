// SPDX-License-Identifier: MIT
#include "service/DownloadList.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/text.h"
#include "config/Settings.h"
#include "platform/Files.h"
#include "platform/MessageBoxes.h"
#include "service/ListMerge.h"
#include "service/RunFeedback.h"
#include "service/modHTTP.h"
#include "store/ClippingName.h"
#include "store/DayState.h"
#include "store/IndexFile.h"
#include "store/IndexLine.h"
#include "store/modGlobal.h"

namespace vell {

namespace {

constexpr std::string_view listScript = "/vell/vellClipsToDownload.asp";
constexpr std::string_view alertScript = "/sources.asp";
constexpr std::int32_t advertisementSize = 17855;
constexpr int refusedLogin = 1001;
constexpr int nothingForTheDay = 1002;
constexpr std::size_t shownOfBadRecord = 80;

// The fields with the sizes of a clipping's three forms.
constexpr std::array sizeFields{IndexField::PdfSize, IndexField::TextSize, IndexField::CompanionSize};

// The form fields that name a day: "dd", "mm" and "yyyy", each with this at its end.
std::string dayFields(const Date& day, std::string_view suffix) {
    const std::string name = day.folderName();
    const auto field = [&](std::string_view key, std::size_t start, std::size_t length) {
        return std::string(key).append(suffix).append("=").append(Mid(name, start, length));
    };
    return field("dd", 1, 2) + "&" + field("mm", 3, 2) + "&" + field("yyyy", 5, 4);
}

bool isEmpty(const std::string& record) {
    return record.empty();
}

bool holdNothing(const std::vector<std::string>& records) {
    return std::all_of(records.begin(), records.end(), isEmpty);
}

}  // namespace

DownloadList::DownloadList(modHTTP& http, modGlobal& store, Files& files, MessageBoxes& boxes, RunFeedback& feedback,
                           EventLog& log, const Settings& settings, const DayState& day, DownloadState& state,
                           std::string version)
    : http_(http),
      store_(store),
      files_(files),
      boxes_(boxes),
      feedback_(feedback),
      log_(log),
      settings_(settings),
      day_(day),
      state_(state),
      version_(std::move(version)) {}

bool DownloadList::GetDownloadFiles() {
    return trap(log_, "GetDownloadFiles()", false, [&] { return getList(); });
}

bool DownloadList::getList() {
    state_ = {};
    std::vector<std::string> records;
    Verdict verdict = Verdict::AskAgain;
    while (verdict == Verdict::AskAgain) {
        std::string body;
        std::string headers;
        const bool answered = http_.OpenUrl("POST", settings_.Host, listScript, listRequest(), body, headers);
        if (settings_.Debug >= 1) boxes_.Show(body, programCaption, Buttons::Ok, BoxIcon::None);
        if (!answered) return false;
        feedback_.StatusBar("Getting list of files to download: Done");
        records = answerRecords(body);
        verdict = judge(records);
    }
    if (verdict == Verdict::Refused) return false;
    const auto changed = storeIndex(records);
    fillDownloadList(records, changed);
    return true;
}

std::string DownloadList::listRequest() const {
    return "username=" + settings_.Uid + "&password=" + settings_.Pwd + "&" + dayFields(day_.gCurrentDate, "1") + "&" +
           dayFields(day_.gCurrentDate, "2") + "&vellVersion=" + version_;
}

DownloadList::Verdict DownloadList::judge(std::vector<std::string>& records) {
    if (!records.empty() && records.front().starts_with("ERROR")) {
        const double code = Val(Mid(records.front(), 7));
        if (code == refusedLogin) {
            const Answer answer =
                boxes_.Show("Please enter a correct username/password combination.",
                            "Incorrect username/password combination", Buttons::OkCancel, BoxIcon::None);
            if (answer != Answer::Ok) return Verdict::Refused;
            feedback_.openSetup();
            return Verdict::AskAgain;
        }
        if (code == nothingForTheDay) {
            records.assign(1, "");
            return Verdict::Usable;
        }
    }
    if (holdNothing(records)) {
        // The service says nothing where it would have said that the day is empty: no reason to remove an article.
        records.clear();
        return Verdict::Usable;
    }
    const std::string first = records.front();
    dropBadRecords(records);
    if (!holdNothing(records)) return Verdict::Usable;
    log_.WriteLog("        The answer is no list of clippings: '" + first.substr(0, shownOfBadRecord) + "'");
    return Verdict::Refused;
}

void DownloadList::dropBadRecords(std::vector<std::string>& records) {
    std::erase_if(records, [&](const std::string& record) {
        if (record.empty() || (indexFields(record).size() > 1 && isClippingName(indexKey(record)))) return false;
        log_.WriteLog("        A record of the list was dropped, it names no file of a clipping: '" +
                      record.substr(0, shownOfBadRecord) + "'");
        return true;
    });
}

std::unordered_set<std::string> DownloadList::storeIndex(std::vector<std::string>& records) {
    const std::string path = day_.gDayFolder + std::string(indexFileName);
    std::unordered_set<std::string> changed;
    if (!records.empty() && files_.PathExists(path)) {
        Merged merged = mergeWithIndex(std::move(records), files_.ReadFile(path));
        for (const std::string& name : merged.GoneFiles)
            if (isClippingName(name)) store_.DeleteArticleFiles(name);
        records = std::move(merged.Records);
        changed = std::move(merged.ChangedFiles);
    }
    std::string text;
    for (const std::string& record : records)
        appendIndexLine(text, record);
    files_.WriteWhole(path, text, Durability::Rename);
    state_.gClippingsCount = static_cast<std::int32_t>(
        records.size() - static_cast<std::size_t>(std::count_if(records.begin(), records.end(), isEmpty)));
    return changed;
}

void DownloadList::fillDownloadList(const std::vector<std::string>& records,
                                    const std::unordered_set<std::string>& changed) {
    state_.gDownloadList.push_back({.FileName = advertisementFile, .Size = advertisementSize, .Change = {}});
    for (const std::string& record : records) {
        if (record.empty()) continue;
        const std::string name(indexKey(record));
        const std::string change(indexField(record, IndexField::Change));
        auto forms = clippingForms(name);
        for (std::size_t i = 0; i < forms.size(); ++i)
            append({std::move(forms[i]), indexSize(record, sizeFields[i]), change, changed.contains(name)});
    }
}

void DownloadList::append(DownloadEntry entry) {
    state_.gTotalBytes += entry.Size;
    state_.gDownloadList.push_back(std::move(entry));
}

bool DownloadList::GetAlert() {
    return trap(log_, "GetAlert()", false, [&] {
        std::string body;
        std::string headers;
        if (!http_.OpenUrl("POST", settings_.Host, alertScript, dayFields(day_.gCurrentDate, ""), body, headers))
            return false;
        const std::string_view alert = Trim(body);
        if (alert.empty()) return false;
        files_.WriteWhole(day_.gDayFolder + std::string(alertFileName), std::string(alert) + "\r\n",
                          Durability::Rename);
        return true;
    });
}

}  // namespace vell
