// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "store/modGlobal.h"
#include "tests/support/StoreRig.h"

namespace vell::test {
namespace {

namespace fs = std::filesystem;

class modGlobalTest : public testing::Test, protected StoreRig {
  protected:
    std::string listing(std::vector<std::string> patterns) {
        std::string text;
        for (const auto& f : store.GetLocalFiles(day.gDayFolder, patterns))
            text += f->FileName + "=" + std::to_string(f->FileSize) + "," + f->NewspaperName + "," + f->Description +
                    "," + f->Category + "," + f->ArticleType + "\n";
        return text;
    }
};

TEST_F(modGlobalTest, makesTheDaysFolderOneLevelDeepAndOnlyUnderARoot) {
    day.gDayFolder.clear();
    const std::string wanted = setup.LocalDir + "\\07032004\\";
    EXPECT_TRUE(store.CreateDownloadDirPath());
    EXPECT_EQ(day.gDayFolder, wanted);
    EXPECT_TRUE(store.CreateDownloadDirPath());  // the folder is there already
    EXPECT_TRUE(folder.has("clips/07032004"));
    EXPECT_EQ(logged(), "Download directory is '" + wanted + "'\nDownload directory is '" + wanted + "'\n");

    day.gDayFolder.clear();
    folder.put("clips/08032004", "a file stands in the way");
    day.gCurrentDate = "08032004";
    EXPECT_FALSE(store.CreateDownloadDirPath());
    for (const std::string& root : {folder.text() + "/missing", std::string("  "), std::string()}) {
        setup.LocalDir = root;
        EXPECT_FALSE(store.CreateDownloadDirPath()) << root;
    }
    EXPECT_EQ(day.gDayFolder, "");
    EXPECT_FALSE(folder.has("missing"));
    const std::string lines = logged();
    EXPECT_EQ(Split(lines, " in CreateDownloadDirPath()\n").size(), 5U) << lines;
}

TEST_F(modGlobalTest, joinsTheFilesOfADayToItsIndexWithoutRegardToCase) {
    putIntoDay("a.pdf", "12345");
    putIntoDay("B.PDF", "");
    putIntoDay("C.PDF", "1");
    putIntoDay("A.TXT", "1");
    EXPECT_EQ(listing({"*.PDF", ""}), "a.pdf=5,,,,\nB.PDF=0,,,,\nC.PDF=1,,,,\n");
    putIntoDay("ALLFILES.DIR",
               "A.PDF||N1||T1||P|E||Y\r\nA.PDF||second||.||.||.\r\nb.pdf||N2||.||.||.\r\nGONE.PDF||N3\r\nC.PDF||last");
    EXPECT_EQ(listing({"*.PDF", "*.TXT"}), "a.pdf=5,N1,T1,P,E,Y\nB.PDF=0,N2,,, \nC.PDF=1,,,,\n");
    EXPECT_EQ(listing({"*.PDF"}), "");
    EXPECT_EQ(store.indexTable().size(), 4U);
    fs::remove(folder.path() / "clips/07032004/ALLFILES.DIR");
    EXPECT_EQ(listing({"*.txt", "*.PDF", ""}), "A.TXT=1,,,,\na.pdf=5,,,,\nB.PDF=0,,,,\nC.PDF=1,,,,\n");
    fs::create_directory(folder.path() / "clips/07032004/ALLFILES.DIR");
    EXPECT_EQ(listing({"*.TXT", ""}), "A.TXT=1,,,,\n");
    EXPECT_NE(logged().find(" in GetLocalFiles()\n"), std::string::npos);
}

TEST_F(modGlobalTest, listsFoldersAndSortsDaysNewestFirst) {
    fs::create_directories(folder.path() / "clips/b");
    fs::create_directories(folder.path() / "clips/.hidden");
    folder.put("clips/file", "");
    EXPECT_EQ(store.GetLocalDirectories(setup.LocalDir, false), (std::vector<std::string>{".hidden", "b"}));
    EXPECT_EQ(store.GetLocalDirectories(setup.LocalDir, true).size(), 4U);
    EXPECT_TRUE(store.GetLocalDirectories(folder.text() + "/none", false).empty());
    EXPECT_EQ(store.DateSort({"15/02/2004", "07/03/2004", "31/12/2003", "08/02/2004", "07/03/2004"}),
              (std::vector<std::string>{"07/03/2004", "07/03/2004", "15/02/2004", "08/02/2004", "31/12/2003"}));
    EXPECT_TRUE(store.DateSort({}).empty());
}

TEST_F(modGlobalTest, marksArticlesInTheirOwnFolder) {
    const std::string article = day.gDayFolder + "A.PDF";
    putIntoDay("A.PDF", "");
    EXPECT_FALSE(store.IsFileOpened(article));
    EXPECT_TRUE(store.MarkFileOpened("  " + article + " "));
    EXPECT_TRUE(store.IsFileOpened(day.gDayFolder + "a.pdf"));
    EXPECT_FALSE(store.IsFilePrinted(article));
    EXPECT_TRUE(store.MarkFilePrinted(article));
    EXPECT_TRUE(store.IsFilePrinted(article));
    EXPECT_EQ(inDay("OPENED.DIR"), "[VIEW]\r\nA.PDF=1\r\n");
    EXPECT_EQ(inDay("PRINTED.DIR"), "[PRINT]\r\nA.PDF=1\r\n");
    putIntoDay("OPENED.DIR", "[VIEW]\r\nA.PDF=\" 1 \"\r\nB.PDF=2\r\nC.PDF=yes\r\nD.PDF=\r\n");
    EXPECT_TRUE(store.IsFileOpened(article));
    for (const char* other : {"B.PDF", "C.PDF", "D.PDF", "E.PDF", ""})
        EXPECT_FALSE(store.IsFileOpened(day.gDayFolder + other)) << other;
    for (const char* nowhere : {"", "A.PDF", "/A.PDF"}) {
        EXPECT_FALSE(store.MarkFileOpened(nowhere));
        EXPECT_FALSE(store.MarkFilePrinted(nowhere));
        EXPECT_FALSE(store.IsFileOpened(nowhere));
        EXPECT_FALSE(store.IsFilePrinted(nowhere));
    }
    EXPECT_FALSE(store.MarkFileOpened(folder.text() + "\\missing\\A.PDF"));
}

TEST_F(modGlobalTest, deletesADayAndAsksAgainWhileSomethingIsInUse) {
    const std::string question =
        "Sharing Violation: Cannot delete one or more files. There has been a sharing violation. Make sure no files "
        "are in use.";
    for (const char* name : {"A.PDF", "A.TXT", "ALLFILES.DIR", ".vell-999999999-1.part"})
        putIntoDay(name, "x");
    files.Trouble = "A.TXT";
    boxes.Answers = {Answer::Retry, Answer::Cancel};
    store.DeleteContent("07/03/2004");
    EXPECT_EQ(boxes.Shown, (std::vector<std::string>{question, question}));
    EXPECT_TRUE(dayHas("A.TXT"));
    boxes.Answers = {Answer::Retry};
    boxes.OnQuestion = [&] { files.Trouble.clear(); };
    store.DeleteContent("07/03/2004");
    EXPECT_FALSE(folder.has("clips/07032004"));
    const std::string lines = logged();
    EXPECT_EQ(Split(lines, " in DeleteContent()\n").size(), 4U) << lines;
}

TEST_F(modGlobalTest, neverDeletesOutsideADayFolder) {
    folder.put("clips/keep.txt", "x");
    folder.put("keep.txt", "x");
    putIntoDay("A.PDF", "x");
    for (const char* name : {"", "..", "../..", "00/00/0000", "30/02/2004", "7/3/2004", "07032004", "07/03/2004/"}) {
        store.DeleteContent(name);
        day.cmbDate = name;
        store.DeleteArticleFiles("A.PDF");
        store.DeleteDayFile("A.PDF");
    }
    day.cmbDate = "07/03/2004";
    setup.LocalDir.clear();
    store.DeleteContent("07/03/2004");
    store.DeleteArticleFiles("A.PDF");
    EXPECT_TRUE(folder.has("clips/keep.txt") && folder.has("keep.txt") && dayHas("A.PDF"));
}

TEST_F(modGlobalTest, deletesAnArticleInAllItsFormsFromTheChosenDay) {
    day.gCurrentDate = "08032004";
    for (const char* name : {"X.PDF", "X.TXT", "X.MT", "XY.PDF", "ALLFILES.DIR"}) {
        putIntoDay(name, "x");
        folder.put(std::string("clips/08032004/") + name, "x");
    }
    store.DeleteArticleFiles("X.PDF");
    store.DeleteArticleFiles("GONE.PDF");
    store.DeleteDayFile("ALLFILES.DIR");
    for (const char* name : {"X.PDF", "X.TXT", "X.MT", "ALLFILES.DIR"}) {
        EXPECT_FALSE(dayHas(name)) << name;
        EXPECT_TRUE(folder.has(std::string("clips/08032004/") + name)) << name;
    }
    EXPECT_TRUE(dayHas("XY.PDF"));
    EXPECT_TRUE(boxes.Shown.empty());
    files.Trouble = "XY.PDF";
    store.DeleteArticleFiles("XY.PDF");
    EXPECT_EQ(boxes.Shown,
              std::vector<std::string>{"Cannot delete " + day.gDayFolder + "XY.PDF. Make sure it's not in use."});
}

}  // namespace
}  // namespace vell::test
