#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "core/fields.h"
#include "production/builders/builder_list.h"
#include "production/document_goldens.h"
#include "production/letter_deal.h"
#include "production/sample_deal.h"
#include "selection/document_catalogue.h"
#include "support/scratch.h"

namespace quillmark::test {
namespace {

using namespace field;

const std::string kTransmittal = "Mortgage Payoff Transmittal";
const std::string kSmsTransmittal = "Mortgage Payoff Transmittal / SMS";
const std::string kNewHavenLetter = "Closing Letter / New Haven Bar";

void Couples(Job& job) {
    SellersAtOneAddress(job);
    BuyersAtOneAddress(job);
}

void Whole(const std::string& golden, const std::string& document) {
    ExpectWhole("letters/" + golden, document, "one person sells to one buyer, one payoff", LetterDeal());
}

void Branch(const std::string& golden, const std::string& document, const std::string& facts,
            const std::function<void(Job&)>& change) {
    ExpectBranch("letters/" + golden, document, facts, LetterDeal(), change);
}

TEST(Letters, ToTheBuyersAttorney) {
    Whole("form_letter", "Form Letter / Buyer Atty");
    Whole("contract_draft", "Contract Transmittal / Draft");
    Whole("contract_executed", "Contract Transmittal / Final");
    Branch("contract_draft_couples", "Contract Transmittal / Draft",
           "a couple sells to a couple, without credits", [](Job& job) {
               Couples(job);
               job.ClearField(ClosingCostCredit);
               job.ClearField(RepairCredit);
           });
    Branch("contract_executed_sparse", "Contract Transmittal / Final",
           "the seller's attorney has neither fax nor e-mail, the buyer's attorney no other firm name",
           [](Job& job) {
               job.ClearField(SellerAttyFax);
               job.ClearField(SellerAttyEmail);
               job.SetField(BuyerLawfirm, "Tobias Lang, Esq.");
           });
    Branch("contract_draft_letterhead", "Contract Transmittal / Draft", "a company sells, on printed paper",
           [](Job& job) {
               SellerIsEntity(job);
               job.SetOption(Letterhead, true);
           });
}

TEST(Letters, PayoffNotification) {
    Whole("payoff_notification", "Mortgage Payoff Notification");
}

TEST(Letters, PayoffTransmittal) {
    Whole("payoff_transmittal", kTransmittal);
    Branch("payoff_transmittal_plain", kTransmittal,
           "the mortgage was not assigned, the check has no number yet", [](Job& job) {
               for (const int n : {Mtg1Assignee, Mtg1AssignmentVol, Mtg1AssignmentPage}) job.ClearField(n);
               job.SetField(Payoff1Method, "(enter check #)");
           });
    Branch("payoff_transmittal_company", kTransmittal, "a company sells, and pays by wire", [](Job& job) {
        SellerIsEntity(job);
        job.SetField(Payoff1Method, "pay by wire");
    });
    Branch("payoff_transmittal_letterhead", kTransmittal, "on printed paper",
           [](Job& job) { job.SetOption(Letterhead, true); });
    Branch("payoff_transmittal_two", kTransmittal, "two payoffs",
           [](Job& job) { job.SetOption(TwoPayoffs, true); });
    Branch("payoff_transmittal_equity", kTransmittal, "a couple pays off an equity line", [](Job& job) {
        Couples(job);
        job.SetField(Payoff1LoanNumber, "0048812207 (E)");
    });
}

TEST(Letters, WhereTheReleaseGoes) {
    const Job job = LetterDeal();
    const std::string plain = Reading(kTransmittal, job);
    ExpectGolden("letters/payoff_transmittal_sms.txt",
                 kSmsTransmittal + "\nredlined against the one without the service\n\n" +
                     Redline(plain, Reading(kSmsTransmittal, job)));
    const std::string toBuyer = ReadingBeside(kTransmittal, job, {kNewHavenLetter});
    ExpectGolden(
        "letters/payoff_transmittal_new_haven.txt",
        kTransmittal + "\nbeside New Haven's closing letter; redlined\n\n" + Redline(plain, toBuyer));
    EXPECT_EQ(ReadingBeside(kSmsTransmittal, job, {kNewHavenLetter}), toBuyer)
        << "New Haven's closing letter promises the release to the buyer's attorney, whatever the variant";
}

TEST(Letters, ClosingLetterSaysWhereTheTransmittalSendsTheRelease) {
    const std::string letter = "Closing Letter / Bridgeport Bar";
    const Job job = LetterDeal();
    const auto delivered = [&](const std::vector<std::string>& others) {
        const std::string text = TextBeside(letter, job, others);
        const std::string words = "release be delivered to ";
        const std::size_t at = text.find(words) + words.size();
        return text.substr(at, text.find('\v', at) - at);
    };
    EXPECT_EQ(delivered({}), "this office.");
    EXPECT_EQ(delivered({kTransmittal}), "this office.");
    EXPECT_EQ(delivered({kSmsTransmittal}), "SMS FasTrax, P.O. Box 3069, Orange, CA  92857, for recording.");
    EXPECT_EQ(delivered({kNewHavenLetter, kSmsTransmittal}), "you at the address above.");
}

/// The line "Loan # ..." and whether a directive to close the line follows.
std::pair<std::string, bool> LoanLine(const std::string& loanNumber) {
    Job job = LetterDeal();
    job.SetField(Payoff1LoanNumber, loanNumber);
    const std::string text = TextBeside(kTransmittal, job, {});
    const std::size_t at = text.find("Loan # ") + 7;
    return {text.substr(at, text.find('\n', at) - at), text.find("TERMINATION") != std::string::npos};
}

TEST(Letters, TagOfTheLoanNumberIsReadAndCutOff) {
    using Line = std::pair<std::string, bool>;
    EXPECT_EQ(LoanLine("123 (M)"), Line("123", false));
    EXPECT_EQ(LoanLine("123 (E)"), Line("123", true));
    EXPECT_EQ(LoanLine("4471902"), Line("4471902", false)) << "the last four characters are no tag here";
    EXPECT_EQ(LoanLine("(E)"), Line("(E)", false)) << "too short for a tag";
    EXPECT_EQ(LoanLine("77"), Line("77", false));
    EXPECT_EQ(LoanLine("[payoff 1 loan #]"), Line("[payoff 1 loan #]", false)) << "the hole shows";
}

TEST(Letters, ReleaseTracking) {
    Whole("sms_cover_letter", "SMS Cover Letter");
    const auto check = [](const char* payoff) {
        Job job = LetterDeal();
        job.SetField(Payoff1Amount, payoff);
        const std::string text = TextBeside("SMS Cover Letter", job, {});
        const std::size_t at = text.find('$');
        return text.substr(at, text.find(' ', at) - at);
    };
    EXPECT_EQ(check("$201,455.12 - R"), "$40.00") << "the charge that the closing statement has for it";
    EXPECT_EQ(check("$201,455.12 = T"), "$199.00");
    EXPECT_EQ(check("$201,455.12"), "$__________") << "not known without a tag";
}

TEST(Letters, ClosingLetters) {
    Whole("closing_letter_bridgeport", "Closing Letter / Bridgeport Bar");
    Whole("closing_letter_new_haven", kNewHavenLetter);
    Branch("closing_letter_new_haven_couples", kNewHavenLetter, "a couple sells to buyers who live apart",
           [](Job& job) {
               SellersAtOneAddress(job);
               BuyersApart(job);
           });
}

TEST(Letters, ConveyanceTaxStatement) {
    const std::string statement = "Municipal Conveyance Tax Transmittal";
    Whole("conveyance_tax_statement", statement);
    Branch("conveyance_tax_couples", statement, "a couple sells to a couple in a town of the higher rate",
           [](Job& job) {
               Couples(job);
               job.SetField(PropertyCityStateZip, "Bridgeport, CT 06604");
           });
}

TEST(Letters, ToTheFirmAndToTheClient) {
    Whole("authorization_letter", "Seller's Authorization Letter");
    Branch("authorization_power", "Seller's Authorization Letter",
           "the second of two sellers acts by an attorney in fact", [](Job& job) {
               SellersApart(job);
               SellsByPower(job, "June Hollis", "Nora Feld");
           });
    Branch("authorization_fiduciary", "Seller's Authorization Letter", "an executor sells",
           [](Job& job) { SellerIsFiduciary(job, "Executor"); });
    Branch("authorization_company", "Seller's Authorization Letter", "a company sells", SellerIsEntity);
    Whole("engagement_letter", "Seller's Engagement Letter");
    Branch("engagement_company", "Seller's Engagement Letter", "a company sells", SellerIsEntity);
    Whole("privacy_policy", "Privacy Policy");
}

TEST(Letters, EachSellerHasACopyOfHisOrHerOwn) {
    Job job = LetterDeal();
    SellersApart(job);
    for (const std::string document : {"Seller's Engagement Letter", "Privacy Policy"}) {
        const std::string text = TextBeside(document, job, {});
        const std::size_t second = text.find('\f');
        ASSERT_NE(second, std::string::npos) << document;
        EXPECT_NE(text.find("Walter B. Hollis\n14 Chestnut Lane\nBranford, CT 06405\n"), std::string::npos);
        EXPECT_EQ(text.find("June Hollis\n51 Union Street\nGuilford, CT 06437\n") > second, true) << text;
        EXPECT_EQ(text.find("Walter", second), std::string::npos) << document;
    }
}

TEST(Letters, PrintedPaperLeavesRoomForItsHead) {
    Job job = LetterDeal();
    job.SetOption(Letterhead, true);
    for (const Builder& builder : Builders()) {
        if (!HasTrait(builder.document, DocumentTrait::Letter)) continue;
        const std::string text = TextBeside(std::string(builder.document), job, {});
        const std::size_t room = text.find_first_not_of('\n');
        EXPECT_TRUE(room >= 8 && room <= 10) << builder.document << ": " << room;
        EXPECT_EQ(text.compare(room, 14, "May 2, 2024\n\n\n"), 0) << builder.document;
        EXPECT_EQ(text.find("30 Meadow Street"), std::string::npos) << builder.document;
    }
}

// With the facts of both payoffs alike, both pages are alike to the letter.
TEST(Letters, TwoPayoffsReadRightSideBySide) {
    constexpr int kFieldsOfOne = Payoff2Servicer - Payoff1Servicer;
    Job job = LetterDeal();
    job.SetOption(TwoPayoffs, true);
    for (int n = Payoff1Servicer; n < Payoff2Servicer; ++n)
        job.SetField(n + kFieldsOfOne, job.txtField(n).text);
    job.SetValue(Payoff2Amount, job.D(Payoff1Amount));
    int letters = 0;
    for (const Builder& builder : Builders()) {
        if (builder.again != RunsAgain::WithTwoPayoffs || builder.document.starts_with("Release")) continue;
        const std::string text = TextBeside(std::string(builder.document), job, {});
        const std::size_t second = text.find('\f');
        ASSERT_NE(second, std::string::npos) << builder.document;
        EXPECT_TRUE(text.substr(0, second) + "\n" == text.substr(second + 1)) << builder.document;
        ++letters;
    }
    EXPECT_EQ(letters, 10);
}

}  // namespace
}  // namespace quillmark::test
