// SPDX-License-Identifier: MIT
#include <optional>

#include <asio/io_context.hpp>
#include <asio/ip/tcp.hpp>
#include <gtest/gtest.h>

#include "net/ModRAS.h"
#include "platform/asio/AsioEventLoop.h"
#include "platform/posix/network/NetworkManagerClient.h"
#include "platform/posix/network/PosixConnection.h"
#include "platform/posix/network/PosixRas.h"
#include "tests/support/DrivenClock.h"
#include "tests/support/MockNetworkManager.h"

namespace vell::test {
namespace {

using std::chrono::seconds;
using Api = ConnectionApi;
using Lines = std::vector<std::string>;
constexpr seconds patience{5};
const std::string mobile = "\xCA\xE9\xED\xE7\xF4\xFC";

class NetworkManagerTest : public testing::Test, protected ErrorLog {
  protected:
    void LogError(const RunTimeError& error, std::string_view) noexcept override { ADD_FAILURE() << error.what(); }
    void SetUp() override {
        if (!MockNetworkManager::isAvailable()) GTEST_SKIP() << "needs the packages dbus and python3-dbusmock";
        start("{}");
    }
    void start(const std::string& parameters) {
        mock_.emplace(parameters);
        client_.emplace(loop_, clock_, mock_->address(), patience);
        connection_.emplace(*client_, [] { return std::string(); });
    }
    bool dial(const std::string& name) { return connection_->InternetDial(0, name, 0, handle_) == 0; }
    // On line or not, and the flags.
    using State = std::pair<bool, std::uint32_t>;
    State state() {
        State now;
        now.first = connection_->InternetGetConnectedState(now.second);
        return now;
    }

    DrivenClock clock_;
    AsioEventLoop loop_{clock_};
    std::optional<MockNetworkManager> mock_;
    std::optional<NetworkManagerClient> client_;
    std::optional<PosixConnection> connection_;
    std::uint32_t handle_ = 0;
};

constexpr std::uint32_t configured = Api::RasInstalled | Api::Configured;

TEST_F(NetworkManagerTest, tellsTheStateOfTheMachine) {
    const std::pair<const char*, State> cases[] = {
        {R"({"primary": "802-3-ethernet"})", State{true, configured | Api::Lan}},
        {R"({"primary": "gsm"})", State{true, configured | Api::Modem}},
        {R"({"primary": "802-11-wireless", "connectivity": 2})", State{false, configured | Api::Modem}},
        {R"({"networking": false})", State{false, configured | Api::Modem | Api::Offline}}};
    for (const auto& [parameters, expected] : cases) {
        start(parameters);
        EXPECT_EQ(state(), expected) << parameters;
    }
    EXPECT_TRUE(connection_->SetConnectedState(1, 0)) << connection_->LastReason();
    EXPECT_EQ(state(), (State{true, configured | Api::Lan}));
}

TEST_F(NetworkManagerTest, dialsAProfileAndHangsItUp) {
    for (const std::string& name : {std::string("My ISP"), mobile + " "}) {
        EXPECT_TRUE(dial(name)) << connection_->LastReason();
        EXPECT_EQ(state(), (State{true, configured | Api::Modem}));
        EXPECT_EQ(connection_->InternetHangUp(handle_), 0U) << connection_->LastReason();
        EXPECT_EQ(state(), (State{false, configured | Api::Modem}));
        EXPECT_EQ(connection_->InternetHangUp(handle_), 0U);
    }
    EXPECT_TRUE(dial("My ISP"));
    EXPECT_TRUE(connection_->InternetAutodialHangup());
    EXPECT_TRUE(client_->links().empty());
}

TEST_F(NetworkManagerTest, saysWhyADialFailedAndLeavesNoHalfLine) {
    const std::pair<std::string, std::string> reasons[] = {
        {"Forbidden", "NetworkManager refused, not authorised: Not authorized to control networking."},
        {"Wrong PIN", "the link did not come up: the login was refused"},
        {"Endless", "NetworkManager was waited for too long"},
        {"Home", "there is no dial-up profile 'Home'"},
        {"Crash", "NetworkManager went away"}};
    for (const auto& [name, reason] : reasons) {
        const SteadyTime before = clock_.Steady();
        EXPECT_FALSE(dial(name));
        EXPECT_EQ(connection_->LastReason(), reason);
        EXPECT_EQ(connection_->LastError(), 0);
        EXPECT_LT(clock_.Steady() - before, patience + seconds{1}) << name;
        EXPECT_TRUE(client_->links().empty()) << name;
    }
}

TEST_F(NetworkManagerTest, endsADialWhenTheUserStopsItOrTheBusGoesAway) {
    const auto timer = loop_.SetTimer(100, [&] { connection_->CancelWaits(); });
    EXPECT_FALSE(dial("Endless"));
    EXPECT_EQ(connection_->LastReason(), "stopped by the user");
    loop_.KillTimer(timer);
    EXPECT_FALSE(dial("No bus"));
    EXPECT_EQ(connection_->LastReason(), "NetworkManager went away");
    EXPECT_FALSE(client_->state());
}

TEST_F(NetworkManagerTest, joinsADialThatIsUnderWay) {
    bool inner = false;
    EventLoop::TimerId timer = 0;
    timer = loop_.SetTimer(30, [&] {
        loop_.KillTimer(timer);
        inner = dial("My ISP");
    });
    EXPECT_TRUE(dial("My ISP"));
    EXPECT_TRUE(inner);
    EXPECT_EQ(client_->links().size(), 1U);
}

TEST_F(NetworkManagerTest, isAPhoneBook) {
    PosixRas api(*client_);
    ModRAS ras(api, *this);
    Lines names;
    EXPECT_EQ(ras.VBRasGetAllEntries("", names), 7);
    EXPECT_EQ(names, (Lines{"My ISP", mobile, "Forbidden", "Endless", "Crash", "No bus", "Wrong PIN"}));
    EXPECT_TRUE(dial("My ISP"));
    EXPECT_TRUE(dial(mobile));
    EXPECT_TRUE(ras.hangUp(" My ISP"));
    EXPECT_EQ(ras.GetDialUpConnections(), Lines{mobile});
    EXPECT_TRUE(ras.hangUpAll());
    EXPECT_TRUE(client_->links().empty());
    EXPECT_EQ(ras.errorText(668), "The connection dropped.");
}

TEST_F(NetworkManagerTest, judgesByTheInterfacesWhereThereIsNoNetworkManager) {
    const NetworkInterface loopback{"lo", true, true, true}, down{"eth0", false, false, true};
    const NetworkInterface bare{"eth0", true, false, false}, lan{"wlan0", true, false, true};
    const NetworkInterface modem{"ppp0", true, false, true};
    const State offProxy{false, Api::Proxy}, onProxy{true, Api::Proxy | Api::Configured};
    const State onLan{true, Api::Lan | Api::Configured}, onModem{true, Api::Modem | Api::Configured};
    const std::tuple<std::vector<NetworkInterface>, std::string, State> cases[] = {
        {{loopback, down, bare}, "", {false, 0}},
        {{loopback, modem, lan}, "", onLan},
        {{modem}, "", onModem},
        {{}, "http://proxy.example:3128", offProxy},
        {{}, "http://127.evil.example", offProxy},
        {{}, "http://127.0.0.1:3128/", onProxy},
        {{}, "LOCALHOST:8080", onProxy},
        {{}, "http://a:b@[::1]:3128", onProxy}};
    NetworkManagerClient nobody(loop_, clock_, "unix:path=/nonexistent/bus");
    for (const auto& [interfaces, proxy, expected] : cases) {
        connection_.emplace(
            nobody, [given = proxy] { return given; }, [given = interfaces] { return given; });
        EXPECT_EQ(state(), expected) << proxy;
        EXPECT_FALSE(dial("My ISP"));
        EXPECT_EQ(connection_->LastReason(), "NetworkManager cannot be reached");
    }
    EXPECT_FALSE(PosixRas(nobody).isInstalled());
}

TEST_F(NetworkManagerTest, waitsTwoSecondsForABusThatIsSilent) {
    // It takes connections and never says a word.
    const asio::ip::tcp::acceptor silent(loop_.context(), {asio::ip::address_v4::loopback(), 0});
    const std::string port = std::to_string(silent.local_endpoint().port());
    NetworkManagerClient client(loop_, clock_, "tcp:host=127.0.0.1,port=" + port);
    const SteadyTime before = clock_.Steady();
    EXPECT_FALSE(client.state());
    EXPECT_EQ(client.lastReason(), "the message bus does not answer");
    EXPECT_LT(clock_.Steady() - before, seconds{3});
}

}  // namespace
}  // namespace vell::test
