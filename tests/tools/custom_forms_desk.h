#pragma once

#include <string>
#include <vector>

#include "core/custom_forms.h"
#include "platform/paths.h"
#include "support/form_docx.h"
#include "support/scratch.h"
#include "tools/custom_forms/custom_forms_window.h"

/// A folder of custom forms, files to import, and a person at the manager.
namespace quillmark::test {

/// Notes what is opened.
struct NotingShell final : Shell {
    std::filesystem::path documents;
    std::vector<std::string> opened;

    std::filesystem::path FolderOf(SpecialFolder) override { return documents; }
    void Open(const std::string& file) override { opened.push_back(file); }
    void Start(const std::filesystem::path&, const std::vector<std::string>&) override {}
};

struct FormsDesk {
    FormsDesk() {
        shell.documents = folder / "sources";
        std::filesystem::create_directory(shell.documents);
        window.emplace(Office());
    }

    CustomFormsOffice Office() {
        return {forms,
                dialogs,
                shell,
                [] { return word::StartWordProcessor(word::WordProcessor::Embedded); },
                {}};
    }

    /// A file on the disk that can be imported.
    std::filesystem::path Source(const std::string& name, const std::string& bytes) {
        WriteBytes(shell.documents / name, bytes);
        return shell.documents / name;
    }
    void Import(const std::filesystem::path& source) {
        window->SetText("txtSourceFile", TextOf(source));
        window->Click("cmdImport");
    }
    void Import(const std::string& name, const std::string& body) {
        Import(Source(name, FormDocx{body}.Bytes()));
    }
    void ShowDatabase() {
        if (window->Title().find("EDIT MODE") == std::string::npos) window->Click("cmdEdit");
    }
    std::vector<std::string> Listed(const std::string& control) { return window->Control(control).items; }
    std::string MarkersOf(const std::string& name) { return ReadBytes(forms / (name + ".inf")); }
    /// The title and text of the last box.
    std::string LastBox() {
        const auto& shown = dialogs.Shown();
        return shown.empty() ? "" : shown.back().title + "|" + shown.back().text;
    }

    ScratchFolder folder;
    std::filesystem::path forms = folder / "customforms";
    ScriptedDialogs dialogs;
    NotingShell shell;
    std::optional<CustomFormsWindow> window;
};

}  // namespace quillmark::test
