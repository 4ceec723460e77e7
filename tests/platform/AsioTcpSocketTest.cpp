// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <filesystem>
#include <functional>
#include <future>
#include <string>
#include <thread>
#include <vector>

#include <asio/ip/tcp.hpp>
#include <asio/write.hpp>
#include <fcntl.h>
#include <gmock/gmock.h>

#include "base/errors.h"
#include "platform/asio/AsioEventLoop.h"
#include "platform/asio/AsioSockets.h"
#include "tests/support/DrivenClock.h"

namespace vell::test {
namespace {

using namespace std::string_literals;
using asio::ip::tcp;
using testing::AllOf;
using testing::ElementsAre;
using testing::Ge;
using testing::IsEmpty;
using testing::Le;

// A socket that writes down what it is told. It accepts whoever comes and reads what arrives, unless told otherwise.
struct End : TcpSocketEvents {
    explicit End(Sockets& sockets) : Socket(sockets.Make(*this)) {}
    void Connected() override { tell("Connected"); }
    void ConnectionRequest() override {
        if (Accepts) Socket->Accept();
        tell("ConnectionRequest");
    }
    void DataArrival(std::size_t bytes) override {
        EXPECT_EQ(bytes, Socket->BytesReceived());
        if (Reads) Got += Socket->GetData(bytes);
        tell("DataArrival");
    }
    void SendComplete(std::size_t bytes) override {
        Sent += bytes;
        tell("SendComplete");
    }
    void PeerClosed() override { tell("PeerClosed"); }
    void SocketError(std::int32_t number, const std::string& description) override {
        EXPECT_NE(description, "");
        tell("SocketError " + std::to_string(number));
    }
    void tell(const std::string& event) {
        Events.push_back(event);
        if (During) During(event);
    }

    std::unique_ptr<TcpSocket> Socket;
    bool Accepts = true;
    bool Reads = true;
    std::vector<std::string> Events;
    std::string Got;
    std::size_t Sent = 0;
    std::function<void(const std::string& event)> During;
};

tcp::endpoint at(const char* address, std::uint16_t port) {
    return {asio::ip::make_address(address), port};
}

// A peer that does what a well-behaved one would not. It blocks, but the system's own half of a connection answers it.
class RawPeer {
  public:
    explicit RawPeer(std::uint16_t port, const char* from = "127.0.0.1") : socket_(context_, at(from, 0)) {
        socket_.connect(at("127.0.0.1", port), problem_);
    }
    bool connected() const { return !problem_; }
    void send(const std::string& bytes) { asio::write(socket_, asio::buffer(bytes)); }
    void endSending() { socket_.shutdown(tcp::socket::shutdown_send); }
    void reset() {
        socket_.set_option(asio::socket_base::linger(true, 0));
        socket_.close();
    }
    bool turnedAway() {
        char byte = 0;
        socket_.non_blocking(true);
        socket_.read_some(asio::buffer(&byte, 1), problem_);
        return problem_ == asio::error::eof || problem_ == asio::error::connection_reset;
    }

  private:
    asio::io_context context_;
    asio::error_code problem_;
    tcp::socket socket_;
};

// An address that never answers: its queue of connections is full, so the system drops whoever else comes.
class SilentPort {
  public:
    SilentPort(const char* address, std::uint16_t port) : silent_(context_, tcp::v4()) {
        silent_.bind(at(address, port));
        silent_.listen(0);
        for (tcp::socket& waiting : waiting_)
            waiting.async_connect(at(address, port), [](asio::error_code) {});
    }

  private:
    asio::io_context context_;
    tcp::acceptor silent_;
    tcp::socket waiting_[2]{tcp::socket(context_), tcp::socket(context_)};
};

class AsioTcpSocketTest : public testing::Test {
  protected:
    // As the program waits: wait, yield, look.
    bool until(const std::function<bool()>& come) {
        for (int turn = 0; turn < 3000; ++turn) {
            if (come()) return true;
            loop_.WaitForEvents(10);
            loop_.DoEvents();
        }
        return false;
    }
    bool untilTold(const End& end, const std::string& event) {
        return until([&] { return !end.Events.empty() && end.Events.back() == event; });
    }
    void quiet() {
        until([turns = 0]() mutable { return ++turns > 10; });
    }
    void join() {
        server_.Socket->Listen("127.0.0.1");
        client_.Socket->Connect("127.0.0.1", server_.Socket->LocalPort());
        ASSERT_TRUE(untilTold(client_, "Connected"));
        ASSERT_TRUE(untilTold(server_, "ConnectionRequest"));
    }

    DrivenClock clock_{{{2004, 3, 7}, 6, 29, 0}, std::chrono::milliseconds{5}};
    AsioEventLoop loop_{clock_};
    AsioSockets sockets_{loop_};
    End server_{sockets_};
    End client_{sockets_};
};

std::string unlikeBytes(std::size_t count) {
    std::string bytes(count, '\0');
    std::ranges::generate(bytes, [n = 0U]() mutable { return static_cast<char>(n++ * 7919 >> 8); });
    return bytes;
}

std::int32_t numberOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const RunTimeError& error) {
        return error.Number;
    }
    return 0;
}

TEST_F(AsioTcpSocketTest, goesTheStatesWayToAConnection) {
    const std::pair<const char*, const char*> hosts[] = {
        {"127.0.0.1", "127.0.0.1"}, {"::1", "::1"}, {"localhost", "127.0.0.1"}};
    for (const auto& [host, address] : hosts) {
        End server(sockets_), client(sockets_);
        const bool lacks = numberOf([&, at = address] { server.Socket->Listen(at); }) != 0;
        if (lacks && address == "::1"s) continue;
        client.Socket->Connect(host, server.Socket->LocalPort());
        std::vector<SocketState> states{client.Socket->State()};
        EXPECT_TRUE(until([&] {
            if (client.Socket->State() != states.back()) states.push_back(client.Socket->State());
            return !client.Events.empty() && !server.Events.empty();
        })) << host;
        EXPECT_THAT(states, testing::IsSubsetOf({SocketState::ResolvingHost, SocketState::HostResolved,
                                                 SocketState::Connecting, SocketState::Connected}));
        EXPECT_EQ(states.front(), SocketState::ResolvingHost);
        EXPECT_EQ(states.back(), SocketState::Connected);
        EXPECT_EQ(server.Socket->RemoteHostIP(), address);
        EXPECT_EQ(client.Socket->LocalIP(), address);
    }
}

TEST_F(AsioTcpSocketTest, tellsNothingBeforeAYield) {
    join();
    client_.Events.clear();
    client_.Socket->SendData("USER ann\r\n");
    server_.Socket->SendData("331 ");
    EXPECT_THAT(client_.Events, IsEmpty());
    EXPECT_TRUE(until([&] { return server_.Got == "USER ann\r\n"; }));
    EXPECT_TRUE(until([&] { return client_.Got == "331 "; }));
    EXPECT_TRUE(until([&] { return client_.Sent == 10; }));
    server_.Socket->SendData("bye");
    server_.Socket->Close();
    EXPECT_TRUE(untilTold(client_, "PeerClosed"));
    EXPECT_EQ(client_.Got, "331 bye");
}

TEST_F(AsioTcpSocketTest, triesAllAddressesAndTellsWhyNoneWillDo) {
    server_.Socket->Listen("127.0.0.1");
    const SilentPort silent("127.0.0.4", server_.Socket->LocalPort());
    const std::pair<std::vector<std::string>, const char*> hosts[] = {

        {{"127.0.0.4", "127.0.0.3", "127.0.0.1"}, "Connected"},
        {{"127.0.0.3"}, "SocketError 10061"},
        {{}, "SocketError 11001"}};
    for (const auto& [addresses, told] : hosts) {
        AsioSockets sockets(loop_, [found = addresses](const std::string&) { return found; });
        End client(sockets);
        client.Socket->Connect("ftp.example", server_.Socket->LocalPort());
        EXPECT_TRUE(untilTold(client, told)) << told;
        EXPECT_THAT(client.Events, ElementsAre(told));
        EXPECT_EQ(client.Socket->State(), addresses.size() > 1 ? SocketState::Connected : SocketState::Error);
    }
    client_.Socket->Connect("localhost\0.example"s, 21);
    EXPECT_TRUE(untilTold(client_, "SocketError 11001"));
}

TEST_F(AsioTcpSocketTest, hearsThePeersLastWordsBeforeItsEnd) {
    enum How { ByReset, ByResetWhileWeSend, ByClosing };
    for (const How how : {ByReset, ByResetWhileWeSend, ByClosing}) {
        server_.Socket->Listen("127.0.0.1");
        RawPeer peer(server_.Socket->LocalPort());
        EXPECT_TRUE(untilTold(server_, "ConnectionRequest"));
        server_.Reads = false;
        server_.Events.clear();
        peer.send("421 bye");
        how == ByClosing ? peer.endSending() : peer.reset();
        if (how == ByResetWhileWeSend) server_.Socket->SendData("RETR A.PDF\r\n");
        const std::string end = how == ByClosing ? "PeerClosed" : "SocketError 10054";
        EXPECT_TRUE(untilTold(server_, end)) << how;
        EXPECT_THAT(server_.Events, ElementsAre("DataArrival", end));
        EXPECT_EQ(server_.Socket->State(), how == ByClosing ? SocketState::Closing : SocketState::Error);
        EXPECT_EQ(server_.Socket->GetData(4) + server_.Socket->GetData(100), "421 bye");
        EXPECT_EQ(numberOf([&] { server_.Socket->SendData("NOOP\r\n"); }), 40006);
        server_.Socket->Close();
    }
}

TEST_F(AsioTcpSocketTest, receivesNoMoreThanTheOwnerCanHoldAndGoesOnWhenItReads) {
    const std::string much = unlikeBytes(8'000'000);
    join();
    server_.Reads = false;
    client_.Socket->SendData(much.substr(0, 5'000'000));
    client_.Socket->SendData(much.substr(5'000'000));
    quiet();
    EXPECT_THAT(server_.Socket->BytesReceived(), AllOf(Ge(1U), Le(512U * 1024)));
    std::string got;
    EXPECT_TRUE(until([&] {
        while (server_.Socket->BytesReceived() != 0)
            got += server_.Socket->GetData(2048);
        return got.size() == much.size();
    }));
    EXPECT_TRUE(got == much);
    EXPECT_TRUE(until([&] { return client_.Sent == much.size(); }));
    EXPECT_EQ(client_.Socket->BytesToSend(), 0U);
}

TEST_F(AsioTcpSocketTest, letsInTheExpectedPeerAloneAndNobodyAfterIt) {
    server_.Accepts = false;
    server_.Socket->Listen("127.0.0.1");
    server_.Socket->ExpectPeer("127.0.0.1");
    const std::uint16_t port = server_.Socket->LocalPort();
    RawPeer stranger(port, "127.0.0.2");
    EXPECT_TRUE(until([&] { return stranger.turnedAway(); }));
    EXPECT_THAT(server_.Events, IsEmpty());
    RawPeer expected(port);
    ASSERT_TRUE(untilTold(server_, "ConnectionRequest"));
    EXPECT_EQ(server_.Socket->State(), SocketState::ConnectionPending);
    EXPECT_FALSE(RawPeer(port).connected());
    expected.send("x");
    server_.Socket->Accept();
    EXPECT_TRUE(untilTold(server_, "DataArrival"));
}

TEST_F(AsioTcpSocketTest, isSilentOnceItIsClosedOrDestroyedInItsOwnEvent) {
    const std::pair<const char*, bool> events[] = {{"ConnectionRequest", true}, {"SendComplete", true},
                                                   {"Connected", false},        {"DataArrival", false},
                                                   {"PeerClosed", false},       {"SocketError 10061", false}};
    for (const auto& [event, atServer] : events) {
        for (const bool destroys : {false, true}) {
            End server(sockets_), client(sockets_);
            server.Socket->Listen("127.0.0.1");
            client.Socket->Connect("127.0.0.1", server.Socket->LocalPort());
            if (event == "SocketError 10061"s) server.Socket->Close();
            server.During = [&](const std::string& told) {
                told == "ConnectionRequest" ? server.Socket->SendData("220 ready\r\n") : server.Socket->Close();
            };
            End& closing = atServer ? server : client;
            closing.During = [&, mine = event, usual = closing.During](const std::string& told) {
                if (told != mine) return usual ? usual(told) : void();
                closing.Socket->Close();
                if (destroys) closing.Socket.reset();
                loop_.DoEvents();
            };
            EXPECT_TRUE(untilTold(closing, event)) << event;
            quiet();
            EXPECT_EQ(closing.Events.back(), event);
        }
    }
}

TEST(AsioTcpSocketResolvingTest, nobodyWaitsForANameServerAndALateAnswerReachesNobody) {
    for (const bool inTime : {true, false}) {
        std::promise<std::vector<std::string>> answer;
        auto coming = std::make_shared<std::shared_future<std::vector<std::string>>>(answer.get_future().share());
        const std::weak_ptr<void> inThreads = coming;
        {
            DrivenClock clock;
            AsioEventLoop loop(clock);
            AsioSockets sockets(loop, [asked = std::move(coming)](const std::string&) { return asked->get(); });
            End again(sockets), destroyed(sockets);
            again.Socket->Connect("silent.example", 21);
            again.Socket->Close();
            again.Socket->Connect("silent.example", 21);
            destroyed.Socket->Connect("silent.example", 21);
            destroyed.Socket.reset();
            loop.WaitForEvents(10);
            EXPECT_EQ(again.Socket->State(), SocketState::ResolvingHost);
            if (inTime) answer.set_exception(std::make_exception_ptr(RunTimeError(11002, "No answer")));
            for (int turn = 0; turn < 50; ++turn)
                loop.WaitForEvents(10);
            EXPECT_EQ(again.Events, std::vector<std::string>(inTime ? 1 : 0, "SocketError 11002"));
            EXPECT_THAT(destroyed.Events, IsEmpty());
        }
        if (!inTime) answer.set_value({"127.0.0.1"});
        while (!inThreads.expired())
            std::this_thread::yield();
    }
}

TEST_F(AsioTcpSocketTest, handlersThatYieldGetEveryEventInOrderAndNotTooDeep) {
    const std::string much = unlikeBytes(6'000'000);
    join();
    int depth = 0, deepest = 0;
    server_.During = [&](const std::string&) {
        deepest = std::max(deepest, ++depth);
        loop_.DoEvents();
        --depth;
    };
    client_.During = [&](const std::string& told) {
        loop_.DoEvents();
        if (told == "SendComplete") client_.Socket->Close();
    };
    client_.Socket->SendData(much);
    EXPECT_TRUE(untilTold(server_, "PeerClosed"));
    EXPECT_TRUE(server_.Got == much);
    EXPECT_EQ(std::ranges::count(server_.Events, "PeerClosed"), 1);
    EXPECT_THAT(deepest, AllOf(Ge(2), Le(20)));
}

TEST_F(AsioTcpSocketTest, refusesWhatTheStateOrTheMachineDoesNotAllow) {
    TcpSocket& socket = *client_.Socket;
    EXPECT_EQ(numberOf([&] { socket.SendData("x"); }), 40006);
    EXPECT_EQ(numberOf([&] { socket.Accept(); }), 40020);
    EXPECT_EQ(numberOf([&] { socket.Connect("", 21); }), 10049);
    EXPECT_EQ(numberOf([&] { socket.Connect("127.0.0.1", 0); }), 10049);
    EXPECT_EQ(numberOf([&] { socket.Listen("192.0.2.1"); }), 10049);
    EXPECT_EQ(socket.State(), SocketState::Closed);
    EXPECT_THAT((std::vector{socket.GetData(1), socket.LocalIP(), socket.RemoteHostIP()}), testing::Each(""));
    join();
    EXPECT_EQ(numberOf([&] { socket.Connect("127.0.0.1", 21); }), 40020);
    EXPECT_EQ(numberOf([&] { socket.Listen(""); }), 40020);
    EXPECT_EQ(numberOf([&] { server_.Socket->Accept(); }), 40020);
}

TEST_F(AsioTcpSocketTest, isNotInheritedByOtherPrograms) {
    End listening(sockets_);
    listening.Socket->Listen("");
    join();
    std::vector<bool> kept;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code gone;
        if (!std::filesystem::read_symlink(entry, gone).string().starts_with("socket:")) continue;
        kept.push_back((fcntl(std::stoi(entry.path().filename()), F_GETFD) & FD_CLOEXEC) != 0);
    }
    EXPECT_THAT(kept, AllOf(testing::SizeIs(Ge(3U)), testing::Each(true)));
}

}  // namespace
}  // namespace vell::test
