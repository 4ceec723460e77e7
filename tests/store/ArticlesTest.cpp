// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "store/Articles.h"
#include "tests/support/RecordingShell.h"
#include "tests/support/StoreRig.h"

namespace vell::test {
namespace {

class ArticlesTest : public testing::Test, protected StoreRig {
  protected:
    RecordingShell shell;
    Articles articles{shell, boxes, loop, log};
};

TEST_F(ArticlesTest, tellsWhyTheSystemDidNotOpenSomething) {
    const std::pair<int, std::string> texts[] = {
        {0, "The operating system is out of memory or resources."},
        {2, "The specified file was not found."},
        {3, "The specified path was not found."},
        {5, "The operating system denied access to the specified file."},
        {8, "There was not enough memory to complete the operation."},
        {11, "The .exe file is invalid (non-Win32\xAE .exe or error in .exe image)."},
        {26, "A sharing violation occurred."},
        {27, "The file name association is incomplete or invalid."},
        {28, "The DDE transaction could not be completed because the request timed out."},
        {29, "The DDE transaction failed."},
        {30, "The DDE transaction could not be completed because other DDE transactions were being processed."},
        {31, "There is no application associated with the given file name extension."},
        {32, "The specified dynamic-link library was not found."},
        {1, ""},
        {-1, ""},
    };
    for (const auto& [code, text] : texts) {
        boxes.Shown.clear();
        shell.Result = code;
        EXPECT_FALSE(articles.ShellExec("C:\\x.pdf", "")) << code;
        const std::string told = boxes.Shown.empty() ? "" : boxes.Shown.at(0);
        EXPECT_EQ(told, text.empty() ? "" : "Error opening file 'C:\\x.pdf '.\r\n" + text);
    }
    boxes.Shown.clear();
    shell.Result = 33;
    EXPECT_TRUE(articles.ShellExec("http://x", "-y"));
    EXPECT_TRUE(boxes.Shown.empty());
    EXPECT_EQ(shell.Opened.back(), "http://x|-y");
}

TEST_F(ArticlesTest, printsWhateverHasPdfInItsPath) {
    EXPECT_TRUE(articles.PrintArticle("C:\\x.pdf"));
    EXPECT_TRUE(articles.PrintArticle("C:\\A.PDF\\b.txt"));
    shell.Result = 2;
    EXPECT_FALSE(articles.PrintArticle("C:\\y.PDF"));
    EXPECT_FALSE(articles.PrintArticle("C:\\x.TXT"));
    EXPECT_EQ(shell.Opened,
              (std::vector<std::string>{"Acrord32.exe| /p /h \"C:\\x.pdf\"", "Acrord32.exe| /p /h \"C:\\A.PDF\\b.txt\"",
                                        "Acrord32.exe| /p /h \"C:\\y.PDF\""}));
    EXPECT_EQ(boxes.Shown, std::vector<std::string>{"Error opening file 'Acrord32.exe  /p /h \"C:\\y.PDF\"'.\r\n"
                                                    "The specified file was not found."});
    EXPECT_EQ(logged(),
              "PRINTING:C:\\x.pdf\n        Acrord32.exe /p /h \"C:\\x.pdf\"\n        Status:True\n"
              "PRINTING:C:\\A.PDF\\b.txt\n        Acrord32.exe /p /h \"C:\\A.PDF\\b.txt\"\n        Status:True\n"
              "PRINTING:C:\\y.PDF\n        Acrord32.exe /p /h \"C:\\y.PDF\"\n        Status:False\n"
              "PRINTING:C:\\x.TXT\n");
}

}  // namespace
}  // namespace vell::test
