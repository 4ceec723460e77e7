// SPDX-License-Identifier: MIT
#include "app/run/FtpSession.h"

#include "app/MainView.h"
#include "app/Session.h"
#include "app/failures/ftpFailure.h"
#include "app/progress/TransferProgress.h"
#include "app/run/RetryPause.h"
#include "base/text.h"
#include "platform/EventLoop.h"
#include "platform/Files.h"
#include "platform/MessageBoxes.h"
#include "platform/Platform.h"
#include "ui/BusyMoment.h"

namespace vell {

namespace {

constexpr std::string_view clippingsFolder = "torvoarchive";
// The service's one FTP account; the user's own name and password go with the list request alone.
constexpr const char* ftpUser = "vell";
constexpr const char* ftpPassword = "ruxo";

// Keeps what writing has failed with: the client knows the failures of the network alone.
class WatchedFile : public OutputFile {
  public:
    explicit WatchedFile(OutputFile& file) : file_(file) {}

    void Write(std::string_view bytes) override {
        try {
            file_.Write(bytes);
        } catch (const RunTimeError& error) {
            Why = failureOf(error);
            throw;
        }
    }
    void Close() override { file_.Close(); }

    std::optional<Failure> Why;

  private:
    OutputFile& file_;
};

}  // namespace

FtpSession::FtpSession(Session& session, const Platform& platform, MainView& view, TransferProgress& progress,
                       EventLog& log, std::chrono::milliseconds paintInterval)
    : session_(session),
      platform_(platform),
      view_(view),
      progress_(progress),
      log_(log),
      handlers_(session, progress, platform.Loop, platform.Time, log, paintInterval),
      m_objFTP_({platform.Net, platform.Loop, platform.Disk, platform.Boxes, platform.Time, seconds_, log, log},
                handlers_) {}

bool FtpSession::open() {
    if (!StartFTP()) return false;
    m_objFTP_.SetCurrentDirectory(clippingsFolder);
    return true;
}

bool FtpSession::StartFTP() {
    constexpr std::string_view starting = "Starting FTP connection.";
    progress_.StatusBar(starting);
    log_.WriteLog(starting);
    const BusyMoment busy(view_);
    bool ok = false;
    for (int attempt = 1; !ok && !session_.gStopRequested; ++attempt) {
        if (attempt > 1) retryPause(session_, platform_.Loop, platform_.Time);
        ok = !session_.gStopRequested && connect();
        platform_.Loop.DoEvents();
        if (!ok && attempt >= session_.Run.Setup.RetryOnFailure && !session_.gStopRequested) {
            constexpr std::string_view failed = "Error starting FTP connection. Please check Host name";
            progress_.StatusBar(failed);
            log_.WriteLog(failed);
            break;
        }
    }
    return ok && !session_.gStopRequested;
}

bool FtpSession::connect() {
    m_objFTP_.FtpServer = session_.Run.Setup.Host;
    m_objFTP_.UserName = ftpUser;
    m_objFTP_.Password = ftpPassword;
    m_objFTP_.Port = session_.Run.Setup.Port;
    m_objFTP_.PassiveMode = session_.Run.Setup.Passive;
    m_objFTP_.Timeout = session_.Run.Setup.TimeOut;
    m_objFTP_.AskOnTimeout = !session_.isAlone();
    const bool isConnected = m_objFTP_.Connect();
    if (!isConnected) tellFailure();
    return isConnected;
}

void FtpSession::tellFailure() {
    progress_.failed(ftpFailure(m_objFTP_.FtpGetLastError(), m_objFTP_.FtpServer, m_objFTP_.GetFtpErrorDescription()));
}

bool FtpSession::isUp() {
    if (m_objFTP_.IsConnected()) return true;
    if (!connect()) return false;
    m_objFTP_.SetCurrentDirectory(clippingsFolder);
    return true;
}

bool FtpSession::download(const std::string& name, PartFile& part, std::int64_t offset,
                          std::optional<std::int64_t> expectedLength) {
    if (!isUp()) return false;
    WatchedFile file(part);
    if (m_objFTP_.downloadFile(name, file, offset, expectedLength)) return true;
    if (file.Why)
        progress_.failed(*file.Why);
    else
        tellFailure();
    if (offset > 0 && part.Length() == offset && refusedToResume()) {
        log_.WriteLog("        The server cannot go on within a file. The next attempt fetches the whole of it.");
        part.StartAt(0);
    }
    return false;
}

bool FtpSession::refusedToResume() const {
    const std::int32_t error = m_objFTP_.FtpGetLastError();
    return error >= ftp_error::UnknownCommand && error <= ftp_error::UnknownParameter;
}

bool FtpSession::StopFTP(bool ask) {
    const BusyMoment busy(view_);
    if (m_objFTP_.CloseConnection()) return true;
    if (m_objFTP_.FtpGetLastError() == ftp_error::TransferInProgress) {
        if (!ask) return false;
        const Answer answer =
            platform_.Boxes.Show("Data transfer in progress. Do you want to cancel the data transfer?", programCaption,
                                 Buttons::YesNo, BoxIcon::Question);
        if (answer != Answer::Yes) return false;
    }
    m_objFTP_.CancelTransfer();
    platform_.Loop.DoEvents();
    m_objFTP_.BreakeConnection();
    platform_.Loop.DoEvents();
    return m_objFTP_.CloseConnection();
}

}  // namespace vell
