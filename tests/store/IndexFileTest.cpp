// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "store/IndexFile.h"

namespace vell::test {
namespace {

TEST(IndexFileTest, readsEveryRecordThatAnotherLineFollows) {
    const struct {
        std::string text;
        std::string records;  // fields between "<" and ">"
    } table[] = {
        {"", ""},
        {"A.PDF||N||T||C||Y", ""},
        {"A.PDF||N||T||C||Y\r\n", ""},
        {"A.PDF||N||T||C||Y\r\n\r\n", "<A.PDF><N><T><C><Y>"},
        {"A.PDF||N||T||C||Y\r\nB.PDF", "<A.PDF><N><T><C><Y>"},
        {"A||N\r\nB||M\r\nC||L\r\n", "<A><N><><>< ><B><M><><>< >"},
        {"A||.||.||.||.\r\n\r\n", "<A><><><>< >"},
        {"A||N||T||C|||.||1\r\n\r\n", "<A><N><T><C>< >"},
        {"A||N||T||C1|C2|C3||Y1|Y2||1||-||5\r\n\r\n", "<A><N><T><C1,C2,C3><Y1,Y2>"},
        {"A||N||||||\r\n\r\n", "<A><N><><><>"},
        {"A||..|| .||.x||.|\r\n\r\n", "<A><..>< .><.x><.,>"},
        {"<HTML>\r\n\r\n", "<<HTML>><><><>< >"},
        {"\r\nA||N\r\n\r\n", "<><><><>< ><A><N><><>< >"},
        {std::string("A||N\0M||T\r\n\r\n", 13), std::string("<A><N\0M><T><>< >", 16)},
    };
    for (const auto& row : table) {
        std::string read;
        for (const auto& r : readIndex(row.text))
            for (const auto* field : {&r.FileName, &r.NewspaperName, &r.Description, &r.Category, &r.ArticleType})
                read += "<" + *field + ">";
        EXPECT_EQ(read, row.records) << row.text;
    }
}

TEST(IndexFileTest, takesFieldsApartByPosition) {
    EXPECT_EQ(indexKey("A||B"), "A");
    EXPECT_EQ(indexKey("A"), "A");
    EXPECT_EQ(indexField("A||B||C", 2), "C");
    EXPECT_EQ(indexField("A||B||C", 3), "");
    EXPECT_EQ(indexField("A|||B", 1), "|B");
}

TEST(IndexFileTest, letsNoNameLeadOutOfTheDayFolder) {
    for (const char* good : {"A.PDF", "KAT20040307.PDF", "\xC1\xC2 1.PDF", "A.B.PDF", "CONX.PDF", "COM.PDF",
                             "COM10.PDF", "A=B;[1].PDF", "ADVERTISMENT.JPG", ".PDF"})
        EXPECT_TRUE(isClippingName(good)) << good;
    for (const std::string& bad : std::initializer_list<std::string>{"",
                                                                     ".",
                                                                     "..",
                                                                     "..\\A.PDF",
                                                                     "../A.PDF",
                                                                     "A/B.PDF",
                                                                     "A\\B.PDF",
                                                                     "\\A.PDF",
                                                                     "C:A.PDF",
                                                                     "A:B.PDF",
                                                                     "A..PDF",
                                                                     "A.PDF.",
                                                                     "A.PDF ",
                                                                     " A.PDF",
                                                                     "A\tB.PDF",
                                                                     std::string("A\0.PDF", 6),
                                                                     "A\x7F.PDF",
                                                                     "A*.PDF",
                                                                     "A?.PDF",
                                                                     "A<.PDF",
                                                                     "A>.PDF",
                                                                     "A|B.PDF",
                                                                     "A\".PDF",
                                                                     "CON",
                                                                     "con.PDF",
                                                                     "NUL.X.PDF",
                                                                     "AUX .PDF",
                                                                     "PRN",
                                                                     "COM1.PDF",
                                                                     "lpt9.TXT",
                                                                     "CONIN$",
                                                                     "ALLFILES.DIR",
                                                                     "allfiles.dir",
                                                                     "ALERT.MSG",
                                                                     "OPENED.DIR",
                                                                     "PRINTED.DIR",
                                                                     std::string(201, 'A')})
        EXPECT_FALSE(isClippingName(bad)) << bad;
}

}  // namespace
}  // namespace vell::test
