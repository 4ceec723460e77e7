// SPDX-License-Identifier: MIT
#include "service/DownloadList.h"

#include <array>
#include <utility>

#include "base/text.h"
#include "config/Settings.h"
#include "platform/Files.h"
#include "platform/MessageBoxes.h"
#include "service/FailureLog.h"
#include "service/ListAnswer.h"
#include "service/ListMerge.h"
#include "service/RunFeedback.h"
#include "service/WebPage.h"
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

bool DownloadList::GetDownloadFiles() {
    FailureLog log(p_.Log, p_.Feedback);
    return trap(log, "GetDownloadFiles()", false, [&] { return getList(); });
}

bool DownloadList::getList() {
    p_.Downloads = {};
    std::optional<ListAnswer> answer;
    do {
        answer = ask();
        if (!answer) return false;
    } while (answer->What == ListAnswer::Kind::LoginRefused && mayAskAgain());
    for (const std::string& record : answer->Dropped)
        p_.Log.WriteLog("        A record of the list was dropped, it names no file of a clipping: '" + record + "'");
    switch (answer->What) {
        case ListAnswer::Kind::LoginRefused:
            p_.Feedback.failed({Cause::LoginRefused});
            return false;
        case ListAnswer::Kind::NoList:
            p_.Log.WriteLog("        The answer is no list of clippings, " + answer->Fault);
            p_.Feedback.failed({Cause::NoList, answer->Fault});
            return false;
        case ListAnswer::Kind::Silence:
            p_.Downloads.ServiceWasSilent = true;
            fillDownloadList({}, {});
            return true;
        case ListAnswer::Kind::NothingForTheDay:
        case ListAnswer::Kind::List:
            break;
    }
    p_.Downloads.DroppedRecords = static_cast<std::int32_t>(answer->Dropped.size());
    fillDownloadList(answer->Records, storeIndex(answer->Records));
    return true;
}

std::optional<ListAnswer> DownloadList::ask() {
    std::string body;
    std::string headers;
    const bool answered = p_.Http.OpenUrl("POST", p_.Setup.Host, listScript, listRequest(), body, headers);
    if (p_.Setup.Debug >= 1) p_.Boxes.Show(body, programCaption, Buttons::Ok, BoxIcon::None);
    if (!answered) return std::nullopt;
    p_.Feedback.StatusBar("Getting list of files to download: Done");
    return readListAnswer(body);
}

bool DownloadList::mayAskAgain() {
    if (p_.Boxes.Show("Please enter a correct username/password combination.",
                      "Incorrect username/password combination", Buttons::OkCancel, BoxIcon::None) != Answer::Ok)
        return false;
    p_.Feedback.openSetup();
    return true;
}

std::string DownloadList::listRequest() const {
    return "username=" + p_.Setup.Uid + "&password=" + p_.Setup.Pwd + "&" + dayFields(p_.Day.gCurrentDate, "1") + "&" +
           dayFields(p_.Day.gCurrentDate, "2") + "&vellVersion=" + p_.Version;
}

Merged DownloadList::storeIndex(const std::vector<std::string>& records) {
    const std::string path = p_.Day.gDayFolder + std::string(indexFileName);
    Merged merged = mergeInto(path, records);
    for (const std::string& name : merged.GoneFiles) {
        p_.Log.WriteLog("        The service does not list " + name + " any more");
        p_.Store.DeleteArticleFiles(name);
    }
    return merged;
}

Merged DownloadList::mergeInto(const std::string& path, const std::vector<std::string>& records) {
    const auto lock = p_.Disk.Lock(path);
    Merged merged = mergeWithIndex(records, p_.Disk.PathExists(path) ? p_.Disk.ReadFile(path) : std::string());
    p_.Disk.WriteWhole(path, merged.Index, Durability::Flushed);
    return merged;
}

void DownloadList::fillDownloadList(const std::vector<std::string>& records, const Merged& merged) {
    append({.FileName = advertisementFile, .Size = advertisementSize, .Change = {}});
    for (const std::string& record : records) {
        if (record.empty()) continue;
        ++p_.Downloads.gClippingsCount;
        const std::string name(indexKey(record));
        const std::string change(indexChange(record));
        auto forms = clippingForms(name);
        for (std::size_t i = 0; i < forms.size(); ++i)
            append({.FileName = std::move(forms[i]),
                    .Size = indexSize(record, sizeFields[i]),
                    .Change = change,
                    .IsNew = merged.NewFiles.contains(name),
                    .IsOutdated = merged.ChangedFiles.contains(name)});
    }
}

void DownloadList::append(DownloadEntry entry) {
    p_.Downloads.gTotalBytes += entry.Size;
    p_.Downloads.gDownloadList.push_back(std::move(entry));
}

bool DownloadList::GetAlert() {
    return trap(p_.Log, "GetAlert()", false, [&] {
        std::string body;
        std::string headers;
        if (!p_.Http.OpenUrl("POST", p_.Setup.Host, alertScript, dayFields(p_.Day.gCurrentDate, ""), body, headers))
            return false;
        const std::string_view alert = Trim(body);
        if (alert.empty()) return false;
        if (isWebPage(alert)) {
            p_.Log.WriteLog("        A web page came in place of the alert.");
            return false;
        }
        const std::string path = p_.Day.gDayFolder + std::string(alertFileName);
        const std::string stored = std::string(alert) + "\r\n";
        p_.Downloads.HasNewAlert = !p_.Disk.PathExists(path) || p_.Disk.ReadFile(path) != stored;
        p_.Disk.WriteWhole(path, stored, Durability::Rename);
        return true;
    });
}

}  // namespace vell
