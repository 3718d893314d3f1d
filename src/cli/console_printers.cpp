#include "cli/console_printers.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "core/text_conversions.h"

namespace quillmark::cli {

namespace {

PrinterBin BinOf(std::string_view text, const std::string& printer) {
    const std::size_t mark = text.find('=');
    const std::string_view number = Trimmed(text.substr(0, mark));
    PrinterBin bin{};
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), bin.number);
    if (mark == text.npos || error != std::errc{} || end != number.data() + number.size())
        throw std::invalid_argument(printer + " is not NAME:NUMBER=BIN,...");
    bin.name = text.substr(mark + 1);
    return bin;
}

}  // namespace

NamedPrinter PrinterOf(const std::string& text) {
    const std::size_t colon = text.rfind(':', text.find('='));
    NamedPrinter printer{text.substr(0, colon), {}};
    if (printer.name.empty()) throw std::invalid_argument(text + " is not NAME:NUMBER=BIN,...");
    if (colon == text.npos) return printer;
    std::string_view rest = std::string_view(text).substr(colon + 1);
    while (!rest.empty()) {
        const std::size_t comma = std::min(rest.find(','), rest.size());
        printer.bins.push_back(BinOf(rest.substr(0, comma), text));
        rest.remove_prefix(std::min(comma + 1, rest.size()));
    }
    return printer;
}

std::vector<std::string> ConsolePrinters::Names() {
    std::vector<std::string> names;
    for (const NamedPrinter& printer : printers_) names.push_back(printer.name);
    return names;
}

std::string ConsolePrinters::DefaultName() {
    return printers_.empty() ? std::string() : printers_.front().name;
}

std::vector<PrinterBin> ConsolePrinters::BinsOf(const std::string& printer) {
    const auto found = std::ranges::find(printers_, printer, &NamedPrinter::name);
    return found == printers_.end() ? std::vector<PrinterBin>() : found->bins;
}

}  // namespace quillmark::cli
