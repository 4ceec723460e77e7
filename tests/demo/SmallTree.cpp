// SPDX-License-Identifier: MIT
#include "tests/demo/SmallTree.h"

namespace vell::test {

std::string contentOf(const std::string& name) {
    std::string content = name + "\r\n";
    for (int i = 0; i < 3000; ++i)
        content += static_cast<char>(i * i % 251);
    return content.substr(0, 1000 + name.size() * 100);
}

SmallTree::SmallTree() {
    put("users.tsv", "user\tpassword\ndemo\tdemo\nΆννα\tμυστικό\nodd\ta&b=c%41+d\n");
    put("ADVERTISMENT.JPG", contentOf("ADVERTISMENT.JPG"));
    put("07032004/clippings.tsv",
        "\xEF\xBB\xBF"
        "file\tnewspaper\ttitle\tcategory\ttype\tchange\r\n"
        "NEA02_20040307.PDF\tΤο Κύμα\t\tΟΙΚΟΝΟΜΙΑ|ΠΟΛΙΤΙΚΗ\tΑΡΘΡΟ\t3\r\n"
        "\r\n"
        "nea01_20040307.pdf\tThe Lantern\tΆνεμος & wind\tECONOMY|\t\t7\r\n");
    putClipping("07032004", "NEA01_20040307");
    putClipping("07032004", "NEA02_20040307");
    put("07032004/alert.txt", "Προσοχή\r\n");
    put("09032004/clippings.tsv", "newspaper\tfile\nΤο Κύμα\tNEA01_20040309.PDF\nΤο Κύμα\tX.PDF\n");
    putClipping("09032004", "NEA01_20040309");
    putClipping("09032004", "X");
}

void SmallTree::putClipping(const std::string& day, const std::string& base) const {
    for (const std::string& name : {base + ".PDF", base + ".TXT", base + ".MT"})
        put((std::filesystem::path(day) / name).string(), contentOf(name));
}

}  // namespace vell::test
