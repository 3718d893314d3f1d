#include "cli/console_fixture.h"

namespace quillmark::cli {
namespace {

using ::testing::Each;
using ::testing::SizeIs;

class ConsoleSideWindows : public ConsoleTest {
 protected:
    static std::vector<std::string> WithStatement(const std::vector<std::string>& more) {
        std::vector<std::string> lines = {
            Do("name", {{"text", "Abbott - 14 Orchard Lane"}}),
            Do("enter"),
            Do("pick", {{"text", "Closing Statement"}}),
        };
        lines.insert(lines.end(), more.begin(), more.end());
        return lines;
    }
    static std::string Field(int n, const std::string& text, const Json& answers = Json::array()) {
        return Do("field", {{"n", n}, {"text", text}, {"answers", answers}});
    }
    static std::string Calculator(Json arguments) { return Do("calculator", std::move(arguments)); }
    std::string Book(const std::string& name) const {
        return test::ReadBytes(office.path() / "data" / (name + ".lst"));
    }
};

TEST_F(ConsoleSideWindows, AddressesAreAddedOnceAndRemoved) {
    const std::string elm = "Elm Savings _ 1 Elm St _  _ Avon, CT 06001";
    const std::string lee =
        "Ann Lee _ Ann Lee _ 1 Elm St _  _ Avon, CT 06001 _ (860) 555-0102 _ (860) 555-0103 _ ";
    const Json bank = {{"book", "Servicers"}, {"items", {"Elm Savings", "1 Elm St", "", "Avon, CT 06001"}}};
    const auto replies = Session({
        Do("address-add", bank),
        Do("address-add", bank),
        Do("address-add",
           {{"book", "Attorneys"},
            {"items", {"", "Ann Lee", "1 Elm St", "", "Avon, CT 06001", "8605550102", "8605550103"}}}),
        Do("address-remove", {{"book", "Servicers"}, {"record", "Elm Savings"}}),
        Do("address-add", {{"book", "Lenders"}, {"items", {"x"}}}),
        Do("address-add", {{"book", "Servicers"}, {"items", {"a", "b", "c", "d", "e"}}}),
        Do("address-add", {{"book", "Servicers"}, {"items", {"", "< servicer address 1 >"}}}),
        Do("address-add", {{"book", "Servicers"}, {"items", {"Elm _ Oak"}}}),
        Do("click", {{"button", "cmdOpen"}}),
        Do("address-remove", {{"book", "Servicers"}, {"record", elm}}),
        Do("browse", {{"text", ""}}),
        Do("click", {{"button", "cmdTemplate"}}),
        Do("address-remove", {{"book", "Attorneys"}, {"record", lee}}),
    });
    EXPECT_THAT(replies[0], Gives(Json::array({elm})));
    EXPECT_THAT(replies[1], Gives(Json::array({elm})));
    EXPECT_EQ(replies[1]["dialogs"][0]["text"], "Entry Already Exists");
    EXPECT_THAT(replies[2], Gives(Json::array({lee})));
    EXPECT_THAT(replies[3], Refuses("no record \"Elm Savings\""));
    EXPECT_THAT(replies[4], Refuses("no address book \"Lenders\""));
    EXPECT_THAT(replies[5], Refuses("has 4 items"));
    EXPECT_THAT(replies[6], Refuses("all boxes are empty"));
    EXPECT_THAT(replies[7], Refuses("\"Elm _ Oak\""));
    EXPECT_THAT(replies[9], Gives(Json::array())) << "the browser leads to the books";
    EXPECT_THAT(replies[12], Refuses("template"));
    EXPECT_EQ(Book("Servicers"), "");
    EXPECT_EQ(Book("Attorneys"), lee + "\r\n");
}

TEST_F(ConsoleSideWindows, TheCalculatorGivesDaysAndAmounts) {
    const auto replies = Session({
        Calculator({{"gross", "4812.50"}}),
        Calculator(
            {{"gross", 6000}, {"from", "2021-07-01"}, {"to", "12/31/2021"}, {"date", "August 15, 2021"}}),
        Calculator(Json::object()),
        Calculator({{"gross", "lots"}}),
        Calculator({{"gross", "1e5"}}),
        Calculator({{"from", "2021-02-30"}}),
        Calculator({{"to", "never"}}),
        Calculator({{"date", "2021-08-15"}}),
        Calculator({{"gross", "10"}, {"hand", "bank"}}),
        Calculator({{"gross", "10"}, {"hand", "buyer"}}),
    });
    Json year = replies[0]["result"];
    EXPECT_NEAR(year["perDiem"].get<double>(), 4812.5 / 365, 1e-5);
    year.erase("perDiem");
    EXPECT_EQ(
        year,
        (Json{
            {"days", 365}, {"unpaidDays", 251}, {"unpaid", 3309.42}, {"paidDays", 114}, {"paid", 1503.08}}));
    EXPECT_EQ(replies[1]["result"]["days"], 184);
    EXPECT_EQ(replies[1]["result"]["unpaidDays"], 45);
    EXPECT_EQ(replies[1]["result"]["paid"], 4532.61);
    EXPECT_EQ(replies[2]["result"]["unpaid"], 0);
    EXPECT_THAT(replies[3], Refuses("gross is no amount: \"lots\""));
    EXPECT_THAT(replies[4], Refuses("gross is no amount"));
    EXPECT_THAT(replies[5], Refuses("from is no date: \"2021-02-30\""));
    EXPECT_THAT(replies[6], Refuses("to is no date"));
    EXPECT_THAT(replies[7], Refuses("outside the period"));
    EXPECT_THAT(replies[8], Refuses("hand is neither"));
    EXPECT_THAT(replies[9], Refuses("no field is current"));
}

TEST_F(ConsoleSideWindows, TheCalculatorHandsItsAmountToTheCurrentRow) {
    const auto replies = Session(WithStatement({
        Do("key", {{"n", 194}, {"text", "1"}}),
        Calculator({{"gross", "3650"}, {"hand", "seller"}}),
        Do("value", {{"n", 194}}),
        Calculator({{"gross", "3650"}, {"date", "2030-01-01"}, {"hand", "buyer"}}),
        Do("value", {{"n", 194}}),
    }));
    EXPECT_EQ(replies[4]["result"]["paid"], 1140.0);
    EXPECT_EQ(replies[4]["dialogs"], Json::array());
    EXPECT_THAT(replies[5], Gives("$1,140.00 = P"));
    EXPECT_THAT(replies[6], Refuses("outside the period"));
    EXPECT_THAT(replies[7], Gives("$1,140.00 = P"));
}

TEST_F(ConsoleSideWindows, TheStatementGivesEveryFigureAndLeavesTheJobAsItWas) {
    const auto replies = Session(WithStatement({
        Do("pick", {{"text", "SMS Cover Letter"}}),
        Field(72, "Avon, CT 06001"),
        Field(76, "300,002"),
        Field(77, "1000"),
        Field(78, "29000"),
        Field(81, "8/15/2021"),
        Field(170, "6000", {"Yes"}),
        Field(86, "15000", {"Yes"}),
        Field(100, "150000", {"No", "No"}),
        Do("state"),
        Do("statement", {{"mode", ""}}),
        Do("statement", {{"mode", "XMPT"}, {"answers", {"No", "Yes"}}}),
        Do("statement", {{"mode", "exempt"}}),
        Do("value", {{"n", 100}}),
        Do("state"),
    }));
    const Json expected = {{"SalePrice", 300002},
                           {"TotalDeposits", 30000},
                           {"TaxPerDay", 6000.0 / 365},
                           {"SewerPerDay", 0},
                           {"CommonPerDay", 0},
                           {"RentPerDay", 0},
                           {"DaysInTaxYear", 365},
                           {"DaysInMonth", 31},
                           {"TaxCreditSeller", 2284.93},
                           {"SewerCreditSeller", 0},
                           {"CommonCreditSeller", 0},
                           {"RentCreditSeller", 0},
                           {"TaxCreditBuyer", 0},
                           {"SewerCreditBuyer", 0},
                           {"CommonCreditBuyer", 0},
                           {"RentCreditBuyer", 0},
                           {"TotalCreditsSeller", 302286.93},
                           {"TotalCreditsBuyer", 30000},
                           {"CashToClose", 272286.93},
                           {"BalanceOfCash", 122286.93},
                           {"FundsTotal", 301286.93},
                           {"CommissionTotal", 14000},
                           {"ReleaseFees", 100},
                           {"MunicipalTax", 750.01},
                           {"StateTax", 2250.02},
                           {"TotalDisbursements", 167100.03},
                           {"NetResult", 134186.90}};
    const Json& figures = replies[13]["result"];
    ASSERT_EQ(figures.size(), expected.size());
    for (auto figure = figures.begin(), wanted = expected.begin(); figure != figures.end();
         ++figure, ++wanted) {
        EXPECT_EQ(figure.key(), wanted.key());
        EXPECT_NEAR(figure->get<double>(), wanted->get<double>(), 1e-6) << wanted.key();
    }
    EXPECT_EQ(replies[13]["dialogs"], Json::array());
    ASSERT_THAT(replies[14]["dialogs"], SizeIs(2));
    EXPECT_EQ(replies[14]["result"]["MunicipalTax"], 750.01);
    EXPECT_EQ(replies[14]["result"]["StateTax"], 0);
    EXPECT_THAT(replies[15], Refuses("mode"));
    EXPECT_THAT(replies[16], Gives("$150,000.00 - T"));
    EXPECT_EQ(replies[17]["result"], replies[12]["result"]);
}

}  // namespace
}  // namespace quillmark::cli
