// SPDX-License-Identifier: MIT
#include "platform/windows/internet/WinInetInternet.h"

#include <utility>

#include "base/text.h"
#include "platform/EventLoop.h"
#include "platform/windows/internet/Patience.h"
#include "platform/windows/internet/WinInetRequest.h"
#include "platform/windows/internet/sessionProxy.h"
#include "platform/windows/internetHeaders.h"
#include "platform/windows/systemText.h"

namespace vell {

namespace {

constexpr std::chrono::milliseconds step{10};

std::shared_ptr<InternetHandle> openSession(std::string_view agent) {
    const SessionProxy proxy = SessionProxy::fromEnvironment();
    const bool isNamed = !proxy.Servers.empty();
    return std::make_shared<InternetHandle>(InternetOpenW(
        wideFromCodePage(agent).c_str(), isNamed ? INTERNET_OPEN_TYPE_PROXY : INTERNET_OPEN_TYPE_PRECONFIG,
        isNamed ? proxy.Servers.c_str() : nullptr, proxy.Exceptions.empty() ? nullptr : proxy.Exceptions.c_str(), 0));
}

}  // namespace

struct WinInetInternet::Session : Object {
    explicit Session(std::string_view agent) : Real(openSession(agent)) {}
    std::shared_ptr<InternetHandle> Real;
};

struct WinInetInternet::Connection : Object {
    std::shared_ptr<InternetHandle> Session;
    WebAddress Server;
    std::wstring UserName;
    std::wstring Password;
};

class WinInetInternet::Request : public Object {
  public:
    Request(WinInetInternet& internet, WinInetRequest::Wish wish)
        : Wish(std::move(wish)),
          IsFile(Wish.What == WinInetRequest::Kind::File),
          Proxy(proxyOf(*Wish.Session, Wish.Address)),
          Waiting(internet.clock_),
          internet_(internet) {}
    ~Request() override {
        std::erase(internet_.running_, this);
        if (Real) Real->end(internet_error::Cancelled);
    }
    Request(const Request&) = delete;
    Request& operator=(const Request&) = delete;

    [[nodiscard]] WinInetRequest::State state() const { return Real ? Real->state() : WinInetRequest::State{}; }

    WinInetRequest::Wish Wish;  // until it is sent
    const bool IsFile;
    const std::string Proxy;               // "host:port", empty for none
    std::shared_ptr<WinInetRequest> Real;  // from then on
    Patience Waiting;

  private:
    WinInetInternet& internet_;
};

WinInetInternet::~WinInetInternet() = default;

InternetApi::Handle WinInetInternet::InternetOpen(std::string_view agent) {
    unreachedProxy_.clear();
    auto session = std::make_unique<Session>(agent);
    if (session->Real->get() != nullptr) return session;
    lastError_ = static_cast<std::int32_t>(GetLastError());
    return nullptr;
}

InternetApi::Handle WinInetInternet::InternetConnect(Object& session, std::string_view host, int port,
                                                     std::string_view userName, std::string_view password) {
    const auto address = WebAddress::parse(escapedAddress("http://" + std::string(Trim(host)) + "/"), lastError_);
    if (!address) return nullptr;
    auto connection = std::make_unique<Connection>();
    connection->Session = dynamic_cast<Session&>(session).Real;
    connection->Server = *address;
    if (address->Port == INTERNET_DEFAULT_HTTP_PORT) connection->Server.Port = static_cast<std::uint16_t>(port);
    connection->UserName = wideFromCodePage(userName);
    connection->Password = wideFromCodePage(password);
    return connection;
}

InternetApi::Handle WinInetInternet::HttpOpenRequest(Object& connection, std::string_view method,
                                                     std::string_view object, std::string_view /*version*/) {
    const auto& server = dynamic_cast<Connection&>(connection);
    WinInetRequest::Wish wish;
    wish.What = WinInetRequest::Kind::Script;
    wish.Session = server.Session;
    wish.Address = server.Server;
    wish.Address.Path = escapedAddress(object);
    wish.UserName = server.UserName;
    wish.Password = server.Password;
    wish.Method = wideFromCodePage(method);
    return std::make_unique<Request>(*this, std::move(wish));
}

bool WinInetInternet::HttpAddRequestHeaders(Object& request, std::string_view header) {
    std::wstring& headers = dynamic_cast<Request&>(request).Wish.Headers;
    while (header.ends_with('\n') || header.ends_with('\r'))
        header.remove_suffix(1);
    headers += wideFromCodePage(header) + L"\r\n";
    return true;
}

bool WinInetInternet::HttpSendRequest(Object& request, std::string_view body) {
    auto& own = dynamic_cast<Request&>(request);
    own.Wish.Body = body;
    start(own);
    return isAnswered(own);
}

InternetApi::Handle WinInetInternet::InternetOpenUrl(Object& session, std::string_view address) {
    const auto target = WebAddress::parse(escapedAddress(address), lastError_);
    if (!target) return nullptr;
    WinInetRequest::Wish wish;
    wish.Session = dynamic_cast<Session&>(session).Real;
    wish.Address = *target;
    auto request = std::make_unique<Request>(*this, std::move(wish));
    start(*request);
    if (!isAnswered(*request)) return nullptr;
    return request;
}

bool WinInetInternet::InternetReadFile(Object& request, char* buffer, std::size_t size, std::size_t& read) {
    auto& own = dynamic_cast<Request&>(request);
    read = 0;
    if (own.Waiting.isAbandoned()) return !failed(internet_error::Cancelled);
    if (!own.Real) return !failed(ERROR_INTERNET_INCORRECT_HANDLE_STATE);
    if (!own.state().HasBytes) waitForBytes(own);
    read = own.Real->take(buffer, size);
    return read > 0 || !failed(own.state().Error);
}

std::string WinInetInternet::RawHeaders(Object& request, std::size_t size) {
    const auto& own = dynamic_cast<Request&>(request);
    return own.Real ? own.Real->rawHeaders().substr(0, size) : std::string();
}

std::string WinInetInternet::StatusCode(Object& request) {
    const auto& own = dynamic_cast<Request&>(request);
    return own.Real ? own.Real->statusCode() : std::string();
}

std::int64_t WinInetInternet::ContentLength(Object& request) {
    const auto& own = dynamic_cast<Request&>(request);
    return own.Real ? own.Real->announcedLength() : -1;
}

void WinInetInternet::CancelRequests(Cancel which) {
    constexpr std::chrono::milliseconds none{0}, stalled{1000};
    for (Request* request : running_) {
        const bool mayGoOn = which == Cancel::Stalled && request->IsFile;
        request->Waiting.cancelAfterSilenceOf(mayGoOn ? stalled : none);
    }
}

bool WinInetInternet::isAnswered(Request& request) {
    const auto state = request.state();
    const bool isUnreached =
        state.Error == internet_error::CannotConnect || state.Error == internet_error::NameNotResolved;
    unreachedProxy_ = isUnreached ? request.Proxy : std::string();
    // An answer that breaks off is an answer; a redirect that leads nowhere is none.
    const bool ledNowhere = state.Error == internet_error::RedirectFailed ||
                            state.Error == internet_error::UnknownScheme || state.Error == internet_error::InvalidUrl;
    return !failed(state.Error) || (state.HasHeaders && !ledNowhere);
}

void WinInetInternet::start(Request& request) {
    request.Waiting.begin();
    request.Real = std::make_shared<WinInetRequest>(std::move(request.Wish));
    request.Real->start();
    running_.push_back(&request);
    waitForBytes(request);
}

void WinInetInternet::waitForBytes(Request& request) {
    while (true) {
        const auto state = request.state();
        request.Waiting.received(state.Received + (state.HasHeaders ? 1 : 0));
        if (state.HasBytes || state.HasEnded) return;
        loop_.DoEventsNowAndThen();
        // Only what the network does not bring now is silence, and only this is waiting: a handler may have held the
        // loop for minutes.
        const SteadyTime begun = clock_.Steady();
        pause(request, state);
        request.Waiting.waited(clock_.Steady() - begun);
        const auto after = request.state();
        request.Waiting.received(after.Received + (after.HasHeaders ? 1 : 0));
        const std::int32_t error = after.HasBytes || after.HasEnded ? 0 : request.Waiting.out();
        if (error != 0) request.Real->end(error);
    }
}

// A moment in which the network may bring something.
void WinInetInternet::pause(const Request& request, const WinInetRequest::State& known) {
    const int length = static_cast<int>(clock_.realLength(step).count());
    if (!request.Real->waitForNews(known, length)) clock_.passed(step);
}

bool WinInetInternet::failed(std::int32_t error) {
    if (error != 0) lastError_ = error;
    return error != 0;
}

}  // namespace vell
