// SPDX-License-Identifier: MIT
#include <array>
#include <future>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/SystemTypes.h"
#include "platform/asio/AsioEventLoop.h"
#include "tests/support/DrivenClock.h"
#include "tests/support/HttpPeer.h"
#include "tests/support/system.h"

namespace vell {
namespace {

using test::DrivenClock;
using test::HttpPeer;
using test::removeVariable;
using Cancel = InternetApi::Cancel;

class InternetTest : public testing::Test {
  protected:
    InternetTest() {
        for (const char* proxy : {"http_proxy", "https_proxy", "all_proxy"})
            removeVariable(proxy);
    }
    struct Got {
        std::string Body;
        bool Whole = false;
        std::size_t LongestRead = 0;
    };

    InternetApi::Handle openUrl(const std::string& address) {
        session_ = internet_.InternetOpen("VELL_2.1.37_user:ann");
        return internet_.InternetOpenUrl(*session_, address);
    }

    InternetApi::Handle post(const HttpPeer& peer, const std::string& form, const std::string& user = "",
                             const std::string& password = "") {
        const auto at = peer.address().find(':');
        session_ = internet_.InternetOpen("VELL_2.1.37_user:ann");
        connection_ = internet_.InternetConnect(*session_, peer.address().substr(0, at),
                                                std::stoi(peer.address().substr(at + 1)), user, password);
        auto request = internet_.HttpOpenRequest(*connection_, "POST", "/list.asp", "HTTP/1.0");
        internet_.HttpAddRequestHeaders(*request, "Content-Type: application/x-www-form-urlencoded\r\n");
        sent_ = internet_.HttpSendRequest(*request, form);
        return request;
    }

    Got readAll(InternetApi::Object& request) {
        Got got;
        std::array<char, 2048> buffer{};
        std::size_t read = 0;
        while ((got.Whole = internet_.InternetReadFile(request, buffer.data(), buffer.size(), read)) && read > 0) {
            got.Body.append(buffer.data(), read);
            got.LongestRead = std::max(got.LongestRead, read);
        }
        return got;
    }

    DrivenClock clock_;
    AsioEventLoop loop_{clock_};
    SystemInternet internet_{loop_, clock_};
    InternetApi::Handle session_;
    InternetApi::Handle connection_;
    bool sent_ = false;
};

TEST_F(InternetTest, sendsTheFormAsItStandsAndReadsInSteps) {
    const std::string body(5000, '\xE1');
    HttpPeer peer([&](const std::string&) { return HttpPeer::ok(body); });
    const auto request = post(peer, "username=a&password=\xC1 %&dd1=07");
    ASSERT_TRUE(sent_);
    const Got got = readAll(*request);
    EXPECT_TRUE(got.Whole);
    EXPECT_EQ(got.Body, body);
    EXPECT_EQ(got.LongestRead, 2048U);
    EXPECT_EQ(internet_.RawHeaders(*request, 1024), "HTTP/1.0 200 OK\r\nContent-Length: 5000\r\n");
    EXPECT_EQ(internet_.RawHeaders(*request, 8), "HTTP/1.0");
    const std::string sent = peer.requests().at(0);
    for (const char* part : {"POST /list.asp HTTP/1.0\r\n", "\r\nUser-Agent: VELL_2.1.37_user:ann\r\n",
                             "\r\nContent-Type: application/x-www-form-urlencoded\r\n", "\r\nPragma: no-cache\r\n",
                             "\r\n\r\nusername=a&password=\xC1 %&dd1=07"})
        EXPECT_NE(sent.find(part), std::string::npos) << part;
}

TEST_F(InternetTest, tellsWholeAnswersFromBrokenOnes) {
    struct Row {
        std::string answer, body;
        bool whole = false, opens = true;
    };
    for (const Row& row : std::initializer_list<Row>{
             {"HTTP/1.0 200 OK\r\nContent-Length: 10\r\n\r\n12345", "12345"},
             {"HTTP/1.0 200 OK\r\nContent-Length: 10\r\n\r\n", ""},
             {"HTTP/1.0 200 OK\r\nContent-Le", ""},
             {"HTTP/1.0 200 OK\r\n\r\n12345", "12345", true},
             {"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n3\r\nabc\r\n0\r\n\r\n", "abc", true},
             {"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n3\r\nabc\r\n", "abc"},
             {"HTTP/1.1 100 Continue\r\n\r\nHTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n", "", true},
             {"", "", false, false},
             {"220 not HTTP at all\r\n", "", false, false},
             {"HTTP/1.0 302 Found\r\nLocation: ftp://127.0.0.1/x\r\nContent-Length: 0\r\n\r\n", "", false, false},
             {"HTTP/1.0 302 Found\r\nLocation: /again\r\nContent-Length: 0\r\n\r\n", "", false, false}}) {
        HttpPeer peer([&](const std::string&) { return HttpPeer::Answer{row.answer}; });
        const auto file = openUrl("http://" + peer.address() + "/a b.pdf");
        ASSERT_EQ(file != nullptr, row.opens) << row.answer;
        EXPECT_EQ(peer.requests().at(0).substr(0, 25), "GET /a%20b.pdf HTTP/1.1\r\n");
        EXPECT_LE(peer.requests().size(), 11U);
        if (!file) {
            EXPECT_GT(internet_.LastError(), 12000) << row.answer;
            continue;
        }
        EXPECT_EQ(internet_.StatusCode(*file), "200");
        const Got got = readAll(*file);
        EXPECT_EQ(got.Body, row.body) << row.answer;
        EXPECT_EQ(got.Whole, row.whole) << row.answer;
    }
}

TEST_F(InternetTest, sendsCredentialsOnlyWhenTheServerAsksForThem) {
    HttpPeer peer([](const std::string& request) {
        if (request.find("Authorization: Basic YW5uOnNlY3JldA==") != std::string::npos) return HttpPeer::ok("in");
        return HttpPeer::status("401 Unauthorized", "WWW-Authenticate: Basic realm=\"x\"\r\n", "go away");
    });
    const auto request = post(peer, "a=b", "ann", "secret");
    EXPECT_EQ(readAll(*request).Body, "in");
    EXPECT_EQ(internet_.RawHeaders(*request, 1024).substr(0, 15), "HTTP/1.0 200 OK");
    ASSERT_EQ(peer.requests().size(), 2U);
    EXPECT_EQ(peer.requests()[0].find("Authorization"), std::string::npos);
    EXPECT_THAT(peer.requests()[1], testing::EndsWith("a=b"));
}

TEST_F(InternetTest, aHandlerThatHoldsTheLoopForMinutesIsNoSilenceOfTheServers) {
    std::promise<void> held;
    HttpPeer peer([&](const std::string&) {
        held.get_future().wait();
        return HttpPeer::ok("late");
    });
    EventLoop::TimerId timer = 0;
    timer = loop_.SetTimer(20, [&] {  // a dialog that the user leaves open, say
        loop_.KillTimer(timer);
        clock_.advance(std::chrono::minutes{2});
        clock_.setRealMoment(std::chrono::seconds{10});  // a wait ends as soon as there is something
        held.set_value();
    });
    const auto request = openUrl("http://" + peer.address() + "/o");
    ASSERT_NE(request, nullptr) << internet_.LastError();
    EXPECT_EQ(readAll(*request).Body, "late");
}

TEST_F(InternetTest, givesUpAfterThirtySecondsOfSilence) {
    clock_.setRealMoment(std::chrono::milliseconds{0});
    for (const char* beginning : {"", "HTTP/1.0 200 OK\r\nContent-Length: 10\r\n\r\n12345"}) {
        HttpPeer peer([&](const std::string&) { return HttpPeer::Answer{beginning, true}; });
        const SteadyTime begun = clock_.Steady();
        const auto file = openUrl("http://" + peer.address() + "/x.pdf");
        if (file) {
            EXPECT_FALSE(readAll(*file).Whole);
        }
        EXPECT_EQ(internet_.LastError(), 12002);
        const auto waited = clock_.Steady() - begun;
        EXPECT_GE(waited, std::chrono::seconds{30});
        EXPECT_LT(waited, std::chrono::seconds{61});  // the silence begins anew with each byte
    }
}

TEST_F(InternetTest, isCancelledWhileItWaits) {
    for (const auto& [which, patience] : {std::pair{Cancel::All, 0}, std::pair{Cancel::Stalled, 1}}) {
        HttpPeer peer([](const std::string&) { return HttpPeer::Answer{"", true}; });
        EventLoop::TimerId timer = 0;
        timer = loop_.SetTimer(5000, [&, cancel = which] {
            internet_.CancelRequests(cancel);
            loop_.KillTimer(timer);
        });
        const SteadyTime begun = clock_.Steady();
        EXPECT_EQ(openUrl("http://" + peer.address() + "/x.pdf"), nullptr);
        EXPECT_EQ(internet_.LastError(), 12017);
        EXPECT_LT(clock_.Steady() - begun, std::chrono::milliseconds{5100 + patience});
    }
}

TEST_F(InternetTest, aScriptThatSendsIsGivenUpAtTheFirstStop) {
    HttpPeer peer([](const std::string&) { return HttpPeer::Answer{"HTTP/1.0 200 OK\r\n\r\nbegin", true}; });
    const auto request = post(peer, "a=b");
    internet_.CancelRequests(Cancel::Stalled);
    EXPECT_FALSE(readAll(*request).Whole);
    EXPECT_EQ(internet_.LastError(), 12017);
}

TEST_F(InternetTest, givesUpAServerThatDripsForFiveMinutes) {
    clock_.setRealMoment(std::chrono::milliseconds{0});
    for (const auto& [perSecond, error] : {std::pair{60, 12002}, std::pair{70, 0}}) {
        const std::string portion(static_cast<std::size_t>(perSecond) * 20, 'x');
        const std::string length = std::to_string(portion.size() * 20);  // 400 seconds' worth
        HttpPeer peer([&](const std::string&) {
            return HttpPeer::Answer{"HTTP/1.0 200 OK\r\nContent-Length: " + length + "\r\n\r\n", true};
        });
        const auto timer = loop_.SetTimer(20'000, [&] { peer.say(portion); });
        const SteadyTime begun = clock_.Steady();
        const auto file = openUrl("http://" + peer.address() + "/x.pdf");
        ASSERT_NE(file, nullptr);
        EXPECT_EQ(readAll(*file).Whole, error == 0) << perSecond;
        loop_.KillTimer(timer);
        EXPECT_EQ(internet_.LastError(), 12002);
        const auto limit = std::chrono::seconds{error == 0 ? 400 : 300};
        EXPECT_EQ(std::chrono::round<std::chrono::seconds>(clock_.Steady() - begun), limit) << perSecond;
    }
}

TEST_F(InternetTest, whatNobodyReadsWaitsAtTheServer) {
    const std::string body(64U << 20, 'x');
    HttpPeer peer([&](const std::string&) { return HttpPeer::ok(body); });
    HttpPeer other([](const std::string&) { return HttpPeer::ok("other"); });
    const auto file = openUrl("http://" + peer.address() + "/large.pdf");
    const auto session = std::move(session_);
    for (int i = 0; i < 100; ++i)  // lets the network work
        ASSERT_NE(openUrl("http://" + other.address() + "/o"), nullptr);
    EXPECT_LT(peer.sentBytes(), body.size() / 2);
    EXPECT_EQ(readAll(*file).Body, body);
}

TEST_F(InternetTest, followsRedirectsWithoutTakingAnythingToAnotherHost) {
    HttpPeer other([](const std::string&) { return HttpPeer::ok("there"); });
    const std::string elsewhere = "http://localhost:" + other.address().substr(other.address().find(':') + 1) + "/t";
    const struct {
        std::string code, target;
        bool follows;
    } table[] = {{"302", "/t", true}, {"307", "/t", true}, {"302", elsewhere, false}, {"307", elsewhere, false}};
    for (const auto& row : table) {
        HttpPeer peer([&](const std::string& request) {
            return request.find(" /list.asp ") == std::string::npos
                       ? HttpPeer::ok("here")
                       : HttpPeer::status(row.code + " Elsewhere", "location:  " + row.target + "\r\n");
        });
        const auto request = post(peer, "password=x", "ann", "secret");
        EXPECT_EQ(sent_, row.follows) << row.code << row.target;
        EXPECT_EQ(readAll(*request).Body, row.follows ? "here" : "") << row.code << row.target;
        EXPECT_EQ(internet_.StatusCode(*request), row.follows ? "200" : row.code);
    }
    EXPECT_EQ(internet_.LastError(), 12156);
    EXPECT_THAT(other.requests(), testing::IsEmpty());

    HttpPeer peer([&](const std::string&) { return HttpPeer::status("302 Found", "Location: " + elsewhere + "\r\n"); });
    const auto file = openUrl("http://ann:secret@" + peer.address() + "/x.pdf");
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(readAll(*file).Body, "there");
    EXPECT_THAT(peer.requests().at(0), testing::HasSubstr("Authorization: "));
    EXPECT_THAT(other.requests().at(0), testing::Not(testing::HasSubstr("Authorization: ")));
}

TEST_F(InternetTest, manyFilesComeOverOneConnectionAndAClosedOneCostsANewOne) {
    enum class Server { Keeps, ClosesAfterEach, ClosesAsTheNextRequestComes };
    for (const auto& [server, connections] : {std::pair{Server::Keeps, 1}, std::pair{Server::ClosesAfterEach, 20},
                                              std::pair{Server::ClosesAsTheNextRequestComes, 20}}) {
        int seen = 0;
        HttpPeer peer([&, how = server](const std::string&) {
            const bool isFirst = peer.connections() != std::exchange(seen, peer.connections());
            if (!isFirst && how != Server::Keeps) return HttpPeer::Answer{""};
            HttpPeer::Answer answer = HttpPeer::ok("file");
            answer.Bytes.replace(0, 8, "HTTP/1.1");
            answer.Keeps = how != Server::ClosesAfterEach;
            return answer;
        });
        for (int i = 0; i < 20; ++i) {
            const auto file = openUrl("http://" + peer.address() + "/" + std::to_string(i));
            ASSERT_NE(file, nullptr) << internet_.LastError();
            EXPECT_EQ(readAll(*file).Body, "file");
        }
        EXPECT_EQ(peer.connections(), connections);
    }
}

TEST_F(InternetTest, anotherRequestMayRunInTheYieldsOfOne) {
    HttpPeer quick([](const std::string&) { return HttpPeer::ok("quick"); });
    HttpPeer stalling([](const std::string&) { return HttpPeer::Answer{"", true}; });
    std::string inner;
    EventLoop::TimerId timer = 0;
    timer = loop_.SetTimer(1000, [&] {
        loop_.KillTimer(timer);
        const auto session = internet_.InternetOpen("inner");
        const auto file = internet_.InternetOpenUrl(*session, "http://" + quick.address() + "/i");
        ASSERT_NE(file, nullptr);
        inner = readAll(*file).Body;
        internet_.CancelRequests(Cancel::All);
    });
    EXPECT_EQ(openUrl("http://" + stalling.address() + "/o"), nullptr);
    EXPECT_EQ(inner, "quick");
}

TEST_F(InternetTest, namesTheReasonWhenNobodyAnswers) {
    std::string address;
    {
        HttpPeer gone([](const std::string&) { return HttpPeer::ok(""); });
        address = gone.address();
    }
    EXPECT_EQ(openUrl("http://" + address + "/x"), nullptr);
    EXPECT_EQ(internet_.LastError(), 12029);
    EXPECT_EQ(internet_.InternetConnect(*session_, " ", 80, "", ""), nullptr);
    EXPECT_EQ(internet_.LastError(), 12005);
    EXPECT_EQ(openUrl("http://no-such-host.invalid/x"), nullptr);
    EXPECT_EQ(internet_.LastError(), 12007);
}

}  // namespace
}  // namespace vell
