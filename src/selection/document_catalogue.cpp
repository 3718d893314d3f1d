#include "selection/document_catalogue.h"

#include <algorithm>
#include <array>

#include "core/custom_forms.h"

namespace quillmark {

namespace {

using enum DocumentTrait;

struct Row {
    std::string_view name;
    DocumentTrait traits = None;
};

// clang-format off
// document, what the rules of the job list and the option buttons ask of it
constexpr Row kCatalogue[] = {
    {"Deed / Administrator",                   FiduciaryDeed},
    {"Deed / Conservator",                     FiduciaryDeed},
    {"Deed / Executor",                        FiduciaryDeed},
    {"Mortgage Deed / Statutory Form"},
    {"Deed / Quitclaim",                       PlainDeed},
    {"Deed / Testamentary Trustee",            FiduciaryDeed | TrusteeDeed},
    {"Deed / Trustee",                         FiduciaryDeed | TrusteeDeed},
    {"Deed / Warranty",                        PlainDeed},
    {"Schedule A"},
    {"Foreign Persons Affidavit / Transferor"},
    {"Name Change Affidavit"},
    {"Owner's Affidavit"},
    {"Power Of Attorney / Short Form"},
    {"Power Of Attorney / Long Form"},
    {"Power Of Attorney / Affidavit"},
    {"POA / Agent Instructions"},
    {kBridgeportContract},
    {"Contract / 2009 Fairfield Bar"},
    {"Contract / Regional Bar"},
    {"Contract / Greenwich Bar"},
    {kValleyContract},
    {"Contract / Danbury Bar"},
    {"Mortgage Deed / FNMA"},
    {"Note / Fixed Rate Amortized"},
    {"Note / Fixed Rate Balloon"},
    {"Release Of Mortgage / Partial",          Payoff},
    {"Form Letter / Buyer Atty",               Letter},
    {"Contract Transmittal / Draft",           Letter},
    {"Contract Transmittal / Final",           Letter},
    {"1099 Seller Certification",              PersonOnly | NotCommercial},
    {"1099 Information Sheet"},
    {"Mortgage Payoff Notification",           Payoff},
    {"Mortgage Payoff Transmittal",            Payoff | Letter | DirectPayoff},
    {"Mortgage Payoff Transmittal / SMS",      Payoff | Letter | SmsPayoff},
    {"SMS Cover Letter",                       Payoff | Letter | SmsPayoff},
    {kBridgeportClosingLetter,                 Payoff},
    {"Closing Letter / New Haven Bar",         Payoff | DirectPayoff},
    {"Municipal Conveyance Tax Transmittal"},
    {"Seller's Authorization Letter"},
    {kEngagementLetter,                        Letter},
    {kPrivacyPolicy,                           Letter},
    {"Undertaking & Indem / Mtg Payoff",       Payoff},
    {"Guarantee Letter / New London Bar",      Payoff},
    {"Resolution / Corporate",                 EntityOnly},
    {"Resolution / Unanimous Consent",         EntityOnly},
    {"Secretary’s Certificate / Corporate",    EntityOnly},
    {"Incumbency Cert / Corporate"},
    {"Incumbency Cert / LLC"},
    {kClosingStatement},
    {"Closing Statement / Tax Exempt"},
    {"Fax Cover Sheet / Buyer Atty"},
    {"Smoke Detector Affidavit",               NotCommercial},
    {kTrusteesAffidavit,                       DeedAffidavit},
    {kCfpbAddendum},
    {kChroNotice},
    {"FILE SUMMARY SHEET"},
};

constexpr Row kOlder[] = {
    {"Assignment Of Mortgage"},
    {"Escrow Agreement For Contract Deposit"},
    {"Indemnity Agreement / Secured"},
    {"Indemnity Agreement / Unsecured"},
    {"Mechanic's Lien"},
    {"Mechanic's Lien / Comm Owner's Affidavit"},
    {"Mechanic's Lien / Subordination"},
    {"Mechanic's Lien / Waiver"},
    {"Mechanic's Lien / Comm Subordination / Cert"},
    {"Notice Of Availability Of Title Insurance"},
    {"Power Of Attorney / Two Agent"},
    {"Power Of Attorney / Specific"},
    {"Release Of Mtg / Standard Of Title A"},
    {"Release Of Mtg / Standard Of Title B"},
    {"Release Of Mtg / Standard Of Title C"},
    {"Release Of Mortgage Or Lien"},
    {"Release Of Mortgage / 49-8a Affidavit"},
    {"Release Of Mortgage / Validation Affidavit"},
    {"Revocable License Agreement / Driveway"},
    {"Revocable License Agreement / Fence"},
    {"Subordination Agreement"},
    {"Notice Of Contract"},
    {"Notice Of Lease"},
    {"Undertaking & Indem / Unreleased",       Payoff},
    {"Agreement Re: Mortgage Release",         Payoff},
};
// clang-format on

template <std::size_t N>
constexpr std::array<std::string_view, N> NamesOf(const Row (&rows)[N]) {
    std::array<std::string_view, N> names;
    for (std::size_t i = 0; i < N; ++i) names[i] = rows[i].name;
    return names;
}
constexpr auto kCatalogueNames = NamesOf(kCatalogue);
constexpr auto kOlderNames = NamesOf(kOlder);

DocumentTrait TraitsOf(std::string_view document) {
    for (const std::span<const Row> rows : {std::span<const Row>(kCatalogue), std::span<const Row>(kOlder)})
        for (const Row& row : rows)
            if (row.name == document) return row.traits;
    return None;
}

/// The known name with a colon that the history begins with; empty if there is none.
std::string_view NameWithColon(std::string_view jobDocuments) {
    for (const auto names : {DocumentCatalogue(), OlderDocuments()})
        for (const std::string_view name : names)
            if (name.find(':') != name.npos && jobDocuments.starts_with(std::string(name) + ":")) return name;
    return {};
}

}  // namespace

bool HasTrait(std::string_view document, DocumentTrait any) {
    return (static_cast<unsigned>(TraitsOf(document)) & static_cast<unsigned>(any)) != 0;
}

std::span<const std::string_view> DocumentCatalogue() {
    return kCatalogueNames;
}

std::span<const std::string_view> OlderDocuments() {
    return kOlderNames;
}

bool IsContract(std::string_view line) {
    return line.find("Contract / ") != line.npos;
}

bool IsCustomDocument(std::string_view name) {
    return name.starts_with('[') && name != kNewDocument;
}

std::vector<std::string> CustomDocumentLines(const Folders& folders) {
    std::vector<std::string> lines;
    for (const std::string& file : FormFiles(folders.CustomFormsFolder)) {
        std::string line = "[ " + std::string(FormName(file)) + " ]";
        if (lines.empty() || lines.back() != line) lines.push_back(std::move(line));
    }
    return lines;
}

std::vector<std::string> OfferedDocuments(const Folders& folders) {
    std::vector<std::string> lines(kCatalogueNames.begin(), kCatalogueNames.end());
    for (std::string& line : CustomDocumentLines(folders)) lines.push_back(std::move(line));
    return lines;
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

bool IsInHistory(std::string_view document, std::string_view jobDocuments) {
    const auto names = DocumentsOf(jobDocuments);
    return std::find(names.begin(), names.end(), document) != names.end();
}

}  // namespace quillmark
