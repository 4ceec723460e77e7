// SPDX-License-Identifier: MIT
#include "service/DownloadList.h"

#include <array>
#include <utility>

#include "base/text.h"
#include "config/Settings.h"
#include "platform/Files.h"
#include "platform/MessageBoxes.h"
#include "service/ListAnswer.h"
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
    std::optional<ListAnswer> answer;
    do {
        answer = ask();
        if (!answer) return false;
    } while (answer->What == ListAnswer::Kind::LoginRefused && mayAskAgain());
    for (const std::string& record : answer->Dropped)
        log_.WriteLog("        A record of the list was dropped, it names no file of a clipping: '" + record + "'");
    switch (answer->What) {
        case ListAnswer::Kind::LoginRefused:
            return false;
        case ListAnswer::Kind::NoList:
            log_.WriteLog("        The answer is no list of clippings, " + answer->Fault);
            return false;
        case ListAnswer::Kind::Silence:
            state_.ServiceWasSilent = true;
            fillDownloadList({}, {});
            return true;
        case ListAnswer::Kind::NothingForTheDay:
        case ListAnswer::Kind::List:
            break;
    }
    state_.DroppedRecords = static_cast<std::int32_t>(answer->Dropped.size());
    fillDownloadList(answer->Records, storeIndex(answer->Records));
    return true;
}

std::optional<ListAnswer> DownloadList::ask() {
    std::string body;
    std::string headers;
    const bool answered = http_.OpenUrl("POST", settings_.Host, listScript, listRequest(), body, headers);
    if (settings_.Debug >= 1) boxes_.Show(body, programCaption, Buttons::Ok, BoxIcon::None);
    if (!answered) return std::nullopt;
    feedback_.StatusBar("Getting list of files to download: Done");
    return readListAnswer(body);
}

bool DownloadList::mayAskAgain() {
    if (boxes_.Show("Please enter a correct username/password combination.", "Incorrect username/password combination",
                    Buttons::OkCancel, BoxIcon::None) != Answer::Ok)
        return false;
    feedback_.openSetup();
    return true;
}

std::string DownloadList::listRequest() const {
    return "username=" + settings_.Uid + "&password=" + settings_.Pwd + "&" + dayFields(day_.gCurrentDate, "1") + "&" +
           dayFields(day_.gCurrentDate, "2") + "&vellVersion=" + version_;
}

std::unordered_set<std::string> DownloadList::storeIndex(const std::vector<std::string>& records) {
    const std::string path = day_.gDayFolder + std::string(indexFileName);
    const Merged merged = mergeWithIndex(records, files_.PathExists(path) ? files_.ReadFile(path) : std::string());
    files_.WriteWhole(path, merged.Index, Durability::Rename);
    for (const std::string& name : merged.GoneFiles) {
        log_.WriteLog("        The service does not list " + name + " any more");
        store_.DeleteArticleFiles(name);
    }
    return merged.ChangedFiles;
}

void DownloadList::fillDownloadList(const std::vector<std::string>& records,
                                    const std::unordered_set<std::string>& changed) {
    append({.FileName = advertisementFile, .Size = advertisementSize, .Change = {}});
    for (const std::string& record : records) {
        if (record.empty()) continue;
        ++state_.gClippingsCount;
        const std::string name(indexKey(record));
        const std::string change(indexChange(record));
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
