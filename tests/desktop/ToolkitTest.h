// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/init.h>

namespace vell::test {

// The toolkit on a real display. What it asserts is a failure.
class ToolkitTest : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        static int count = 1;
        static char name[] = "vell_tests_desktop";
        static char* arguments[] = {name, nullptr};
        wxApp::SetInstance(new wxApp);
        ASSERT_TRUE(wxEntryStart(count, arguments));
        wxTheApp->SetExitOnFrameDelete(false);
        wxSetAssertHandler([](const wxString& file, int line, const wxString&, const wxString& condition,
                              const wxString&) { ADD_FAILURE() << file << ":" << line << ": " << condition; });
    }
    static void TearDownTestSuite() { wxEntryCleanup(); }
};

}  // namespace vell::test
