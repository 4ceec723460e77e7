// SPDX-License-Identifier: MIT
#include "config/frmSchedule.h"

#include <array>
#include <string>
#include <utility>

#include "base/text.h"
#include "config/Schedule.h"
#include "config/ScheduleView.h"
#include "config/Settings.h"
#include "config/modIni.h"
#include "platform/MessageBoxes.h"
#include "platform/Translations.h"

namespace vell {

namespace {
constexpr std::string_view inputTitle = "Schedule Time";
constexpr std::string_view invalidTime = "Invalid time entered";
constexpr std::array everyDay{true, true, true, true, true, true, true};
}  // namespace

frmSchedule::frmSchedule(Settings& settings, modIni& ini, MessageBoxes& boxes, ErrorLog& log, const Translations& words)
    : settings_(settings), ini_(ini), boxes_(boxes), log_(log), words_(words) {}

bool frmSchedule::Form_Load() {
    const bool isRead = GetSchedule(settings_, ini_, log_);
    rows_ = loaded_ = settings_.ScheduleList;
    if (!isRead) refuse("Error! The schedule could not be read from the settings file");
    return isRead;
}

void frmSchedule::cmdAddSchedule_Click(ScheduleView& view) {
    std::string typed;
    while (const auto answer = view.InputBox("Enter a valid time in the format HH:MM ie. 15:30", inputTitle, typed)) {
        typed = completedTime(*answer);
        if (IsTimeValid(typed)) {
            add({everyDay, typed});
            return;
        }
        if (!typed.empty()) refuse(invalidTime);
        view.Beep();
        if (typed.empty()) return;
    }
}

void frmSchedule::cmdEdit_Click(ScheduleView& view, std::optional<std::size_t> row) {
    if (rows_.empty() || !isChosen(row)) return;
    std::string typed = rows_[*row].Time;
    while (const auto answer = view.InputBox("Enter a valid time", inputTitle, typed)) {
        typed = completedTime(*answer);
        if (IsTimeValid(typed)) {
            rows_[*row].Time = typed;
            return;
        }
        refuse(invalidTime);
    }
}

void frmSchedule::cmdDelSchedule_Click(std::optional<std::size_t> row) {
    if (rows_.size() == 1)
        rows_.clear();
    else if (!rows_.empty() && isChosen(row))
        rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(*row));
}

bool frmSchedule::isChosen(std::optional<std::size_t> row) {
    if (row && *row < rows_.size()) return true;
    refuse(words_.translate("Choose an entry of the schedule first."));
    return false;
}

void frmSchedule::grdSchedule_Click(ScheduleView& view, std::size_t row, std::size_t column) {
    if (row >= rows_.size()) return;
    if (column < scheduleDays.size())
        rows_[row].Days[column] = !rows_[row].Days[column];
    else if (column == timeColumn)
        cmdEdit_Click(view, row);
}

void frmSchedule::add(ScheduleEntry entry) {
    rows_.push_back(std::move(entry));
}

bool frmSchedule::cmdOk_Click() {
    const bool written = write();
    GetSchedule(settings_, ini_, log_);
    if (written)
        rows_ = loaded_ = settings_.ScheduleList;
    else
        refuse("Error! The schedule could not be saved");
    return written;
}

bool frmSchedule::write() {
    return ini_.VellIniWriteStrings([&] {
        std::vector<IniEdit> edits{{std::string(scheduleSection), std::nullopt, std::nullopt}};
        for (const ScheduleEntry& entry : mergedSchedule(loaded_, storedSchedule(ini_), rows_))
            edits.push_back({std::string(scheduleSection), scheduleKey(edits.size()), storedTextOf(entry)});
        return edits;
    });
}

void frmSchedule::refuse(std::string_view message) {
    boxes_.Show(message, programCaption, Buttons::Ok, BoxIcon::None);
}

}  // namespace vell
