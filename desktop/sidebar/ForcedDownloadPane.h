// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include <wx/panel.h>

#include "app/MainView.h"
#include "base/Date.h"

class wxButton;
class wxRadioButton;

namespace vell {

class DayPicker;

// The frame in which the user starts a download, of today or of a range of days, and stops it. Its edge shows how it
// stands: red while a download runs, green after one that ended well, orange after one that did not.
class ForcedDownloadPane : public wxPanel {
  public:
    struct Events {
        std::function<void(bool onlyToday)> RangeChosen;
        std::function<void(const Date& from)> FromChanged;
        std::function<void(const Date& to)> ToChanged;
        std::function<void(const std::string& text)> DayMistyped;
    };
    ForcedDownloadPane(wxWindow* parent, Events events);

    void show(MainView::ForcedRun state);
    [[nodiscard]] bool isRunning() const { return running_; }
    // What stands in the pickers counts, also while the keyboard is still in one. False when it had to be corrected.
    bool takeTyped();
    void showRange(const Date& from, const Date& to);

  private:
    void layOut(wxPanel& inner);
    void chooseRange();

    Events events_;
    wxRadioButton* today_ = nullptr;
    wxRadioButton* otherFrom_ = nullptr;
    DayPicker* dtFromDate_ = nullptr;
    DayPicker* dtToDate_ = nullptr;
    wxButton* cmdStartDownload_ = nullptr;
    wxButton* cmdStopDownload_ = nullptr;
    bool running_ = false;
};

}  // namespace vell
