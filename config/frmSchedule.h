// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "base/errors.h"
#include "config/ScheduleEntry.h"

namespace vell {

class MessageBoxes;
class ScheduleView;
class Translations;
class modIni;
struct Settings;

// What the schedule dialog decides. It works on rows of its own; only OK writes them. Rows are counted from 0, the
// caption row apart; columns 0 to 6 are the days and column 7 is the time.
class frmSchedule {
  public:
    frmSchedule(Settings& settings, modIni& ini, MessageBoxes& boxes, ErrorLog& log, const Translations& words);

    static constexpr std::size_t timeColumn = 7;

    // False, with a message, when the stored schedule could not be read; the rows are those of the session.
    bool Form_Load();
    [[nodiscard]] const std::vector<ScheduleEntry>& rows() const { return rows_; }

    // Both ask for a time until it is one, or the user gives up; a wrong one stays in the box. A new row is active on
    // every day.
    void cmdAddSchedule_Click(ScheduleView& view);
    void cmdEdit_Click(ScheduleView& view, std::optional<std::size_t> row);
    // The only row goes whether it is the chosen one or not.
    void cmdDelSchedule_Click(std::optional<std::size_t> row);
    // Switches a day on or off, or edits the time.
    void grdSchedule_Click(ScheduleView& view, std::size_t row, std::size_t column);

    // Adds a row as it is.
    void add(ScheduleEntry entry);

    // Replaces the stored schedule by the rows, with what another program has changed in it meanwhile, and loads it.
    // False, with a message, when the file could not be written; the rows stay.
    [[nodiscard]] bool cmdOk_Click();

  private:
    [[nodiscard]] bool write();
    void refuse(std::string_view message);
    // Tells the user to choose a row when none is.
    [[nodiscard]] bool isChosen(std::optional<std::size_t> row);

    Settings& settings_;
    modIni& ini_;
    MessageBoxes& boxes_;
    ErrorLog& log_;
    const Translations& words_;
    std::vector<ScheduleEntry> loaded_;  // what was stored when the rows were read
    std::vector<ScheduleEntry> rows_;
};

}  // namespace vell
