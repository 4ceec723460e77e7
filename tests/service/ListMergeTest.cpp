// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "base/text.h"
#include "service/ListAnswer.h"
#include "service/ListMerge.h"

namespace vell::test {

// In the tables a record's fields end at "|", which the service writes twice.
std::string fields(const std::string& text) {
    return Replace(text, "|", "||");
}

std::string joined(const std::vector<std::string>& pieces) {
    std::string text;
    for (const std::string& piece : pieces)
        text += Replace(piece, "||", "|") + ";";
    return text;
}

TEST(ListMergeTest, tellsAListFromEverythingElse) {
    using enum ListAnswer::Kind;
    const struct {
        std::string body;
        ListAnswer::Kind kind;
        std::string records, dropped, fault;
    } table[] = {
        {"a.pdf|n|t|c|y<br>b.pdf|n|t|c|y<BR>c.pdf|n|t|c|y|1<bR>", List, "A.PDF|N|T|C|Y;B.PDF|N|T|C|Y;C.PDF|N|T|C|Y|1;;",
         "", ""},
        {"<br> \r\n a.pdf|a<b|t|c|y \r\n<br><br>\nb.pdf|n|t|c|y", List, "A.PDF|A<B|T|C|Y;B.PDF|N|T|C|Y;", "", ""},
        {"a.pdf|\xDC\xDD\xDE\xDF\xFC\xFD\xFE\xFA\xFB\xF2|\xA2\xB8\xB9\xBA\xBC\xBE\xBF\xDA\xDB\xC0\xE0||", List,
         "A.PDF|\xC1\xC5\xC7\xC9\xCF\xD5\xD9\xC9\xD5\xD3|\xC1\xC5\xC7\xC9\xCF\xD5\xD9\xC9\xD5\xC0\xE0||;", "", ""},
        {"a.pdf|1||||<br>A.PDF|2|||", NoList, "", "", "it was cut short: 'A.PDF|2|||'"},
        {"a.pdf|1||||<br>A.PDF|2||||<br>b.pdf|3|||||", List, "A.PDF|1||||;B.PDF|3|||||;", "", ""},
        {"c:x||||<br>a.pdf||||<br>x.txt||||<br>", List, "A.PDF||||;;", "C:X||||;X.TXT||||;", ""},
        {"c:x||||", NoList, "", "C:X||||;", "it names no clipping: 'C:X||||'"},
        {"", Silence, "", "", ""},
        {" <br>\r\n<br> ", Silence, "", "", ""},
        {"error 1001<br>", LoginRefused, "", "", ""},
        {"<br>Error 1002 sorry", NothingForTheDay, "", "", ""},
        {"error 1003", NoList, "", "", "it holds what is no record: 'ERROR 1003'"},
        {"error 1e999.pdf|n|t|c|y", List, "ERROR 1E999.PDF|N|T|C|Y;", "", ""},
        {"a.pdf||||<br>b.pdf|||", NoList, "", "", "it holds what is no record: 'B.PDF|||'"},
        {"a.pdf||||<br>error 1002", NoList, "", "", "it holds what is no record: 'ERROR 1002'"},
        {"<p>a|b|c|d|e", NoList, "", "", "it is a page: '<P>A|B|C|D|E'"},
        {"a.pdf|\t|||", NoList, "", "", "it holds control characters: 'A.PDF|\t|||'"},
        {"a.pdf|\n|||", NoList, "", "", "it holds control characters: 'A.PDF|\n|||'"},
    };
    for (const auto& row : table) {
        const ListAnswer answer = readListAnswer(fields(row.body));
        EXPECT_EQ(answer.What, row.kind) << row.body;
        EXPECT_EQ(answer.Fault, fields(row.fault)) << row.body;
        if (row.kind != List) continue;
        EXPECT_EQ(joined(answer.Records), row.records) << row.body;
        EXPECT_EQ(joined(answer.Dropped), row.dropped) << row.body;
    }
}

TEST(ListMergeTest, saysWhatIsHereAndNamesWhatHasGone) {
    const struct {
        std::string records, old, index, gone, changed;  // records and lines end at ";"
    } table[] = {
        {"A.PDF|N|T|C|Y|1|-|9", "A.PDF|n|t|c|y|1|d|8;;", "A.PDF|N|T|C|Y|1|d|9;", "", ""},
        {"A.PDF|N|T|C|Y|2|-|9", "A.PDF|n|t|c|y|1|d|8;", "A.PDF|N|T|C|Y|1|-|9;", "", "A.PDF;"},
        {"A.PDF|N|T|C|Y|2|-|9", "A.PDF|n|t|c|y|1|-|8;", "A.PDF|N|T|C|Y|1|-|9;", "", "A.PDF;"},
        {"A.PDF|N|T|C|Y|1|-|9", "A.PDF|n|t|c|y|1|-|8;", "A.PDF|N|T|C|Y|1|-|9;", "", ""},
        {"A.PDF|N|T|C|Y|1|-|-|", "A.PDF|n|t|c|y|1|d", "A.PDF|N|T|C|Y|1|d|-|;", "", ""},
        {"A.PDF|N|T|C|Y", "A.PDF|n|t|c|y|1|d|8;", "A.PDF|N|T|C|Y|1;", "", "A.PDF;"},
        {"B.PDF|;C.PDF|;", "A.PDF|;B.PDF|;BB.PDF|;C.PDF|;D.PDF|", "B.PDF|;C.PDF|;;", "A.PDF;BB.PDF;D.PDF;", ""},
        {"", "A.PDF|;;..\\B.PDF|;ALLFILES.DIR|;", "", "A.PDF;", ""},
        {"C.PDF|;A.PDF|N|T|C|Y|1|-|", "A.PDF|N|T|C|Y|1|d;B.PDF|",  // out of order
         "C.PDF|;A.PDF|N|T|C|Y|1|d|;", "B.PDF;", ""},
    };
    for (const auto& row : table) {
        const std::string records = fields(row.records);
        const auto pieces = Split(records, ";");
        const Merged merged = mergeWithIndex({pieces.begin(), pieces.end()}, Replace(fields(row.old), ";", "\r\n"));
        EXPECT_EQ(Replace(merged.Index, "\r\n", ";"), fields(row.index)) << row.old;
        EXPECT_EQ(joined(merged.GoneFiles), row.gone) << row.old;
        EXPECT_EQ(joined({merged.ChangedFiles.begin(), merged.ChangedFiles.end()}), row.changed) << row.old;
    }
}

}  // namespace vell::test
