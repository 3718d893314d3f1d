#include "platform/file_names.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cctype>

namespace quillmark {

namespace {

constexpr std::string_view kRefused = "\\/:*?\"<>|";

std::string InCapitals(std::string_view text) {
    std::string capitals(text);
    std::ranges::transform(capitals, capitals.begin(), [](unsigned char c) { return std::toupper(c); });
    return capitals;
}

/// Windows keeps these names for devices in every folder, whatever the extension behind them.
bool IsDevice(std::string_view fileName) {
    std::string stem = InCapitals(fileName.substr(0, fileName.find('.')));
    while (stem.ends_with(' ')) stem.pop_back();
    static constexpr std::array<std::string_view, 6> kDevices = {"CON", "PRN",    "AUX",
                                                                 "NUL", "CONIN$", "CONOUT$"};
    if (std::ranges::find(kDevices, stem) != kDevices.end()) return true;
    if (!stem.starts_with("COM") && !stem.starts_with("LPT")) return false;
    static constexpr std::array<std::string_view, 3> kRaised = {"¹", "²", "³"};
    const std::string_view number = std::string_view(stem).substr(3);
    const bool isDigit = number.size() == 1 && number[0] >= '0' && number[0] <= '9';
    return isDigit || std::ranges::find(kRaised, number) != kRaised.end();
}

}  // namespace

std::string FaultOfFileName(std::string_view fileName) {
    if (fileName.empty()) return "is empty";
    if (fileName == "." || fileName == "..") return "is the name of a folder";
    for (const char c : fileName) {
        const auto code = static_cast<unsigned char>(c);
        if (code < 0x20 || code == 0x7F) return fmt::format("holds the control character {}", code);
        if (kRefused.find(c) != std::string_view::npos)
            return fmt::format("holds a {}", c == '"' ? "quotation mark" : fmt::format("\"{}\"", c));
    }
    if (fileName.back() == '.') return "ends in a dot";
    if (fileName.back() == ' ') return "ends in a blank";
    if (IsDevice(fileName)) return "is the name of a device";
    if (fileName.size() > kLongestFileName)
        return fmt::format("is longer than {} characters", kLongestFileName);
    return {};
}

}  // namespace quillmark
