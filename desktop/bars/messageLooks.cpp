// SPDX-License-Identifier: MIT
#include "desktop/bars/messageLooks.h"

#include <wx/arrstr.h>
#include <wx/settings.h>
#include <wx/translation.h>

#include "base/Date.h"
#include "config/ScheduleEntry.h"
#include "desktop/screenText.h"

namespace vell {

namespace {
constexpr std::size_t mostLines = 4;
constexpr std::size_t longestLine = 300;
}  // namespace

wxString firstLines(std::string_view text) {
    wxString shown;
    std::size_t lines = 0;
    for (const wxString& line : wxSplit(shownText(text), '\n', '\0')) {
        if (line.Strip(wxString::both).empty()) continue;
        if (lines++ == mostLines) return shown + " ...";
        shown += (shown.empty() ? "" : "\n") + line.Left(longestLine);
    }
    return shown;
}

wxColour backColour(Message::Kind kind) {
    const bool isDark = wxSystemSettings::GetAppearance().IsDark();
    if (kind == Message::Kind::Failure) return isDark ? wxColour(96, 32, 32) : wxColour(253, 228, 225);
    return isDark ? wxColour(92, 74, 0) : wxColour(255, 244, 206);
}

wxString whenText(const LocalTime& when) {
    const std::string_view day = scheduleDays[static_cast<std::size_t>(when.Day.weekday()) - 1];
    return wxGetTranslation(shownLine(day)) + " " + shownLine(when.hourMinute());
}

}  // namespace vell
