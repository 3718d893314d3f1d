#include <gmock/gmock.h>

#include "core/fields.h"
#include "tools/envelopes/envelope_window.h"
#include "tools/tools_fixture.h"

namespace quillmark::envelopes {
namespace {

using namespace field;
using test::ReadBytes;
using test::WriteBytes;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class Envelopes : public test::ToolFixture {
 protected:
    Envelopes() {
        const std::pair<int, const char*> values[] = {
            {SellerLawfirm, "Penfield & Ross, LLC"},
            {SellerAtty, "Ruth Ann Penfield/012345"},
            {SellerAttyAddr1, "77 Main Street"},
            {SellerAttyCityStateZip, "Branford, CT 06405"},
            {BuyerAtty, "Tobias Lang"},
            {BuyerAttyAddr1, "200 Elm Street"},
            {BuyerAttyAddr2, "2nd Floor"},
            {BuyerAttyCityStateZip, "Milford, CT 06460"},
            {Seller1Name, "Walter B. Hollis"},
            {Seller1Addr1, "14 Chestnut Lane"},
            {Seller1CityStateZip, "Branford, CT 06405"},
        };
        for (const auto& [n, text] : values) job.SetField(n, text);
    }

    EnvelopeWindow Open() {
        return EnvelopeWindow({.job = job,
                               .programFolder = scratch.path(),
                               .fonts = {"Arial", "Courier New"},
                               .dialogs = dialogs,
                               .printers = &printers,
                               .printer = &printer});
    }
    EnvelopeWindow OpenWith(const std::string& saved) {
        WriteBytes(scratch / "envelope10.cfg", saved);
        return Open();
    }
    /// "2.75 1.75 Tobias Lang" of each item.
    std::vector<std::string> Printed(EnvelopeWindow& window) {
        window.Click("PRINT");
        std::vector<std::string> lines;
        for (const PageItem& item : window.Printed().at(0).items) {
            std::ostringstream line;
            line << item.across << " " << item.down << " " << item.text;
            lines.push_back(line.str());
        }
        return lines;
    }

    Job job;
    const std::string settings = "\"Dot\",7,\"Arial\",#FALSE#,#TRUE#,0,\"2.75\"\r\n";
};

TEST_F(Envelopes, OffersWhoHasAValue) {
    const EnvelopeWindow window = OpenWith(settings);
    EXPECT_EQ(window.Title(), "Quillmark - Envelope Printer");
    EXPECT_THAT(window.Control("Combo1").items,
                ElementsAre("custom addressee (or select) ...", "[buyer atty]            Tobias Lang",
                            "[seller 1 name]         Walter B. Hollis", "[SMS FasTrax]"));
    EXPECT_EQ(window.Control("txtAddr1").text, "[Address line 1]");
    EXPECT_EQ(window.Control("txtCSZ").text, "[City, State  Zip]");
}

TEST_F(Envelopes, LinesOfEachKindOfAddressee) {
    EnvelopeWindow window = OpenWith(settings);
    window.Pick("Combo1", 1);
    EXPECT_THAT(Printed(window), ElementsAre("2.75 1.75 Tobias Lang", "2.75 2 200 Elm Street, 2nd Floor",
                                             "2.75 2.25 Milford, CT 06460"));
    window.Pick("Combo1", 2);
    EXPECT_THAT(Printed(window), ElementsAre("2.75 1.75 Walter B. Hollis", "2.75 2 14 Chestnut Lane",
                                             "2.75 2.25 Branford, CT 06405"));
    window.Pick("Combo1", "[SMS FasTrax]");
    EXPECT_THAT(Printed(window),
                ElementsAre("2.75 1.75 SMS FasTrax", "2.75 2 P.O. Box 3069", "2.75 2.25 Orange, CA  92857"));
    job.SetField(BuyerLawfirm, "Lang Law Group");
    EnvelopeWindow firm = Open();
    firm.Pick("Combo1", 1);
    EXPECT_EQ(firm.Control("txtAddr1").text, "Lang Law Group");
    EXPECT_EQ(firm.Control("txtAddr2").text, "ATTN: Tobias Lang");
}

TEST_F(Envelopes, LinesLeftOnTheirMarkersAreNotPrinted) {
    EnvelopeWindow window = OpenWith(settings);
    window.SetText("txtAddr1", "Jane Roe");
    window.SetText("txtCSZ", "Anytown, CT 06000");
    EXPECT_THAT(Printed(window), ElementsAre("2.75 1.75 Jane Roe", "2.75 2 Anytown, CT 06000"));
    window.SetText("txtAddr2", "Suite 4");
    window.SetText("txtAddr3", "[to be found]");
    EXPECT_THAT(Printed(window),
                ElementsAre("2.75 1.75 Jane Roe", "2.75 2 Suite 4", "2.75 2.25 Anytown, CT 06000"));
}

TEST_F(Envelopes, ReturnAddressAndCourier) {
    EnvelopeWindow window = OpenWith("\"Dot\",7,\"Courier New\",#TRUE#,#FALSE#,1,\"3.5\"\r\n");
    window.Pick("Combo1", 2);
    EXPECT_THAT(Printed(window), ElementsAre("0 0.0625 Penfield & Ross, LLC", "0 0.25 77 Main Street",
                                             "0 0.4375 Branford, CT 06405", "3.5 1.75 Walter B. Hollis",
                                             "3.5 2 14 Chestnut Lane", "3.5 2.25 Branford, CT 06405"));
    const PrintedPage& page = window.Printed()[0];
    EXPECT_EQ(page.items[0].size, 12);
    EXPECT_EQ(page.items[3].size, 16);
    EXPECT_FALSE(page.landscape);
    job.ClearField(SellerLawfirm);
    EnvelopeWindow alone = Open();
    EXPECT_EQ(Printed(alone).at(0), "0 0.0625 Atty. Ruth Ann Penfield");
}

TEST_F(Envelopes, NothingIsPrintedBeforeTheSetup) {
    EnvelopeWindow window = Open();
    EXPECT_EQ(
        dialogs.TakeShown().at(0).text,
        "Your printing defaults need to be set.  Please click\nthe \"Setup\" button at the following window ...");
    EXPECT_THROW(window.Click("PRINT"), WindowRefusal);
    window.Click("setup");
    EXPECT_EQ(window.Control("cboPrinters").text, "Laser");
    window.Pick("cboPrinters", "Dot");
    window.Pick("lstBins", "Tractor");
    window.Pick("cboFonts", "Arial");
    window.Tick("Landscape", true);
    EXPECT_FALSE(window.Control("Portrait").checked);
    window.Tick("Check1", true);
    window.SetText("txtIndent", "6.5");
    EXPECT_EQ(window.Control("txtIndent").text, "6.00");
    window.SetText("txtIndent", "");
    EXPECT_EQ(window.Control("txtIndent").text, "2.75");
    window.Click("Test Print");
    EXPECT_EQ(window.Printed().at(0).printer, "Dot") << "with the settings as they stand";
    EXPECT_THROW(window.Click("PRINT"), WindowRefusal) << "nothing has been saved";
    window.Click("OK");
    EXPECT_EQ(ReadBytes(scratch / "envelope10.cfg"), "\"Dot\",7,\"Arial\",#FALSE#,#TRUE#,1,\"2.75\"\r\n");
    EXPECT_TRUE(window.Control("PRINT").enabled);
    EXPECT_FALSE(window.Control("OK").visible);
}

TEST_F(Envelopes, APrinterThatHasGoneLeavesTheCurrentOne) {
    EnvelopeWindow window = OpenWith("\"Gone\",7,\"Arial\",#FALSE#,#TRUE#,0,\"2.75\"\r\n");
    window.Pick("Combo1", 1);
    window.Click("PRINT");
    EXPECT_EQ(window.Printed().at(0).printer, "Laser");
    printer.fault = "no envelope";
    window.Click("PRINT");
    EXPECT_TRUE(window.Printed().empty());
    EXPECT_THAT(dialogs.TakeShown().at(0).text, HasSubstr("no envelope"));
}

TEST_F(Envelopes, DamagedSettingsCountAsNone) {
    for (const char* damaged :
         {"", "\"Dot\",7\r\n", "\"Dot\",\"x\",\"Arial\",#TRUE#,#FALSE#,1,\"2\"\r\n", "\"Dot"}) {
        EXPECT_FALSE(OpenWith(damaged).Control("PRINT").enabled) << damaged;
        EXPECT_THAT(dialogs.TakeShown().at(0).text, HasSubstr("Your printing defaults need to be set."));
    }
}

}  // namespace
}  // namespace quillmark::envelopes
