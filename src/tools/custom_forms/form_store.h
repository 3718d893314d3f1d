#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

#include "tools/custom_forms/form_scan.h"

/// What is done to the forms of the folder. A step that fails leaves the form that was there as it was, and
/// nothing of the new one.
namespace quillmark {

/// A form cannot be kept; what() is a sentence for the user.
class FormRefused : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

/// Whether a form of this file's name is there, be it of another kind of file: they share a list of markers.
bool IsInStore(const std::filesystem::path& folder, std::string_view file);

/// Takes a file in as a form: it is copied, a template as a document, an older kind of file as a .docx where
/// the embedded word processor is at work, and its markers are listed. Gives the name of the form's file.
/// Throws FormRefused, FileError, OfficeError, and word::AutomationError for what the word processor refuses.
std::string ImportForm(const std::filesystem::path& source, const std::filesystem::path& folder,
                       const StartWord& startWord);

/// Lists the form's markers anew.
void RescanForm(const std::filesystem::path& folder, const std::string& file, const StartWord& startWord);
void WriteMarkers(const std::filesystem::path& folder, const std::string& file, const OpenedForm& form);

/// Gives a form's file and its list of markers another name.
void RenameForm(const std::filesystem::path& folder, const std::string& file, const std::string& newFile);
/// Deletes a form with its list of markers.
void DeleteForm(const std::filesystem::path& folder, const std::string& file);

}  // namespace quillmark
