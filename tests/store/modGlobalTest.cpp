// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "store/Articles.h"
#include "store/modGlobal.h"
#include "tests/support/RecordingShell.h"
#include "tests/support/StoreRig.h"

namespace vell::test {

class modGlobalTest : public testing::Test, protected StoreRig {
  protected:
    std::string listing(const std::vector<std::string>& patterns) {
        std::string text;
        for (const auto& f : store.GetLocalFiles(day.gDayFolder, patterns))
            text += f->FileName + "=" + std::to_string(f->FileSize) + "," + f->NewspaperName + "," + f->Description +
                    "," + f->Category + "," + f->ArticleType + ";";
        return text;
    }
    // How often the procedure has logged an error since the last call.
    std::size_t errorsOf(const std::string& procedure) { return Split(logged(), " in " + procedure + "\n").size() - 1; }

    RecordingShell shell;
    Articles articles{shell, boxes, loop, log};
};

TEST_F(modGlobalTest, makesTheDaysFolderOneLevelDeepAndOnlyUnderARoot) {
    const std::string wanted = std::exchange(day.gDayFolder, "");
    EXPECT_TRUE(store.CreateDownloadDirPath());
    EXPECT_TRUE(folder.has("clips/07032004"));
    EXPECT_TRUE(store.CreateDownloadDirPath());  // it is there already
    EXPECT_EQ(std::exchange(day.gDayFolder, ""), wanted);
    EXPECT_EQ(logged(), "Download directory is '" + wanted + "'\nDownload directory is '" + wanted + "'\n");
    folder.put("clips/08032004", "a file stands in the way");
    day.gCurrentDate = march8;
    EXPECT_FALSE(store.CreateDownloadDirPath());
    for (const std::string& root : {folder.text() + "/missing", std::string("  "), std::string()}) {
        setup.LocalDir = root;
        EXPECT_FALSE(store.CreateDownloadDirPath()) << root;
    }
    EXPECT_EQ(day.gDayFolder, "");
    EXPECT_FALSE(folder.has("missing"));
    EXPECT_EQ(errorsOf("CreateDownloadDirPath()"), 4U);
}

TEST_F(modGlobalTest, joinsTheFilesOfADayToItsIndexWithoutRegardToCase) {
    for (const char* name : {"a.pdf", "B.PDF", "C.PDF", "A.TXT"})
        put(name, "1");
    put("ALLFILES.DIR", "A.PDF||N||T||P|E||Y\r\nA.PDF||second\r\nb.pdf||M||.||.||.\r\nGONE.PDF||L\r\nC.PDF||last");
    EXPECT_EQ(listing({"*.PDF", "*.TXT"}), "a.pdf=1,N,T,P,E,Y;B.PDF=1,M,,, ;C.PDF=1,,,,;");
    files.DeleteFile(day.gDayFolder + "ALLFILES.DIR");
    EXPECT_EQ(listing({"*.txt", "*.PDF", ""}), "A.TXT=1,,,,;a.pdf=1,,,,;B.PDF=1,,,,;C.PDF=1,,,,;");
    files.MakeFolder(day.gDayFolder + "ALLFILES.DIR");
    EXPECT_EQ(listing({"*.TXT", ""}), "A.TXT=1,,,,;");
    EXPECT_EQ(errorsOf("GetLocalFiles()"), 1U);
}

TEST_F(modGlobalTest, marksArticlesInTheirOwnFolder) {
    put("A.PDF", "");
    const std::string article = day.gDayFolder + "A.PDF";
    EXPECT_FALSE(store.IsFileOpened(article));
    EXPECT_TRUE(store.MarkFileOpened("  " + article + " "));
    EXPECT_TRUE(store.IsFileOpened(day.gDayFolder + "a.pdf"));
    EXPECT_FALSE(store.IsFilePrinted(article));
    EXPECT_TRUE(store.MarkFilePrinted(article));
    EXPECT_TRUE(store.IsFilePrinted(article));
    EXPECT_EQ(get("OPENED.DIR") + get("PRINTED.DIR"), "[VIEW]\r\nA.PDF=1\r\n[PRINT]\r\nA.PDF=1\r\n");
    for (const char* name : {"A=B=1.PDF", ";B.PDF", "[C].PDF", "D%3D; E.PDF"}) {
        EXPECT_TRUE(store.MarkFileOpened(day.gDayFolder + name)) << name;
        EXPECT_TRUE(store.IsFileOpened(day.gDayFolder + name)) << name;
    }
    EXPECT_FALSE(store.IsFileOpened(day.gDayFolder + "A"));
    EXPECT_TRUE(store.IsFileOpened(article));
    put("OPENED.DIR", "[VIEW]\r\nA.PDF=\" 1 \"\r\nB.PDF=2\r\nC.PDF=yes\r\nD.PDF=\r\n");
    EXPECT_TRUE(store.IsFileOpened(article));
    for (const char* other : {"B.PDF", "C.PDF", "D.PDF", "E.PDF", ""})
        EXPECT_FALSE(store.IsFileOpened(day.gDayFolder + other)) << other;
    for (const char* nowhere : {"", "A.PDF", "/A.PDF"}) {
        EXPECT_FALSE(store.MarkFileOpened(nowhere)) << nowhere;
        EXPECT_FALSE(store.IsFileOpened(nowhere)) << nowhere;
    }
    EXPECT_FALSE(store.MarkFileOpened(folder.text() + "\\missing\\A.PDF"));
}

TEST_F(modGlobalTest, deletesADayAndAsksAgainWhileSomethingIsInUse) {
    for (const char* name : {"A.PDF", "A.TXT", "ALLFILES.DIR", ".vell-999999999-1.part", "\xE6\x97\xA5.PDF"})
        put(name, "x");
    std::filesystem::create_symlink("nowhere", folder.path() / "clips/07032004/E.PDF");
    files.Trouble = "A.TXT";
    boxes.Answers = {Answer::Retry, Answer::Cancel};
    store.DeleteContent(march7);
    const std::string question =
        "Sharing Violation: Cannot delete one or more files. There has been a sharing "
        "violation. Make sure no files are in use.|";
    EXPECT_EQ(boxes.shown(), question + question);
    EXPECT_EQ(errorsOf("DeleteContent()"), 2U);
    EXPECT_TRUE(has("A.TXT"));
    files.Trouble.clear();
    store.DeleteContent(march7);
    EXPECT_FALSE(folder.has("clips/07032004"));
}

TEST_F(modGlobalTest, neverDeletesOutsideADayFolder) {
    for (const char* name : {"keep.txt", "clips/keep.txt", "clips/07032004/keep.txt"})
        folder.put(name, "x");
    for (const std::optional<Date>& chosen : {std::optional<Date>{}, {{2004, 2, 30}}, {march7}}) {
        if (chosen == march7) setup.LocalDir.clear();
        day.cmbDate = chosen;
        store.DeleteContent(chosen.value_or(Date{}));
        store.DeleteArticleFiles("keep.txt");
        store.DeleteDayFile("keep.txt");
    }
    EXPECT_TRUE(folder.has("keep.txt"));
    EXPECT_TRUE(folder.has("clips/keep.txt"));
    EXPECT_TRUE(has("keep.txt"));
}

TEST_F(modGlobalTest, deletesAnArticleInAllItsFormsFromTheChosenDay) {
    day.gCurrentDate = march8;
    for (const char* name : {"X.PDF", "X.TXT", "X.MT", "XY.PDF", "ALLFILES.DIR"})
        for (const char* where : {"clips/07032004/", "clips/08032004/"})
            folder.put(std::string(where) + name, "x");
    store.DeleteArticleFiles("X.PDF");
    store.DeleteArticleFiles("GONE.PDF");
    store.DeleteDayFile("ALLFILES.DIR");
    EXPECT_EQ(files.Enumerate(day.gDayFolder, "*.*", Files::Kind::Files).size(), 1U);
    EXPECT_EQ(files.Enumerate(setup.LocalDir + "\\08032004", "*.*", Files::Kind::Files).size(), 5U);
    files.Trouble = "XY.PDF";
    store.DeleteArticleFiles("XY.PDF");
    EXPECT_EQ(boxes.shown(), "Cannot delete " + day.gDayFolder + "XY.PDF. Make sure it's not in use.|");
}

TEST_F(modGlobalTest, opensAndPrintsWithTheSystemsProgramsAndTellsWhyItCouldNot) {
    EXPECT_TRUE(articles.ShellExec("http://x", "-y"));
    for (const auto& [result, text] : {std::pair{0, "The operating system is out of memory or resources."},
                                       {1, ""},
                                       {11, "The .exe file is invalid (non-Win32\xAE .exe or error in .exe image)."},
                                       {32, "The specified dynamic-link library was not found."}}) {
        boxes.Shown.clear();
        shell.Result = result;
        EXPECT_FALSE(articles.ShellExec("C:\\x.pdf", ""));
        EXPECT_EQ(boxes.shown(), *text ? std::string("Error opening file 'C:\\x.pdf '.\r\n") + text + "|" : "");
    }
    boxes.Shown.clear();
    shell.Result = 33;
    EXPECT_TRUE(articles.PrintArticle("C:\\A.PDF\\b.txt"));
    shell.Result = 2;
    EXPECT_FALSE(articles.PrintArticle("C:\\y.pdf"));
    EXPECT_FALSE(articles.PrintArticle("C:\\x.TXT"));
    EXPECT_TRUE(shell.Opened.ends_with(
        "<>\nAcrord32.exe < /p /h \"C:\\A.PDF\\b.txt\">\nAcrord32.exe < /p /h \"C:\\y.pdf\">\n"));
    EXPECT_EQ(boxes.shown(),
              "Error opening file 'Acrord32.exe  /p /h \"C:\\y.pdf\"'.\r\nThe specified file was not found.|");
    EXPECT_EQ(logged(),
              "PRINTING:C:\\A.PDF\\b.txt\n        Acrord32.exe /p /h \"C:\\A.PDF\\b.txt\"\n        "
              "Status:True\nPRINTING:C:\\y.pdf\n        Acrord32.exe /p /h \"C:\\y.pdf\"\n        "
              "Status:False\nPRINTING:C:\\x.TXT\n");
}

}  // namespace vell::test
