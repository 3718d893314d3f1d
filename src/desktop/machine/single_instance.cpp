#include "desktop/machine/single_instance.h"

#include <QDir>

#include "desktop/toolkit/text.h"
#include "platform/paths.h"

namespace quillmark::desktop {

namespace {

constexpr int kPatience = 1000;     ///< milliseconds that another copy has to answer
constexpr qint64 kLongest = 16384;  ///< bytes of a job's name or path

}  // namespace

/// The home folder tells users apart who share a computer.
QString SingleInstance::NameFor(const std::filesystem::path& programFolder) {
    std::error_code unresolved;
    const auto folder = std::filesystem::weakly_canonical(programFolder, unresolved);
    const QString place = Shown(TextOf(unresolved ? programFolder : folder));
    return QStringLiteral("quillmark-%1").arg(qHash(QDir::homePath() + QLatin1Char('\n') + place), 0, 16);
}

void SingleInstance::Listen() {
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, &SingleInstance::Answer);
}

bool SingleInstance::HandOver(const QString& job) {
    QLocalSocket other;
    other.connectToServer(name_);
    if (other.waitForConnected(kPatience)) {
        other.write(job.toUtf8() + '\n');
        other.waitForBytesWritten(kPatience);
        other.waitForDisconnected(kPatience);
        return true;
    }
    if (server_.isListening()) return false;
    QLocalServer::removeServer(name_);  // of a copy that died
    server_.listen(name_);
    return false;
}

void SingleInstance::Answer() {
    while (QLocalSocket* caller = server_.nextPendingConnection()) {
        connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
        connect(caller, &QLocalSocket::readyRead, this, [this, caller] { Read(caller); });
        Read(caller);
    }
}

void SingleInstance::Read(QLocalSocket* caller) {
    if (!caller->canReadLine()) {
        if (caller->bytesAvailable() > kLongest) caller->abort();
        return;
    }
    const QString job = QString::fromUtf8(caller->readLine(kLongest)).trimmed();
    caller->disconnectFromServer();
    Q_EMIT Called(job);
}

}  // namespace quillmark::desktop
