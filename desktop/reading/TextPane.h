// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>
#include <utility>

#include <wx/panel.h>

#include "ui/find/FindQuery.h"
#include "ui/reading/ReadingView.h"

class wxKeyEvent;
class wxTextCtrl;

namespace vell {

// The text of one clipping, wrapped and to be selected, under its title, newspaper, page and date.
class TextPane : public wxPanel, public ReadingView {
  public:
    struct Events {
        std::function<void()> PagedOn;   // with the blank
        std::function<void()> Entered;   // the clipping is to be opened
        std::function<void()> LeftBack;  // with Escape
    };
    explicit TextPane(wxWindow* parent);

    void listenTo(Events events) { events_ = std::move(events); }
    // The words that are looked for are marked in whatever text is shown.
    void showFound(const FindQuery& query);
    // The next page of the text; false at its end.
    [[nodiscard]] bool pageOn();

    void clearText() override;
    void beginText(const ClippingHeading& heading) override;
    void appendText(std::string_view lines) override;
    void showTextNotice(std::string_view text) override;

  private:
    void onKey(wxKeyEvent& event);
    void addTitle(const wxString& title);
    void markFound();
    void addFaint(const wxString& text);

    Events events_;
    FindQuery found_;
    wxTextCtrl* text_;
};

}  // namespace vell
