#include "selection/package_lines.h"

#include <fmt/format.h>

#include <algorithm>
#include <set>

#include "platform/code_page.h"

namespace quillmark {

namespace {

/// The first line of the bytes, with its end.
std::string_view FirstLine(std::string_view bytes) {
    const std::size_t end = bytes.find_first_of("\r\n");
    if (end == bytes.npos) return bytes;
    const bool pair = bytes.substr(end).starts_with("\r\n");
    return bytes.substr(0, end + (pair ? 2 : 1));
}

std::string_view WithoutBlanks(std::string_view bytes) {
    constexpr std::string_view kBlanks = " \t\r\n";
    const std::size_t begin = bytes.find_first_not_of(kBlanks);
    if (begin == bytes.npos) return {};
    return bytes.substr(begin, bytes.find_last_not_of(kBlanks) - begin + 1);
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

void ReadHeader(FileLine& line) {
    const std::string& text = line.text;
    if (text.size() < 4 || !IsDigit(text[1]) || !IsDigit(text[2]) || text[3] != '>') {
        line.fault = "a package's header begins with \"<\", its count of documents in two digits, and \">\"";
    } else if (text.size() == 4) {
        line.fault = "the package has no name";
    } else {
        line.header = {static_cast<std::size_t>((text[1] - '0') * 10 + (text[2] - '0')), text.substr(4)};
    }
}

FileLine ReadLine(std::string_view bytes) {
    FileLine line;
    line.bytes = bytes;
    const std::string_view quoted = WithoutBlanks(bytes);
    if (quoted.empty()) return line;
    line.text = FromWindows1252(quoted);
    const bool isQuoted =
        quoted.size() > 2 && quoted.find('"', 1) == quoted.size() - 1 && quoted.front() == '"';
    if (!isQuoted || quoted.find('\0') != quoted.npos) {
        line.fault = "not one text in double quotation marks";
        return line;
    }
    line.text = FromWindows1252(quoted.substr(1, quoted.size() - 2));
    if (line.text.front() == '<') ReadHeader(line);
    return line;
}

/// A header that cannot be read still ends the block before it.
bool EndsBlock(const FileLine& line) {
    return line.header || line.text.starts_with('<') || line.text.starts_with("\"<");
}

void AssignBlocks(std::vector<FileLine>& lines) {
    std::optional<std::size_t> block;
    std::size_t left = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (EndsBlock(lines[i])) block.reset();
        if (lines[i].header) {
            block = lines[i].block = i;
            left = lines[i].header->count;
        } else if (block && left > 0 && !lines[i].IsBlank()) {
            lines[i].block = block;
            --left;
        }
    }
}

/// How many lines of a block are there.
std::size_t LinesOfBlock(std::size_t header, const PackageLines& file) {
    return static_cast<std::size_t>(
        std::count_if(file.lines.begin(), file.lines.end(),
                      [header](const FileLine& line) { return line.block == header && !line.header; }));
}

std::string FaultOfHeader(std::size_t i, const PackageLines& file, std::set<std::string>& names) {
    const PackageHeader& header = *file.lines[i].header;
    const std::size_t found = LinesOfBlock(i, file);
    if (found < header.count)
        return fmt::format("package {} should have {} documents, {} follow", header.name, header.count,
                           found);
    if (!names.insert(header.name).second)
        return fmt::format("a second package {}; the first one counts", header.name);
    return {};
}

}  // namespace

PackageLines ReadPackageLines(std::string_view bytes) {
    PackageLines file;
    while (!bytes.empty()) {
        const std::string_view line = FirstLine(bytes);
        file.lines.push_back(ReadLine(line));
        bytes.remove_prefix(line.size());
    }
    AssignBlocks(file.lines);
    return file;
}

std::vector<LineFault> FaultsOf(const PackageLines& file) {
    std::vector<LineFault> faults;
    std::set<std::string> names;
    for (std::size_t i = 0; i < file.lines.size(); ++i) {
        const FileLine& line = file.lines[i];
        std::string reason = line.fault;
        if (line.header) reason = FaultOfHeader(i, file, names);
        if (reason.empty() && !line.block && !line.IsBlank()) reason = "belongs to no package";
        if (!reason.empty()) faults.push_back({i + 1, std::move(reason)});
    }
    return faults;
}

}  // namespace quillmark
