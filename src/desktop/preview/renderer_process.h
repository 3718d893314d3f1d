#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <functional>
#include <memory>

namespace quillmark::desktop {

/// The process that makes pages: started when it is first needed, started again when it dies, ended when it
/// has been idle or hangs. Nothing here waits.
class RendererProcess final : public QObject {
    Q_OBJECT

 public:
    /// `program` is quillmark-preview, `profile` a folder that it may keep things in.
    RendererProcess(QString program, QString profile, QObject* parent);
    ~RendererProcess() override;

    /// Asks for the PDF of a document. While one is being made the newest request waits; an older waiting one
    /// is dropped. Nothing follows once the renderer has been given up.
    void Render(const QString& document);
    /// Has the PDF of another document made, when nothing else waits; `take` gets it, the empty bytes where
    /// there is none.
    void RenderAside(const QString& document, std::function<void(const QByteArray& pdf)> take);
    /// Starts it, so that the first page comes soon.
    void Start();
    /// Ends it; the next request starts it again.
    void Stop();
    /// The process, 0 while there is none.
    qint64 Pid() const { return process_.processId(); }
    bool IsGivenUp() const { return givenUp_; }
    /// A folder of this process for the user alone, in memory where the system has such: for documents.
    QString Work() const { return work_.path(); }

 Q_SIGNALS:
    void Rendered(const QByteArray& pdf);
    /// This document has no pages, and why.
    void Failed(const QString& why);
    /// There is no renderer, or it does not stay alive.
    void GivenUp(const QString& why);

 private:
    void Read();
    void TakeLine(const QByteArray& line);
    void Send();
    void EndAside(const QByteArray& pdf);
    void Ended();
    void GiveUp(const QString& why);

    static constexpr int kAnswerLimit = 10'000;  ///< milliseconds
    static constexpr int kStartLimit = 60'000;
    static constexpr int kDeathsInAMinute = 3;

    const QString program_;
    const QString profile_;
    QTemporaryDir work_;
    QProcess process_;
    QTimer limit_;
    QElapsedTimer clock_;
    QList<qint64> deaths_;
    QByteArray read_;
    qsizetype wanted_ = -1;  ///< bytes of the PDF that is arriving
    QString waiting_;
    QString aside_;
    std::function<void(const QByteArray&)> takeAside_;
    bool answersAside_ = false;  ///< what is being made is for `takeAside_`
    bool ready_ = false;
    bool busy_ = false;
    bool givenUp_ = false;
    bool stopping_ = false;
};

}  // namespace quillmark::desktop
