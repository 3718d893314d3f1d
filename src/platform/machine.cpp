#include "platform/machine.h"

#include "platform/paths.h"

namespace quillmark {

void Shell::ShowInFolder(const std::filesystem::path& file) {
    Open(TextOf(file.parent_path()));
}

void Shell::MailFile(const std::string&, const std::filesystem::path&) {
    throw MachineError("This computer has no program that mails files");
}

void Shell::PrintFile(const std::filesystem::path&, const std::string&) {
    throw MachineError("This computer has no program that prints documents");
}

}  // namespace quillmark
