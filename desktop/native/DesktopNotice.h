// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>

class wxString;

namespace vell {

// A notice of the desktop's own kind, for somebody who looks at another program. There is one at a time: the next takes
// its place. Nothing waits for the desktop; one that has no notices shows none.
class DesktopNotice {
  public:
    // `chosen` is called when the user clicks on the notice, with the desktop's leave to come to the front.
    using Chosen = std::function<void(const std::string& token)>;
    explicit DesktopNotice(Chosen chosen);
    ~DesktopNotice();
    DesktopNotice(const DesktopNotice&) = delete;
    DesktopNotice& operator=(const DesktopNotice&) = delete;

    void show(const wxString& title, const wxString& body);
    // It has been taken note of.
    void withdraw();

  private:
    class Native;
    std::unique_ptr<Native> native_;
};

}  // namespace vell
