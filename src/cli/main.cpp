#include <iostream>

#include "cli/command_line.h"

#ifdef _WIN32
#include <io.h>

#include <filesystem>

#include "platform/paths.h"

int wmain(int count, wchar_t** arguments) {
    std::vector<std::string> words;
    for (int i = 1; i < count; ++i) words.push_back(quillmark::TextOf(std::filesystem::path(arguments[i])));
    return quillmark::cli::RunCommandLine(words, {std::cout, std::cerr, _isatty(2) != 0});
}
#else
#include <unistd.h>

int main(int count, char** arguments) {
    const std::vector<std::string> words(arguments + 1, arguments + count);
    return quillmark::cli::RunCommandLine(words, {std::cout, std::cerr, isatty(STDERR_FILENO) != 0});
}
#endif
