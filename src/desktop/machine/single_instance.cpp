#include "desktop/machine/single_instance.h"

#include <QDir>
#include <QLocalSocket>

namespace quillmark::desktop {

namespace {

constexpr int kPatience = 1000;  ///< milliseconds that another copy has to answer

}  // namespace

SingleInstance::SingleInstance(QString name) : name_(std::move(name)) {
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, &SingleInstance::Answer);
}

/// The home folder tells users apart who share a computer.
QString SingleInstance::DefaultName() {
    return QStringLiteral("quillmark-%1").arg(qHash(QDir::homePath()), 0, 16);
}

bool SingleInstance::HandOver() {
    QLocalSocket other;
    other.connectToServer(name_);
    if (other.waitForConnected(kPatience)) {
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
        caller->disconnectFromServer();
    }
    Q_EMIT Called();
}

}  // namespace quillmark::desktop
