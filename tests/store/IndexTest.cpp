// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "store/DayIndex.h"
#include "store/IndexFile.h"
#include "tests/support/StoreRig.h"

namespace vell::test {

TEST(IndexFileTest, readsEveryRecordThatAnotherLineFollows) {
    // Lines end at "~"; of each record all fields between "<" and ">".
    const std::pair<std::string, std::string> table[] = {
        {"", ""},
        {"A||N||T||C||Y", ""},
        {"A||N||T||C||Y~", ""},
        {"A||N||T||C||Y~~", "<A><N><T><C><Y>"},
        {"A||N||T||C||Y~B", "<A><N><T><C><Y>"},
        {"A||N~B||M~C||L~", "<A><N><><>< ><B><M><><>< >"},
        {"A||.||.||.||.~~", "<A><><><>< >"},
        {"A||N||T||C|||.||1~~", "<A><N><T><C>< >"},
        {"A||N||T||C1|C2|C3||Y1|Y2||1||-||5~~", "<A><N><T><C1,C2,C3><Y1,Y2>"},
        {"A||N||||||~~", "<A><N><><><>"},
        {"A||..|| .||.x||.|~~", "<A><..>< .><.x><.,>"},
        {"HTML~~", "<HTML><><><>< >"},
        {"~A||N~~", "<><><><>< ><A><N><><>< >"},
    };
    for (const auto& [text, records] : table) {
        std::string read;
        for (const auto& r : readIndex(Replace(text, "~", "\r\n")))
            for (const auto* field : {&r.FileName, &r.NewspaperName, &r.Description, &r.Category, &r.ArticleType})
                read += "<" + *field + ">";
        EXPECT_EQ(read, records) << text;
    }
    EXPECT_EQ(indexField("A||B||C", 2), "C");
    EXPECT_EQ(indexField("A||B||C", 3), "");
    EXPECT_EQ(indexField("A|||B", 1), "|B");
}

TEST(IndexFileTest, letsNoNameLeadOutOfTheDayFolder) {
    for (const auto name : Split("A.PDF|\xC1\xC2 1.PDF|A.B.PDF|CONX.PDF|COM.PDF|COM10.PDF|A=B;[1].PDF|.PDF", "|"))
        EXPECT_TRUE(isClippingName(name)) << name;
    const std::string bad = Replace(
        "@.@..@..\\A.PDF@../A.PDF@A/B.PDF@A\\B.PDF@\\A.PDF@C:A.PDF@A:B.PDF@A..PDF@A.PDF.@A.PDF @ A.PDF@A\tB.PDF@"
        "A\x7F.PDF@A*.PDF@A?.PDF@A<.PDF@A>.PDF@A|B.PDF@A\".PDF@CON@con.PDF@NUL.X.PDF@AUX .PDF@PRN@COM1.PDF@lpt9.TXT@"
        "CONIN$@ALLFILES.DIR@allfiles.dir@ALERT.MSG@OPENED.DIR@PRINTED.DIR@A%.PDF@" +
            std::string(201, 'A'),
        "%", std::string(1, '\0'));
    for (const auto name : Split(bad, "@"))
        EXPECT_FALSE(isClippingName(name)) << name;
}

class DayIndexTest : public testing::Test, protected StoreRig {
  protected:
    int mark(const std::string& pdf) { return index.markDownloaded(day.gDayFolder, pdf); }
    void file(const std::string& text) { put("ALLFILES.DIR", Replace(text, "~", "\r\n")); }
    [[nodiscard]] std::string file() const { return Replace(get("ALLFILES.DIR"), "\r\n", "~"); }

    DayIndex index{files};
};

TEST_F(DayIndexTest, rewritesTheFileWithTheMarksOfTheClippingAndAnEmptyLastLine) {
    const struct {
        std::string before, pdf, after;
        int lines;
    } table[] = {
        {"A.PDF||N||-||1", "A.PDF", "A.PDF||N||d||1~~", 1},
        {"A.PDF||N||-||1~B.PDF||-||~", "B.PDF", "A.PDF||N||-||1~B.PDF||d||~~", 1},
        {"A.PDF||-||-||-||~", "A.PDF", "A.PDF||d||-||d||~~", 1},
        {"A.PDF||d||~~", "A.PDF", "A.PDF||d||~~", 1},
        {"A.PDF||-||~A.PDF||x||-||~", "A.PDF", "A.PDF||d||~A.PDF||x||d||~~", 2},
        {"no field~~A.PDF||-||~junk", "A.PDF", "A.PDF||d||~~", 1},
        {"A.PDF||-||~XA.PDF||-||~", "a.PDF", "A.PDF||-||~XA.PDF||-||~~", 0},
        {"", "A.PDF", "~", 0},
    };
    for (const auto& row : table) {
        file(row.before);
        EXPECT_EQ(mark(row.pdf), row.lines) << row.before;
        EXPECT_EQ(file(), row.after);
    }
}

TEST_F(DayIndexTest, readsAgainOnlyWhatSomebodyElseHasChanged) {
    file("A.PDF||-||~B.PDF||-||~C.PDF||-||~");
    mark("A.PDF");
    mark("B.PDF");
    EXPECT_EQ(files.Reads, 1);
    EXPECT_EQ(file(), "A.PDF||d||~B.PDF||d||~C.PDF||-||~~");
    file("C.PDF||-||1~D.PDF||-||~");
    EXPECT_EQ(mark("C.PDF"), 1);
    EXPECT_EQ(file(), "C.PDF||d||1~D.PDF||-||~~");
}

TEST_F(DayIndexTest, forgetsAMarkThatDidNotReachTheFile) {
    file("A.PDF||-||~B.PDF||-||~");
    for (const char* kept : {"A.PDF||-||~B.PDF||-||~", "A.PDF||-||~B.PDF||d||~~"}) {
        files.Trouble = "ALLFILES";  // first the whole file cannot be written, then one byte of it
        EXPECT_THROW(mark("A.PDF"), RunTimeError);
        EXPECT_EQ(file(), kept);
        files.Trouble.clear();
        mark("B.PDF");
        EXPECT_EQ(file(), "A.PDF||-||~B.PDF||d||~~");
    }
    files.DeleteFile(day.gDayFolder + "ALLFILES.DIR");
    EXPECT_THROW(mark("A.PDF"), RunTimeError);
    EXPECT_FALSE(has("ALLFILES.DIR"));
}

}  // namespace vell::test
