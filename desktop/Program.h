// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>

#include <wx/app.h>

namespace vell {

class Installation;

// The toolkit's side of the program: brings everything up, and hands the thread to the window.
class Program : public wxApp {
  public:
    // `folder` is the program folder that was named on the command line.
    Program(std::optional<std::string> folder, Installation& own);
    ~Program() override;

    bool Initialize(int& count, wxChar** arguments) override;
    bool OnInit() override;
    int OnRun() override;
    int OnExit() override;

  private:
    // Everything that lives as long as the session.
    struct Parts;
    [[nodiscard]] bool start();

    std::optional<std::string> folder_;
    Installation& own_;
    std::unique_ptr<Parts> parts_;
    bool started_ = false;
    int exitCode_ = 0;  // when it did not start
};

}  // namespace vell
