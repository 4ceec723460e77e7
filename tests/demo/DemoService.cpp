// SPDX-License-Identifier: MIT
#include "tests/demo/DemoService.h"

#include <sstream>
#include <stdexcept>
#include <thread>

namespace vell::test {

namespace {

std::vector<std::string> serviceWords(const TempFolder& root, const TempFolder& ready,
                                      const std::vector<std::string>& options) {
    std::vector<std::string> words{VELL_DEMO_SERVICE, "--root", root.text(), "--for", "60"};
    words.insert(words.end(), {"--ready-file", ready.text() + "/ready"});
    words.insert(words.end(), options.begin(), options.end());
    return words;
}

}  // namespace

std::string contentOf(const std::string& name) {
    std::string content;
    for (int i = 0; !name.empty() && i < 40 + name.back(); ++i)
        content += name;
    return content;
}

SmallTree::SmallTree() {
    put("users.tsv", "user\tpassword\ndemo\tdemo\nΆννα\tμυστικό\nodd\ta&b=c%41+d\n");
    put("ADVERTISMENT.JPG", contentOf("ADVERTISMENT.JPG"));
    put("07032004/clippings.tsv",
        "\xEF\xBB\xBF"
        "file\tnewspaper\ttitle\tcategory\ttype\tchange\r\n"
        "NEA02_20040307.PDF\tΤο Κύμα\t\tΟΙΚΟΝΟΜΙΑ|ΠΟΛΙΤΙΚΗ\tΑΡΘΡΟ\t3\r\n\r\n"
        "nea01_20040307.pdf\tThe Lantern\tΆνεμος & wind\tECONOMY|\t\t7\r\n");
    put("07032004/alert.txt", "Προσοχή\r\n");
    put("09032004/clippings.tsv", "newspaper\tfile\nΤο Κύμα\tNEA01_20040309.PDF\nΤο Κύμα\tX.PDF\n");
    putClipping("07032004", "NEA01_20040307");
    putClipping("07032004", "NEA02_20040307");
    putClipping("09032004", "NEA01_20040309");
    putClipping("09032004", "X");
}

void SmallTree::putClipping(const std::string& day, const std::string& base) const {
    for (const std::string& name : {base + ".PDF", base + ".TXT", base + ".MT"})
        put((std::filesystem::path(day) / name).string(), contentOf(name));
}

DemoService::DemoService(const TempFolder& root, const std::vector<std::string>& options)
    : process_(serviceWords(root, folder_, options)) {
    while (!folder_.has("ready")) {
        if (!process_.isRunning()) throw std::runtime_error("no service: " + process_.end().Errors);
        std::this_thread::sleep_for(std::chrono::milliseconds{5});
    }
    std::string http, ftp;
    std::istringstream(folder_.get("ready")) >> http >> http_ >> ftp >> ftp_;
    if (http + ftp != "httpftp") throw std::runtime_error("not as expected: " + folder_.get("ready"));
}

Ended DemoService::stop(int signal) {
    process_.send(signal);
    return process_.end();
}

asio::ip::tcp::iostream streamTo(const std::string& place) {
    const auto colon = place.rfind(':');
    asio::ip::tcp::iostream stream;
    stream.expires_after(std::chrono::seconds{20});
    stream.connect(place.substr(0, colon), place.substr(colon + 1));
    if (!stream) throw std::runtime_error("cannot reach " + place);
    stream.socket().set_option(asio::ip::tcp::no_delay(true));
    return stream;
}

std::string rest(std::istream& stream) {
    return {std::istreambuf_iterator<char>(stream), {}};
}

HttpAnswer answerTo(const std::string& place, const std::string& bytes) {
    auto stream = streamTo(place);
    stream << bytes << std::flush;
    const std::string all = rest(stream);
    if (stream.error() && stream.error() != asio::error::eof) throw std::runtime_error(stream.error().message());
    const auto end = all.find("\r\n\r\n");
    if (end == std::string::npos) return {};
    return {std::stoi(all.substr(all.find(' '))), all.substr(0, end), all.substr(end + 4)};
}

HttpAnswer get(const std::string& place, const std::string& address) {
    return answerTo(place, "GET " + address + " HTTP/1.0\r\n\r\n");
}

HttpAnswer post(const std::string& place, const std::string& address, const std::string& body) {
    return answerTo(place, "POST " + address + " HTTP/1.0\r\nContent-Type: application/x-www-form-urlencoded\r\n" +
                               "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body);
}

}  // namespace vell::test
