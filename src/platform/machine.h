#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillmark {

/// Something outside the program did not do what was asked of it.
class MachineError : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

enum class SpecialFolder {
    Documents,         ///< the user's documents
    LocalApplication,  ///< this computer's data of the user's programs
    State,             ///< what the user's programs remember from one run to the next
};

/// The system's own programs and folders.
class Shell {
 public:
    virtual ~Shell() = default;

    /// Throws MachineError("The folder path could not be detected") if there is none.
    virtual std::filesystem::path FolderOf(SpecialFolder folder) = 0;
    /// Opens a file, or an address such as "mailto:...", with the program that the user has chosen for it.
    virtual void Open(const std::string& fileOrAddress) = 0;
    /// Starts a program and does not wait for it. Throws MachineError if it cannot be started.
    virtual void Start(const std::filesystem::path& program, const std::vector<std::string>& arguments) = 0;

    // What can be done with a finished document. Each throws MachineError where it cannot be done.
    /// Opens the file's folder, with the file marked where the system can.
    virtual void ShowInFolder(const std::filesystem::path& file);
    virtual bool CanMailFiles() { return false; }
    /// Begins a mail with the file attached, for the person to address and send.
    virtual void MailFile(const std::string& subject, const std::filesystem::path& file);
    virtual bool CanPrintFiles() { return false; }
    /// On the printer of that name, with the program for such files.
    virtual void PrintFile(const std::filesystem::path& file, const std::string& printer);
};

/// The shell of the system that the program runs on.
class SystemShell final : public Shell {
 public:
    std::filesystem::path FolderOf(SpecialFolder folder) override;
    void Open(const std::string& fileOrAddress) override;
    void Start(const std::filesystem::path& program, const std::vector<std::string>& arguments) override;
    void ShowInFolder(const std::filesystem::path& file) override;
    bool CanMailFiles() override;
    void MailFile(const std::string& subject, const std::filesystem::path& file) override;
    bool CanPrintFiles() override;
    void PrintFile(const std::filesystem::path& file, const std::string& printer) override;
};

struct PrinterBin {
    int number;
    std::string name;  ///< empty where the driver gives none
};

/// The printers that the user can choose from.
class Printers {
 public:
    virtual ~Printers() = default;
    virtual std::vector<std::string> Names() = 0;
    virtual std::string DefaultName() = 0;  ///< empty without printers
    virtual std::vector<PrinterBin> BinsOf(const std::string& printer) = 0;
};

/// Lines of text to be printed.
struct PrintJob {
    std::string name;                ///< of the job among those that wait for the printer
    std::string font;                ///< one of fixed pitch
    double points = 0;               ///< its size
    std::vector<std::string> lines;  ///< UTF-8, without line ends
};

/// A text on a page, its upper left corner in inches from the upper left corner of the paper.
struct PageItem {
    double across = 0;
    double down = 0;
    std::string text;  ///< one line of UTF-8
    std::string font;
    double size = 0;  ///< points
    bool bold = false;
};

/// A sheet of paper or an envelope. Upright, an envelope is taller than wide; landscape, its flap is at the
/// top.
enum class SheetSize { Letter, Legal, Envelope10 };

/// What goes on one sheet, and from where it is taken.
struct PrintedPage {
    std::string printer;  ///< empty for the current one
    int bin = 0;          ///< one of the printer's; 0 for the one that the printer chooses
    SheetSize paper = SheetSize::Letter;
    bool landscape = false;
    std::vector<PageItem> items;  ///< in the order in which they are printed
};

/// Puts sheets of placed texts on paper.
class SheetPrinter {
 public:
    virtual ~SheetPrinter() = default;
    /// Throws MachineError in the system's words if it cannot be done.
    virtual void Print(const PrintedPage& page) = 0;
};

/// Puts lines on paper, or into a file that stands for it.
class Printer {
 public:
    virtual ~Printer() = default;
    /// Prints the lines from the top of a new page; wide lines and full pages go on as `PagesOf`
    /// (platform/paper.h) has them. Throws MachineError if it cannot be done.
    virtual void Print(const PrintJob& job) = 0;
};

/// The network, as far as the upgrade notice needs it.
class HttpClient {
 public:
    virtual ~HttpClient() = default;
    /// The body of a successful answer; nothing after any failure, or when `limit` has passed.
    virtual std::optional<std::string> Get(const std::string& address, std::chrono::milliseconds limit) = 0;
};

}  // namespace quillmark
