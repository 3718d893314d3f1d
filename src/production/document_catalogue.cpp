#include "production/document_catalogue.h"

#include <algorithm>

namespace quillmark {

namespace {

// clang-format off
constexpr std::string_view kCatalogue[] = {
    "Deed / Administrator",
    "Deed / Conservator",
    "Deed / Executor",
    "Mortgage Deed / Statutory Form",
    "Deed / Quitclaim",
    "Deed / Testamentary Trustee",
    "Deed / Trustee",
    "Deed / Warranty",
    "Schedule A",
    "Foreign Persons Affidavit / Transferor",
    "Name Change Affidavit",
    "Owner's Affidavit",
    "Power Of Attorney / Short Form",
    "Power Of Attorney / Long Form",
    "Power Of Attorney / Affidavit",
    "POA / Agent Instructions",
    "Contract / Bridgeport Bar",
    "Contract / 2009 Fairfield Bar",
    "Contract / Regional Bar",
    "Contract / Greenwich Bar",
    "Contract / Valley Bar",
    "Contract / Danbury Bar",
    "Mortgage Deed / FNMA",
    "Note / Fixed Rate Amortized",
    "Note / Fixed Rate Balloon",
    "Release Of Mortgage / Partial",
    "Form Letter / Buyer Atty",
    "Contract Transmittal / Draft",
    "Contract Transmittal / Final",
    "1099 Seller Certification",
    "1099 Information Sheet",
    "Mortgage Payoff Notification",
    "Mortgage Payoff Transmittal",
    "Mortgage Payoff Transmittal / SMS",
    "SMS Cover Letter",
    "Closing Letter / Bridgeport Bar",
    "Closing Letter / New Haven Bar",
    "Municipal Conveyance Tax Transmittal",
    "Seller's Authorization Letter",
    "Seller's Engagement Letter",
    "Privacy Policy",
    "Undertaking & Indem / Mtg Payoff",
    "Guarantee Letter / New London Bar",
    "Resolution / Corporate",
    "Resolution / Unanimous Consent",
    "Secretary’s Certificate / Corporate",
    "Incumbency Cert / Corporate",
    "Incumbency Cert / LLC",
    "Closing Statement",
    "Closing Statement / Tax Exempt",
    "Fax Cover Sheet / Buyer Atty",
    "Smoke Detector Affidavit",
    "Trustee's Affidavit",
    "CFPB Addendum",
    "CHRO Fair Housing Notice",
    "FILE SUMMARY SHEET",
};

constexpr std::string_view kOlder[] = {
    "Assignment Of Mortgage",
    "Escrow Agreement For Contract Deposit",
    "Indemnity Agreement / Secured",
    "Indemnity Agreement / Unsecured",
    "Mechanic's Lien",
    "Mechanic's Lien / Comm Owner's Affidavit",
    "Mechanic's Lien / Subordination",
    "Mechanic's Lien / Waiver",
    "Mechanic's Lien / Comm Subordination / Cert",
    "Notice Of Availability Of Title Insurance",
    "Power Of Attorney / Two Agent",
    "Power Of Attorney / Specific",
    "Release Of Mtg / Standard Of Title A",
    "Release Of Mtg / Standard Of Title B",
    "Release Of Mtg / Standard Of Title C",
    "Release Of Mortgage Or Lien",
    "Release Of Mortgage / 49-8a Affidavit",
    "Release Of Mortgage / Validation Affidavit",
    "Revocable License Agreement / Driveway",
    "Revocable License Agreement / Fence",
    "Subordination Agreement",
    "Notice Of Contract",
    "Notice Of Lease",
    "Undertaking & Indem / Unreleased",
    "Agreement Re: Mortgage Release",
};
// clang-format on

/// The known name with a colon that the history begins with; empty if there is none.
std::string_view NameWithColon(std::string_view jobDocuments) {
    for (const auto names : {DocumentCatalogue(), OlderDocuments()})
        for (std::string_view name : names)
            if (name.find(':') != name.npos && jobDocuments.starts_with(std::string(name) + ":")) return name;
    return {};
}

}  // namespace

std::span<const std::string_view> DocumentCatalogue() {
    return kCatalogue;
}

std::span<const std::string_view> OlderDocuments() {
    return kOlder;
}

bool IsCustomDocument(std::string_view name) {
    return name.starts_with('[') && name != kNewDocument;
}

std::vector<std::string> DocumentsOf(std::string_view jobDocuments) {
    std::vector<std::string> names;
    while (!jobDocuments.empty()) {
        std::string_view name = NameWithColon(jobDocuments);
        if (name.empty()) name = jobDocuments.substr(0, jobDocuments.find(':'));
        if (!name.empty()) names.emplace_back(name);
        jobDocuments.remove_prefix(std::min(name.size() + 1, jobDocuments.size()));
    }
    return names;
}

}  // namespace quillmark
