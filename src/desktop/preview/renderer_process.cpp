#include "desktop/preview/renderer_process.h"

#include <QDir>
#include <QStandardPaths>
#include <utility>

namespace quillmark::desktop {

namespace {

QString WorkTemplate() {
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty() || !QDir(folder).exists()) folder = QDir::tempPath();
    return folder + QStringLiteral("/quillmark-preview-XXXXXX");
}

}  // namespace

RendererProcess::RendererProcess(QString program, QString profile, QObject* parent)
    : QObject(parent), program_(std::move(program)), profile_(std::move(profile)), work_(WorkTemplate()) {
    clock_.start();
    limit_.setSingleShot(true);
    connect(&limit_, &QTimer::timeout, this, [this] { process_.kill(); });
    connect(&process_, &QProcess::readyReadStandardOutput, this, &RendererProcess::Read);
    connect(&process_, &QProcess::finished, this, &RendererProcess::Ended);
    connect(&process_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) GiveUp(process_.errorString());
    });
    process_.setStandardErrorFile(QProcess::nullDevice());
}

RendererProcess::~RendererProcess() {
    disconnect(&process_, nullptr, this, nullptr);
    process_.kill();
    process_.waitForFinished(1000);
}

void RendererProcess::Start() {
    if (givenUp_ || process_.state() != QProcess::NotRunning) return;
    if (!work_.isValid() || !QDir().mkpath(profile_)) return GiveUp(tr("there is no room for its files"));
    ready_ = busy_ = stopping_ = false;
    read_.clear();
    wanted_ = -1;
    limit_.start(kStartLimit);
    process_.start(program_, {profile_, work_.path()});
}

void RendererProcess::Stop() {
    stopping_ = true;
    waiting_.clear();
    limit_.stop();
    process_.kill();
}

void RendererProcess::Render(const QString& document) {
    if (givenUp_) return;
    waiting_ = document;
    Start();
    Send();
}

void RendererProcess::RenderAside(const QString& document, std::function<void(const QByteArray&)> take) {
    EndAside({});
    takeAside_ = std::move(take);
    if (givenUp_) return EndAside({});
    aside_ = document;
    Start();
    Send();
}

void RendererProcess::EndAside(const QByteArray& pdf) {
    answersAside_ = false;
    aside_.clear();
    if (const auto take = std::exchange(takeAside_, nullptr)) take(pdf);
}

void RendererProcess::Send() {
    if (!ready_ || busy_) return;
    answersAside_ = waiting_.isEmpty();
    QString& next = answersAside_ ? aside_ : waiting_;
    if (next.isEmpty()) return;
    busy_ = true;
    limit_.start(kAnswerLimit);
    process_.write("pdf " + next.toUtf8() + "\n");
    next.clear();
}

void RendererProcess::Read() {
    read_ += process_.readAllStandardOutput();
    for (;;) {
        if (wanted_ >= 0) {
            if (read_.size() < wanted_) return;
            const QByteArray pdf = read_.left(wanted_);
            read_.remove(0, wanted_);
            wanted_ = -1;
            busy_ = false;
            limit_.stop();
            if (answersAside_)
                EndAside(pdf);
            else
                Q_EMIT Rendered(pdf);
            Send();
            continue;
        }
        const qsizetype end = read_.indexOf('\n');
        if (end < 0) return;
        const QByteArray line = read_.left(end);
        read_.remove(0, end + 1);
        TakeLine(line);
        if (givenUp_) return;
    }
}

void RendererProcess::TakeLine(const QByteArray& line) {
    const QByteArray word = line.left(line.indexOf(' '));
    const QString rest = QString::fromUtf8(line.mid(word.size() + 1)).trimmed();
    constexpr qsizetype kLargest = qsizetype{256} << 20;
    if (word == "none") return GiveUp(rest);
    if (word == "ready" && !ready_) {
        ready_ = true;
        limit_.stop();
    } else if (word == "ok" && busy_ && rest.toLongLong() > 0 && rest.toLongLong() <= kLargest) {
        wanted_ = rest.toLongLong();
        return;
    } else if (word == "failed" && busy_) {
        busy_ = false;
        limit_.stop();
        if (answersAside_)
            EndAside({});
        else
            Q_EMIT Failed(rest);
    } else {  // whatever it is by now, it is no renderer
        process_.kill();
        return;
    }
    Send();
}

void RendererProcess::Ended() {
    limit_.stop();
    const bool wasAnswering = busy_;
    ready_ = busy_ = false;
    if (givenUp_) return;
    if (!stopping_) {
        constexpr qint64 kMinute = 60'000;
        deaths_.append(clock_.elapsed());
        while (deaths_.first() < clock_.elapsed() - kMinute) deaths_.removeFirst();
        if (deaths_.size() >= kDeathsInAMinute) return GiveUp(tr("it has ended three times within a minute"));
        if (wasAnswering && answersAside_)
            EndAside({});
        else if (wasAnswering)
            Q_EMIT Failed(tr("the renderer has ended"));
    }
    if (!waiting_.isEmpty() || !aside_.isEmpty()) Start();
}

void RendererProcess::GiveUp(const QString& why) {
    if (givenUp_) return;
    givenUp_ = true;
    limit_.stop();
    waiting_.clear();
    process_.kill();
    EndAside({});
    Q_EMIT GivenUp(why);
}

}  // namespace quillmark::desktop
