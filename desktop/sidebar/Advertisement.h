// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <wx/image.h>
#include <wx/panel.h>

class wxPaintEvent;

namespace vell {

class Files;

// The advertisement picture, as wide as there is room for it and never larger than it is. Without a picture, or with
// one that cannot be trusted, there is nothing to see.
class Advertisement : public wxPanel {
  public:
    Advertisement(wxWindow* parent, const Files& files);

    void show(const std::string& path);
    // The user may want none.
    void offer(bool wanted);

  private:
    [[nodiscard]] wxImage load(const std::string& path) const;
    [[nodiscard]] wxSize fittedSize() const;
    void paint(wxPaintEvent& event);
    void fit();

    const Files& files_;
    wxImage picture_;
    bool isWanted_ = true;
};

}  // namespace vell
