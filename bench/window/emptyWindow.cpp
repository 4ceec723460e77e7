// SPDX-License-Identifier: MIT
// The yardstick: a window of the toolkit without anything in it. Tells when its first frame is painted.
#include <wx/app.h>
#include <wx/frame.h>

#include "bench/window/firstFrame.h"

class EmptyProgram : public wxApp {
  public:
    bool OnInit() override {
        auto* frame = new wxFrame(nullptr, wxID_ANY, "empty", wxDefaultPosition, wxSize(960, 640));
        onPainted(*frame, tellFirstFrame);
        return frame->Show();
    }
};

wxIMPLEMENT_APP(EmptyProgram);
