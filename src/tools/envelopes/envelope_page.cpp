#include "tools/envelopes/envelope_page.h"

#include <array>

#include "core/field_registry.h"
#include "core/fields.h"
#include "platform/paper.h"
#include "tools/window/filled_values.h"

namespace quillmark::envelopes {

using namespace field;

namespace {

/// Whose address follows the name among the fields.
constexpr auto kPeople = std::to_array<int>(
    {BuyerAtty, Seller1Name, Seller2Name, Administrator, Executor, Conservator, Trustee, Buyer1Name,
     Buyer2Name, Payoff1Servicer, Payoff2Servicer, EscrowAtty, PrincipalOfPower, AttyInFact, AttyInFact2});

constexpr std::size_t kMarkerColumns = 24;
constexpr const char* kService = "[SMS FasTrax]";

constexpr double kSenderSize = 12, kSize = 14, kCourierSize = 16;
constexpr double kFirstLine = 1.75, kLineHeight = 0.25;

std::string WithSecondPart(const std::string& first, const std::string& second) {
    return second.empty() ? first : first + ", " + second;
}

void AddSender(const Job& job, const std::string& font, std::vector<PageItem>& items) {
    const FilledValues value(job);
    const auto add = [&](double down, const std::string& text) {
        if (!text.empty()) items.push_back({0, down, text, font, kSenderSize, true});
    };
    const std::string attorney = value.Attorney();
    add(0.0625, !value[SellerLawfirm].empty() ? value[SellerLawfirm]
                : attorney.empty()            ? std::string()
                                              : "Atty. " + attorney);
    add(0.25, WithSecondPart(value[SellerAttyAddr1], value[SellerAttyAddr2]));
    add(0.4375, value[SellerAttyCityStateZip]);
}

}  // namespace

std::vector<Addressee> AddresseesOf(const Job& job) {
    const FilledValues value(job);
    std::vector<Addressee> addressees;
    for (const int n : kPeople) {
        if (!value[n].empty())
            addressees.push_back({n, FillColumns(FieldMarker(n), kMarkerColumns) + value[n]});
    }
    addressees.push_back({0, kService});
    return addressees;
}

Address AddressOf(const Job& job, const Addressee& addressee) {
    if (addressee.field == 0) return {"SMS FasTrax", "", "P.O. Box 3069", "Orange, CA  92857"};
    const FilledValues value(job);
    const int n = addressee.field;
    // Between the first seller's name and address stand the members' names.
    const int address = n == Seller1Name ? n + 2 : n + 1;
    Address lines{value[n], "", WithSecondPart(value[address], value[address + 1]), value[address + 2]};
    if (n == BuyerAtty && !value[BuyerLawfirm].empty()) {
        lines.line1 = value[BuyerLawfirm];
        lines.line2 = "ATTN: " + value[BuyerAtty];
    }
    return lines;
}

PrintedPage PageOf(const Address& address, const Job& job, const EnvelopeSettings& settings) {
    PrintedPage page{settings.printer, settings.bin, SheetSize::Envelope10, settings.landscape, {}};
    if (settings.returnAddress) AddSender(job, settings.font, page.items);
    const double size = settings.font.find("Courier") == std::string::npos ? kSize : kCourierSize;
    double down = kFirstLine;
    const auto add = [&](const std::string& line) {
        page.items.push_back({settings.indent, down, line, settings.font, size, true});
        down += kLineHeight;
    };
    add(address.line1);
    for (const std::string* line : {&address.line2, &address.line3, &address.cityStateZip})
        if (!line->empty()) add(*line);
    return page;
}

}  // namespace quillmark::envelopes
