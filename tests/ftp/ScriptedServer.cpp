// SPDX-License-Identifier: MIT
#include "tests/ftp/ScriptedServer.h"

#include <utility>

#include "base/text.h"

namespace vell::test {

ScriptedServer::ScriptedServer(Sockets& sockets, EventLoop& loop)
    : loop_(loop),
      script_{{"", "220 Ready"},     {"USER", "331 Password?"}, {"PASS", "230 In"},   {"PWD", "257 \"/home\""},
              {"REST", "350 Go on"}, {"CWD", "250 Done"},       {"QUIT", "221 Bye|!"}},
      data_(sockets.Make(*this)),
      control_(sockets.Make(*this)) {
    control_->Listen("127.0.0.1");
}

void ScriptedServer::ConnectionRequest() {
    control_->Accept();
    obey("");
}

void ScriptedServer::DataArrival(std::size_t /*bytes*/) {
    (void)data_->GetData(data_->BytesReceived());
    received_ += control_->GetData(control_->BytesReceived());
    for (std::size_t end = 0; (end = received_.find("\r\n")) != std::string::npos;) {
        commands.push_back(received_.substr(0, end));
        received_.erase(0, end + 2);
        obey(commands.back());
    }
}

void ScriptedServer::obey(const std::string& line) {
    const std::string word = line.substr(0, line.find(' '));
    if (word == "PORT") {
        const auto numbers = Split(line, ",");
        dataPort_ = static_cast<std::uint16_t>(Val(numbers.at(4)) * 256 + Val(numbers.at(5)));
        data_->Close();
    }
    const auto known = script_.find(word);
    const std::string steps = known == script_.end() ? "200 Fine" : known->second;
    for (const auto step : Split(steps, "|"))
        due_.emplace_back(step);
    run();
}

void ScriptedServer::run() {
    for (; !due_.empty() && perform(due_.front()); said_ = 0)
        due_.pop_front();
}

bool ScriptedServer::perform(const std::string& step) {
    switch (step.front()) {
        case '>':
            return say(step.substr(1));
        case '~':
            return pause(static_cast<int>(Val(step.substr(1))));
        case '!':
            return control_->BytesToSend() == 0 && (control_->Close(), true);
        case '=':
            return dataReady() && data_->BytesToSend() == 0 && (data_->Close(), true);
        case '+':
            return dataReady() && (step.size() == 1 || (data_->SendData(step.substr(1)), true));
        default:
            return say(step + "\r\n");
    }
}

bool ScriptedServer::say(std::string_view text) {
    if (control_->State() != SocketState::Connected) return true;
    if (said_ < text.size() && control_->BytesToSend() == 0) {
        const auto piece = text.substr(said_, splitsReplies ? 1 : text.size());
        said_ += piece.size();
        control_->SendData(piece);
    }
    return said_ == text.size();
}

bool ScriptedServer::pause(int milliseconds) {
    if (timer_ == 0) {
        paused_ = true;
        timer_ = loop_.SetTimer(milliseconds, [this] { paused_ = false, run(); });
    }
    if (!paused_) loop_.KillTimer(std::exchange(timer_, 0));
    return timer_ == 0;
}

bool ScriptedServer::dataReady() {
    if (data_->State() == SocketState::Closed) data_->Connect("127.0.0.1", dataPort_);
    return data_->State() == SocketState::Connected;
}

}  // namespace vell::test
