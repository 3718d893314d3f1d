#pragma once

#include <QWidget>
#include <filesystem>

#include "platform/machine.h"

namespace quillmark::desktop {

/// Shows a document that CREATE has made.
class DocumentOpener {
 public:
    explicit DocumentOpener(Shell& shell) : shell_(shell) {}
    virtual ~DocumentOpener() = default;

    /// With the system's program for such files; where there is none, a box says where the document is and
    /// offers its folder.
    virtual void Open(const std::filesystem::path& document, QWidget& over);
    /// The program that made the document shows it already.
    void SetShownElsewhere(bool shown) { shownElsewhere_ = shown; }

 private:
    void OfferFolder(const std::filesystem::path& document, QWidget& over);

    Shell& shell_;
    bool shownElsewhere_ = false;
};

/// Whether the system knows a program for Word documents; true as well where it cannot be asked.
bool HasProgramForDocuments();

}  // namespace quillmark::desktop
