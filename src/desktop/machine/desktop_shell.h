#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>
#include <optional>

#include "platform/machine.h"

namespace quillmark::desktop {

/// The system's shell, with a way out where the system has no program for what is to be opened: a box says
/// where the document is and offers its folder, or offers a mail's address on the clipboard.
class DesktopShell final : public Shell {
 public:
    /// Whether the system knows a program for a MIME type such as "x-scheme-handler/mailto".
    using Knows = std::function<bool(const QString& type)>;

    /// `system` must outlive the object.
    explicit DesktopShell(Shell& system, Knows knows = SystemKnows)
        : system_(system), knows_(std::move(knows)) {}
    /// The window that the boxes belong to.
    void SetParent(QWidget* parent) { parent_ = parent; }

    std::filesystem::path FolderOf(SpecialFolder folder) override { return system_.FolderOf(folder); }
    void Open(const std::string& fileOrAddress) override;
    void Start(const std::filesystem::path& program, const std::vector<std::string>& arguments) override {
        system_.Start(program, arguments);
    }
    void ShowInFolder(const std::filesystem::path& file) override { system_.ShowInFolder(file); }
    /// Not without a program for mail.
    bool CanMailFiles() override { return system_.CanMailFiles() && KnowsMail(); }
    void MailFile(const std::string& subject, const std::filesystem::path& file) override {
        system_.MailFile(subject, file);
    }
    bool CanPrintFiles() override { return system_.CanPrintFiles(); }
    void PrintFile(const std::filesystem::path& file, const std::string& printer) override {
        system_.PrintFile(file, printer);
    }

    /// What the system says; true as well where it cannot be asked.
    static bool SystemKnows(const QString& type);

 private:
    bool KnowsMail();
    bool OpensWithProgram(const std::string& fileOrAddress, const QString& type);
    void OfferFolder(const std::string& document, const char* files);
    void OfferAddress(const QString& address);

    Shell& system_;
    Knows knows_;
    std::optional<bool> knowsMail_;  ///< asked once
    QPointer<QWidget> parent_;
};

}  // namespace quillmark::desktop
