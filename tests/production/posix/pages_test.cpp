#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "core/fields.h"
#include "platform/paths.h"
#include "production/pdf/pdf.h"
#include "production/run/create.h"
#include "production/sample_deal.h"
#include "selection/document_catalogue.h"
#include "support/scratch.h"
#include "word/docx/objects/engine.h"

/// Documents as they lie on the desk: made into PDF with one start of LibreOffice and read page by page. By
/// themselves the tests take a sample of the deeds and statements; QUILLMARK_PAGES=all takes every one.
namespace quillmark::test {
namespace {

using namespace field;
namespace docx = word::docx;

/// Words without what a page adds or takes away: blanks, line ends, boxes to tick.
std::string Squeezed(std::string_view text) {
    std::string squeezed;
    for (const char c : text)
        if (static_cast<unsigned char>(c) > ' ') squeezed += c;
    return squeezed;
}

/// What a document wants to find on one page, paragraph by paragraph.
struct Together {
    std::string what;
    std::vector<std::string> texts;
};

bool IsBlock(word::Role role) {
    return role == word::Role::Signature || role == word::Role::Notary;
}

/// Blocks to sign, and headings with the beginning of what stands below them.
std::vector<Together> WantedTogether(const docx::Document& document) {
    constexpr std::size_t kBeginning = 25;
    std::vector<Together> wanted;
    word::Role before = word::Role::None;
    bool hasOpenHeading = false;
    for (const docx::Block& block : document.body) {
        const auto* paragraph = std::get_if<docx::Paragraph>(&block);
        const word::Role role = paragraph ? document.paraFormats[paragraph->format].role : word::Role::None;
        const std::string text = paragraph ? Squeezed(paragraph->text) : std::string();
        if (IsBlock(role) && role != before) wanted.push_back({"block", {}});
        before = role;
        if (text.empty()) continue;
        if (hasOpenHeading) wanted.back().texts.push_back(text.substr(0, kBeginning));
        if (IsBlock(role) && !hasOpenHeading) wanted.back().texts.push_back(text);
        hasOpenHeading = word::IsHeading(role);
        if (hasOpenHeading) wanted.push_back({"heading", {text}});
    }
    std::erase_if(wanted, [](const Together& together) { return together.texts.empty(); });
    return wanted;
}

/// A document to look at.
struct Look {
    std::string name;  ///< of its files
    std::string document;
    Job job;
    std::size_t mostPages = 1;
};

bool HasPdfToText() {
    return std::system("pdftotext -v >/dev/null 2>&1") == 0;
}

/// The lines of each page but for its footer.
std::vector<std::vector<std::string>> PagesOf(const std::filesystem::path& pdf) {
    const std::string command = fmt::format("pdftotext -layout '{}' -", TextOf(pdf));
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::string text(std::size_t{1} << 22, '\0');
    text.resize(std::fread(text.data(), 1, text.size(), pipe.get()));
    std::vector<std::vector<std::string>> pages;
    for (std::size_t from = 0, end; (end = text.find('\f', from)) != text.npos; from = end + 1) {
        std::vector<std::string>& page = pages.emplace_back();
        std::istringstream lines(text.substr(from, end - from));
        for (std::string line; std::getline(lines, line);)
            if (!Squeezed(line).empty()) page.push_back(Squeezed(line));
        if (!page.empty() && page.back().ends_with("Quillmark")) page.pop_back();
    }
    return pages;
}

class Pages : public ::testing::Test {
 protected:
    void SetUp() override {
        if (!LibreOffice::IsInstalled() || !HasPdfToText())
            GTEST_SKIP() << "LibreOffice or pdftotext is not installed, so no page can be looked at";
    }

    void Make(const Look& look) {
        CreateOrder order;
        order.DocumentNames = {look.document};
        order.today = std::chrono::year(2024) / 5 / 2;
        order.startWord = [] { return word::StartWordProcessor(word::WordProcessor::Embedded); };
        Job job = look.job;
        job.name = look.name;
        CreateRun run(job, order);
        const auto file = folder / (look.name + ".docx");
        run.Run(TextOf(file));
        wanted_.push_back(WantedTogether(docx::objects::ModelOf(run.session().WordDoc.Reach())));
        orders_.push_back({file, folder / (look.name + ".pdf")});
    }

    void ExpectWellLaid(const std::vector<Look>& looks) {
        for (const Look& look : looks) Make(look);
        PdfConverter().ConvertAll(orders_, [](const PdfOrder& order, std::exception_ptr failure) {
            EXPECT_FALSE(failure) << order.document;
        });
        for (std::size_t i = 0; i < looks.size(); ++i) ExpectWellLaid(looks[i], i);
    }

    void ExpectWellLaid(const Look& look, std::size_t i) const {
        constexpr std::size_t kCompany = 3;
        const auto pages = PagesOf(orders_[i].pdf);
        ASSERT_FALSE(pages.empty()) << look.name;
        EXPECT_LE(pages.size(), look.mostPages) << look.name;
        std::vector<std::string> texts;
        for (const std::vector<std::string>& page : pages)
            texts.push_back(fmt::format("{}", fmt::join(page, "")));
        for (std::size_t n = 0; n < pages.size(); ++n)
            EXPECT_GE(pages[n].size(), kCompany) << look.name << ", page " << n + 1 << ": " << texts[n];
        for (const Together& together : wanted_[i]) {
            const bool isOnOne = std::ranges::any_of(texts, [&](const std::string& page) {
                return std::ranges::all_of(
                    together.texts, [&](const std::string& text) { return page.find(text) != page.npos; });
            });
            EXPECT_TRUE(isOnOne) << look.name << ": torn " << together.what << "\n"
                                 << fmt::format("{}", fmt::join(together.texts, "\n"));
        }
    }

    /// All of them, or every so many-th.
    static std::vector<Look> Sample(std::vector<Look> looks, std::size_t step) {
        if (std::getenv("QUILLMARK_PAGES")) return looks;
        std::vector<Look> sample;
        for (std::size_t i = 0; i < looks.size(); i += step) sample.push_back(std::move(looks[i]));
        return sample;
    }

    ScratchFolder folder;

 private:
    std::vector<std::vector<Together>> wanted_;
    std::vector<PdfOrder> orders_;
};

// ---- Deeds ----

void Fill(Job& job, std::initializer_list<std::pair<Field, const char*>> values) {
    for (const auto& [n, text] : values) job.SetField(n, text);
}

void GiveLongNames(Job& job) {
    Fill(job,
         {{Seller1Name, "Alexandrina Wilhelmina Featherstonehaugh-Cholmondeley"},
          {Seller1Addr1, "14470 Old Saugatuck Turnpike Extension North"},
          {Seller1Addr2, "Building 14, Apartment 1207-B"},
          {Seller1CityStateZip, "North Stonington, CT 06359"},
          {Seller2Name, "Christopher Bartholomew Montgomery III"},
          {Seller2Addr1, "200 Broad Street"},
          {Seller2Addr2, "Suite 310"},
          {Buyer1Name, "The Housatonic Valley Agricultural Land Preservation and Development Company, LLC"},
          {Buyer1Addr1, "14470 Old Saugatuck Turnpike Extension North"},
          {Buyer1Addr2, "Building 14, Apartment 1207-B"},
          {Buyer2Name, "Maximilian Theodore von Oberlander-Whitcombe"},
          {Buyer2Addr1, "200 Broad Street"},
          {Buyer2Addr2, "Suite 310"},
          {PropertyAddress1, "14470 Old Saugatuck Turnpike Extension North"},
          {PropertyAddress2, "Building 14, Apartment 1207-B"},
          {PropertyCityStateZip, "North Stonington, CT 06359"},
          {SalePriceNumeric, "$1,485,777.00"},
          {BuyerAttyAddr2, "Corporate Center West, Suite 1900"},
          {TrustInstrument, "Featherstonehaugh-Cholmondeley Family Revocable Trust of 2005, as amended"},
          {TownOfExecution, "North Stonington"}});
}

/// Each deed with one or two sellers and buyers, an entity or an attorney in fact, in short names and in
/// long.
std::vector<Look> Deeds() {
    const std::string_view sellers[] = {"", "2S", "E", "P", "2SP"};
    std::vector<Look> looks;
    for (const std::string_view kind : {"Administrator", "Conservator", "Executor", "Testamentary Trustee",
                                        "Trustee", "Quitclaim", "Warranty"}) {
        const bool isFiduciary = kind != "Quitclaim" && kind != "Warranty";
        for (const std::string_view seller : sellers) {
            if (isFiduciary && !seller.empty()) continue;
            for (const int buyers : {1, 2}) {
                for (const bool isLong : {false, true}) {
                    Job job = SampleDeal();
                    if (seller.starts_with("2S")) SellersApart(job);
                    if (buyers == 2) BuyersApart(job);
                    if (isLong) GiveLongNames(job);
                    if (seller == "E") SellerIsEntity(job);
                    if (seller == "E" && isLong)
                        job.SetField(Seller1Name,
                                     "Housatonic Valley Agricultural Land Preservation Company, LLC");
                    if (seller.ends_with("P"))
                        SellsByPower(job, job.D(Seller1Name), "Ferdinand Q. Attorney-Infact");
                    if (isFiduciary) SellerIsFiduciary(job, kind);
                    looks.push_back({fmt::format("{} {}{}{}", kind, seller, buyers, isLong ? "L" : ""),
                                     fmt::format("Deed / {}", kind), job,
                                     isLong || seller.ends_with("P") ? 2u : 1u});
                }
            }
        }
    }
    return looks;
}

TEST_F(Pages, DeedsKeepWhatIsSignedTogether) {
    ExpectWellLaid(Sample(Deeds(), 5));
}

// ---- Statements ----

/// What a statement may have beyond its five fixed lines, in the order of filling it in.
struct StatementLine {
    Field field;
    const char* value;
};
constexpr StatementLine kStatementLines[] = {
    {AnnualPropertyTax, "$8,444.00 - P"},
    {RecordingFees, "$53.00"},
    {CourierFee, "$35.00"},
    {BinderDeposit, "$5,000.00"},
    {ContractDeposit, "$45,000.00"},
    {Realtor1Name, "Coldwater Residential Brokerage of Greater Fairfield County"},
    {Realtor1Commission, "$30,000.00 - B"},
    {Realtor2Name, "Shoreline Realty Group"},
    {Realtor2Commission, "$20,000.00 - N"},
    {SewerAdjustment, "$300.00 - P"},
    {WaterAdjustment, "$41.20"},
    {OilAdjustment, "$512.00"},
    {MonthlyCommonChg, "$310.00 - P"},
    {ClosingCostCredit, "$950.00"},
    {RepairCredit, "$2,000.00"},
    {OtherDisbursement1, "$75.00 - Notary fee"},
    {OtherDisbursement2, "$120.00 - Septic inspection reimbursement to the buyers and their agents"},
    {OtherAdjustment1, "$100.00 - Fuel = P"},
    {OtherAdjustment2, "$77.00 - Propane = U"},
    {OtherDisbursement3, "$55.00 - Courier to the registry"},
    {SmokeDetectorCredit, "$250.00"},
    {SecurityDeposit, "$1,900.00"},
    {MonthlyRent, "$2,400.00 - P"},
    {OtherAdjustment3, "$60.00 - Firewood = U"},
    {OtherAdjustment4, "$44.00 - Removal of rubbish = P"},
    {OtherDisbursement4, "$15.00 - Wire fee"},
    {OtherDisbursement5, "$300.00 - Home warranty"},
    {OtherDisbursement6, "$45.00 - Survey copies"},
};
Job StatementOf(std::size_t lines, int payoffs) {
    Job job = SampleDeal();
    BuyersAtOneAddress(job);
    if (payoffs == 2) GiveLongNames(job);
    Fill(job, {{SellerLawfirm, "Delaney & Marsh LLC"},
               {SellerAttysFee, "$1,250.00"},
               {ClosingDate, "May 2, 2024"},
               {ProrationDate, "May 1, 2024"}});
    for (std::size_t i = 0; i < lines; ++i) job.SetField(kStatementLines[i].field, kStatementLines[i].value);
    if (payoffs == 0) return job;
    job.SetOption(payoffs == 1 ? OnePayoff : TwoPayoffs, true);
    Fill(job, {{Payoff1Servicer, "First Shore Home Mortgage Payoff Department, Des Moines"},
               {Payoff1Amount, "$200,000.00"}});
    if (payoffs == 2)
        Fill(job,
             {{Payoff2Servicer, "Connecticut Housing Finance Authority"}, {Payoff2Amount, "$31,000.00"}});
    return job;
}

std::vector<Look> Statements() {
    std::vector<Look> looks;
    for (std::size_t lines = 0; lines <= std::size(kStatementLines); ++lines)
        for (const int payoffs : {0, 1, 2})
            looks.push_back({fmt::format("Statement {} {}", lines, payoffs), "Closing Statement",
                             StatementOf(lines, payoffs)});
    return looks;
}

TEST_F(Pages, StatementsOfAnyLengthGoOnOnePage) {
    ExpectWellLaid(Sample(Statements(), 7));
}

// ---- Every document ----

/// The long ones, which contracts, powers and undertakings are among.
constexpr std::size_t kMostPages = 10;

TEST_F(Pages, EveryDocumentKeepsItsBlocksAndHeadings) {
    std::vector<Look> looks;
    for (const std::string_view document : DocumentCatalogue()) {
        std::string name(document);
        std::ranges::replace(name, '/', '-');
        std::erase(name, '\'');
        looks.push_back({name, std::string(document), FullDeal(), kMostPages});
    }
    ExpectWellLaid(Sample(std::move(looks), 4));
}

}  // namespace
}  // namespace quillmark::test
