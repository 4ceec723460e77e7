// SPDX-License-Identifier: MIT
#include "desktop/bars/WrappedText.h"

#include <utility>

#include <wx/textwrapper.h>

namespace vell {

namespace {

class Lines : public wxTextWrapper {
  public:
    Lines(wxWindow& window, const wxString& text, int width) { Wrap(&window, text, width); }

    wxString Text;

  protected:
    void OnOutputLine(const wxString& line) override { Text += line; }
    void OnNewLine() override { Text += '\n'; }
};

}  // namespace

WrappedText::WrappedText(wxWindow* parent, std::function<void()> heightChanged)
    : wxStaticText(parent, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END),
      heightChanged_(std::move(heightChanged)) {
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        if (event.GetSize().GetWidth() != width_) CallAfter([this] { wrap(); });
    });
}

void WrappedText::show(const wxString& text) {
    text_ = text;
    wrap();
}

void WrappedText::wrap() {
    width_ = GetClientSize().GetWidth();
    const int before = GetMinSize().GetHeight();
    SetLabelText(width_ > 1 ? Lines(*this, text_, width_).Text : text_);
    InvalidateBestSize();
    const int height = GetBestSize().GetHeight();
    SetMinSize(wxSize(0, height));
    if (height != before) heightChanged_();
}

}  // namespace vell
