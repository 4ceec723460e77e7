// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "platform/Translations.h"
#include "tests/support/StoreRig.h"
#include "ui/reading/ClippingForms.h"
#include "ui/reading/TextReader.h"

namespace vell::test {

class ReadingTest : public testing::Test, protected StoreRig, protected ReadingView {
  protected:
    void clearText() override { shown.clear(); }
    void beginText(const ClippingHeading& h) override {
        shown = h.Title + "," + h.Newspaper + "," + h.Page + "," + h.Date + ":";
    }
    void appendText(std::string_view lines) override { shown += lines; }
    void showTextNotice(std::string_view text) override { shown += "(" + std::string(text) + ")"; }
    const std::string& read(const std::string& name) {
        auto clipping = std::make_shared<CFtpFile>();
        clipping->FileName = name;
        clipping->FilePath = day.gDayFolder;
        clipping->NewspaperName = "N";
        clipping->Description = "TITLE ";
        reader.show(clipping);
        while (reader.isReading())
            loop.WaitForEvents(10);
        return shown;
    }
    std::string shown;
    Translations words;
    TextReader reader{files, loop, words, log};
};

TEST_F(ReadingTest, showsTheTextUnderWhatItsCompanionSaysAndAgainWhenItHasCome) {
    const std::string none = "(This clipping has no text. Open it to see its page.)";
    EXPECT_EQ(read("A.PDF"), "");
    reader.showIn(this);
    EXPECT_EQ(shown, "TITLE,N,,07/03/2004:" + none);
    put("A.TXT", "N\r\nPage B4\r\n\r\ntitle\r\n\r\n\xE1\r\n\r\ntitle");
    EXPECT_EQ(read("A.PDF"), "TITLE,N,,07/03/2004:Page B4\n\ntitle\n\n\xE1\n\ntitle");
    put("A.MT", "newspaper :The N\r\nPAGE: B4\r\nTITLE: a: b\r\nDATE: 06/03/2004");
    EXPECT_EQ(read("A.PDF"), "a: b,The N,B4,06/03/2004:N\nPage B4\n\ntitle\n\n\xE1\n\ntitle");
    put("A.MT", "PAGE: B4\r\n");
    shown.clear();
    EXPECT_EQ(read("A.PDF"), "TITLE,N,B4,07/03/2004:\xE1\n\ntitle");
    shown.clear();
    EXPECT_EQ(read("A.PDF"), "");  // nothing has changed
    put("b.txt", "N\n\n");
    EXPECT_EQ(read("b.pdf"), "TITLE,N,,07/03/2004:N\n\n");
    std::filesystem::create_directory(folder.path() / "clips/07032004/C.TXT");
    EXPECT_TRUE(read("C.PDF").starts_with("TITLE,N,,07/03/2004:(The text of this clipping cannot be read. ")) << shown;
}

TEST_F(ReadingTest, readsALongTextInPiecesOfWholeLines) {
    std::string text, expected;
    for (std::size_t length = 97; length < TextReader::pieceSize / 7; length += 97) {
        text += std::string(length, 'a') + "\r\n";
        expected += std::string(length, 'a') + "\n";
    }
    text += std::string(TextLines::longestLine - 3, 'b') + " cccc " + std::string(TextLines::longestLine, 'd') + "e";
    expected +=
        std::string(TextLines::longestLine - 3, 'b') + " \ncccc \n" + std::string(TextLines::longestLine, 'd') + "\ne";
    ASSERT_GT(text.size(), 3 * TextReader::pieceSize);
    put("A.TXT", text);
    reader.showIn(this);
    EXPECT_TRUE(read("A.PDF") == "TITLE,N,,07/03/2004:" + expected);
}

}  // namespace vell::test
