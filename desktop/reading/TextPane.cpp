// SPDX-License-Identifier: MIT
#include "desktop/reading/TextPane.h"

#include <algorithm>

#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>
#include <wx/translation.h>

#include "desktop/native/accessibleName.h"
#include "desktop/native/appendQuietly.h"
#include "desktop/native/markPlaces.h"
#include "desktop/screenText.h"

namespace vell {

namespace {

constexpr int margin = 10;  // DIP
constexpr double titleSize = 1.25;
// Who has a longer text before them finds the words at its beginning marked; more would take its time.
constexpr long longestMarked = 100'000;
constexpr std::size_t mostMarked = 200;  // of each word

wxString detailsOf(const ClippingHeading& heading) {
    wxString details = shownLine(heading.Newspaper);
    const auto add = [&](const wxString& more) {
        details += (details.empty() ? "" : wxString::FromUTF8(" · ")) + more;
    };
    if (!heading.Page.empty()) add(wxString::Format(_("page %s"), shownLine(heading.Page)));
    if (!heading.Date.empty()) add(shownLine(heading.Date));
    return details;
}

// Fainter than text, but easier to read than what is disabled.
wxColour faintColour() {
    const wxColour text = wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT);
    const wxColour paper = wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW);
    constexpr double ink = 0.65;
    const auto mixed = [&](unsigned char a, unsigned char b) { return wxColour::AlphaBlend(a, b, ink); };
    return {mixed(text.Red(), paper.Red()), mixed(text.Green(), paper.Green()), mixed(text.Blue(), paper.Blue())};
}

}  // namespace

TextPane::TextPane(wxWindow* parent)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxBORDER_THEME),
      text_(new wxTextCtrl(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                           wxTE_MULTILINE | wxTE_READONLY | wxTE_RICH2 | wxTE_BESTWRAP | wxBORDER_NONE)) {
    SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW));
    setAccessibleName(*text_, _("Text"));
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(text_, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(margin)));
    SetSizer(sizer);
    text_->Bind(wxEVT_KEY_DOWN, &TextPane::onKey, this);
}

void TextPane::onKey(wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    const bool isPlain = !event.HasAnyModifiers();
    if (key == WXK_SPACE && event.GetModifiers() == wxMOD_SHIFT)
        text_->ScrollPages(-1);
    else if (key == WXK_SPACE && isPlain)
        events_.PagedOn();
    else if ((key == WXK_RETURN || key == WXK_NUMPAD_ENTER) && isPlain)
        events_.Entered();
    else if (key == WXK_ESCAPE && isPlain)
        events_.LeftBack();
    else
        event.Skip();
}

bool TextPane::pageOn() {
    return text_->ScrollPages(1);
}

void TextPane::clearText() {
    text_->Clear();
}

void TextPane::beginText(const ClippingHeading& heading) {
    text_->Clear();
    if (!heading.Title.empty()) addTitle(shownLine(heading.Title));
    if (const wxString details = detailsOf(heading); !details.empty()) addFaint(details + "\n\n");
    text_->SetInsertionPoint(0);
}

void TextPane::addTitle(const wxString& title) {
    text_->SetDefaultStyle(wxTextAttr(wxNullColour, wxNullColour, text_->GetFont().Bold().Scaled(titleSize)));
    text_->AppendText(title + "\n");
    text_->SetDefaultStyle({});
}

void TextPane::addFaint(const wxString& text) {
    text_->SetDefaultStyle(wxTextAttr(faintColour()));
    text_->AppendText(text);
    text_->SetDefaultStyle({});
}

void TextPane::appendText(std::string_view lines) {
    const long before = text_->GetLastPosition();
    appendQuietly(*text_, shownText(lines));
    if (before < longestMarked) markFound();
}

void TextPane::showFound(const FindQuery& query) {
    found_ = query;
    markFound();
}

// Every character on the screen is one of the code page, and the other way round.
void TextPane::markFound() {
    const std::string text = typedText(text_->GetRange(0, std::min(text_->GetLastPosition(), longestMarked)));
    const auto places = foundPlaces(text, found_, mostMarked);
    markPlaces(*text_, places);
    if (!places.empty()) text_->ShowPosition(static_cast<long>(places.front().From));
}

void TextPane::showTextNotice(std::string_view text) {
    appendQuietly(*text_, shownText(text));
}

}  // namespace vell
