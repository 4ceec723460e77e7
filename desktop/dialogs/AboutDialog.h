// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include <wx/dialog.h>

class wxSizer;

namespace vell {

// What this program is, its version and makers, and the way to the service.
class AboutDialog : public wxDialog {
  public:
    // `address` is the service's page; empty for none. `open` opens it.
    AboutDialog(wxWindow* parent, const std::string& version, const std::string& address,
                const std::function<void()>& open);

  private:
    [[nodiscard]] wxSizer* texts(const std::string& version, const std::string& address,
                                 const std::function<void()>& open);
};

}  // namespace vell
