#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <regex>
#include <set>

#include "core/field_registry.h"
#include "core/fields.h"
#include "core/text_conversions.h"
#include "production/builders/builder_list.h"
#include "production/engine_desk.h"
#include "production/sample_deal.h"
#include "selection/document_catalogue.h"

/// What must hold of any document in any job: each builder types every combination of the choices that a job
/// can have.
namespace quillmark::test {
namespace {

using namespace field;

struct Choice {
    const char* name;
    std::function<void(Job&)> choose;
};

void Only(Job& job, std::initializer_list<Option> group, int chosen) {
    for (const Option option : group) job.SetOption(option, option == chosen);
    job.RunChangeRule(Seller1Name);
    job.RunChangeRule(Buyer1Name);
}

void OneSellerAlone(Job& job) {
    Only(job, {OneSeller, TwoSellers}, OneSeller);
    job.SetField(PrincipalOfPower, job.D(Seller1Name));
}

const std::vector<Choice>& Sellers() {
    static const std::vector<Choice> choices = {
        {"a couple", [](Job&) {}},
        {"a couple, the first by power",
         [](Job& job) { SellsByPower(job, job.D(Seller1Name), "Nora Feld"); }},
        {"a couple, the second by power",
         [](Job& job) { SellsByPower(job, job.D(Seller2Name), "Nora Feld"); }},
        {"a couple, the second by the first",
         [](Job& job) { SellsByPower(job, job.D(Seller2Name), job.D(Seller1Name)); }},
        {"one person", OneSellerAlone},
        {"one person by power",
         [](Job& job) {
             OneSellerAlone(job);
             SellsByPower(job, job.D(Seller1Name), "Nora Feld");
         }},
        {"an executor",
         [](Job& job) {
             OneSellerAlone(job);
             SellerIsFiduciary(job, "Executor");
         }},
        {"a trustee under a will",
         [](Job& job) {
             OneSellerAlone(job);
             SellerIsFiduciary(job, "Testamentary Trustee");
         }},
        {"a conservator",
         [](Job& job) {
             OneSellerAlone(job);
             SellerIsFiduciary(job, "Conservator");
         }},
        {"a company",
         [](Job& job) {
             OneSellerAlone(job);
             SellerIsEntity(job);
         }},
    };
    return choices;
}

const std::vector<Choice>& Buyers() {
    static const std::vector<Choice> choices = {
        {"to a couple", [](Job&) {}},
        {"to one buyer",
         [](Job& job) {
             Only(job, {OneBuyer, TwoBuyers}, OneBuyer);
         }},
    };
    return choices;
}

const std::vector<Choice>& Payoffs() {
    static const std::vector<Choice> choices = {
        {"two payoffs",
         [](Job& job) {
             Only(job, {OnePayoff, TwoPayoffs}, TwoPayoffs);
         }},
        {"one payoff",
         [](Job& job) {
             Only(job, {OnePayoff, TwoPayoffs}, OnePayoff);
         }},
        {"no payoff",
         [](Job& job) {
             Only(job, {OnePayoff, TwoPayoffs}, 0);
         }},
    };
    return choices;
}

const std::vector<Choice>& Properties() {
    static const std::vector<Choice> choices = {
        {"a house",
         [](Job& job) {
             Only(job, {Condo, Commercial, LandMultiFamily}, 0);
         }},
        {"a condominium",
         [](Job& job) {
             Only(job, {Condo, Commercial, LandMultiFamily}, Condo);
         }},
        {"a commercial property",
         [](Job& job) {
             Only(job, {Condo, Commercial, LandMultiFamily}, Commercial);
         }},
        {"land",
         [](Job& job) {
             Only(job, {Condo, Commercial, LandMultiFamily}, LandMultiFamily);
         }},
    };
    return choices;
}

const std::vector<Choice>& Letterheads() {
    static const std::vector<Choice> choices = {
        {"plain paper", [](Job&) {}},
        {"letterhead",
         [](Job& job) {
             Only(job, {Letterhead, DefaultLetterhead}, Letterhead);
         }},
    };
    return choices;
}

/// Every job of these choices, each told in a line.
void ForEveryJob(const Job& deal, const std::function<void(const Job&)>& visit) {
    for (const Choice& sellers : Sellers())
        for (const Choice& buyers : Buyers())
            for (const Choice& payoffs : Payoffs())
                for (const Choice& property : Properties())
                    for (const Choice& letterhead : Letterheads()) {
                        Job job = deal;
                        std::string told;
                        for (const Choice* choice : {&sellers, &buyers, &payoffs, &property, &letterhead}) {
                            choice->choose(job);
                            told += std::string(choice->name) + ", ";
                        }
                        SCOPED_TRACE(told);
                        visit(job);
                    }
}

/// The words around a place in a text.
std::string Around(const std::string& text, std::size_t place) {
    return text.substr(place < 40 ? 0 : place - 40, 80);
}

void ExpectCleanSentences(const std::string& text) {
    for (const char* fault : {",,", ", ,", " ,", "()", "( )", "..", " ."}) {
        const std::size_t place = text.find(fault);
        EXPECT_EQ(place, std::string::npos) << "\"" << fault << "\" in: " << Around(text, place);
    }
    for (std::size_t i = 1; i + 2 < text.size(); ++i) {
        const bool isDoubled = text[i] == ' ' && text[i + 1] == ' ' && text[i - 1] >= 'a' &&
                               text[i - 1] <= 'z' && text[i + 2] >= 'a' && text[i + 2] <= 'z';
        EXPECT_FALSE(isDoubled) << "a doubled blank in: " << Around(text, i);
    }
}

void ExpectNoHole(const std::string& text) {
    static const std::set<std::string> markers = [] {
        std::set<std::string> all;
        const Job blank = UnfilledDeal();
        for (int n = 1; n <= kFields; ++n)
            for (int part = 0; part <= 4; ++part) all.insert(blank.D(part * 1000 + n));
        all.erase("");
        return all;
    }();
    for (std::size_t at = text.find('['); at != std::string::npos; at = text.find('[', at + 1)) {
        const std::string marker = text.substr(at, text.find(']', at) + 1 - at);
        EXPECT_FALSE(markers.contains(marker)) << Around(text, at);
    }
}

void ExpectNobodyElse(const std::string& text, const Job& job) {
    const auto expectAbsent = [&](bool isAbsent, int name) {
        if (!isAbsent) return;
        EXPECT_EQ(text.find(job.D(name)), std::string::npos) << job.D(name) << " is no party";
    };
    expectAbsent(!job.optConf(TwoSellers), Seller2Name);
    expectAbsent(!job.optConf(TwoBuyers), Buyer2Name);
    const bool hasSecondPayoff = job.optConf(TwoPayoffs);
    expectAbsent(!hasSecondPayoff, Payoff2Servicer);
    expectAbsent(!hasSecondPayoff, Payoff2Mortgagee);
}

/// Documents whose own form has what another one must not have: ruled columns, lines of dots.
bool IsRuled(std::string_view document) {
    return document == "FILE SUMMARY SHEET" || document == "1099 Information Sheet" ||
           document.starts_with("Fax Cover Sheet") || document.starts_with("Closing Statement");
}

/// Documents about people who need not be parties of the sale.
bool NamesOthers(std::string_view document) {
    return document == "Name Change Affidavit" || document == "FILE SUMMARY SHEET" ||
           document == "Schedule A";
}

TEST(EveryDocument, ReadsCleanlyInEveryJob) {
    for (const Builder& builder : Builders()) {
        SCOPED_TRACE(std::string(builder.document));
        std::set<std::string>
            seen;  // documents do not know most choices, and one text need be read only once
        ForEveryJob(FullDeal(), [&](const Job& job) {
            if (testing::Test::HasFailure()) return;
            EngineDesk desk;
            desk.Type(builder.document, job);
            EXPECT_EQ(desk.LeftOver(), "");
            const std::string text = desk.Text();
            if (!NamesOthers(builder.document)) ExpectNobodyElse(text, job);
            if (!seen.insert(text).second) return;
            if (!IsRuled(builder.document)) ExpectCleanSentences(text);
            ExpectNoHole(text);
        });
        if (testing::Test::HasFailure()) return;
    }
}

}  // namespace
}  // namespace quillmark::test
