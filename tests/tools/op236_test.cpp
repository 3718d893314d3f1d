#include "tools/op236/op236_window.h"

#include <gmock/gmock.h>

#include <map>
#include <qpdf/QPDF.hh>

#include "core/fields.h"
#include "entry/smart_fields.h"
#include "support/scratch.h"
#include "tools/op236/exemptions.h"
#include "tools/op236/pdf_form.h"
#include "tools/tools_fixture.h"

namespace quillmark::op236 {
namespace {

using namespace field;
using test::FakePrinters;
using test::ReadBytes;
using test::WriteBytes;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::Pair;
using ::testing::UnorderedElementsAre;

const std::filesystem::path kSampleForm = test::SourceFolder() / "packaging" / "firm" / "OP236.pdf";

/// Walter B. Hollis sells a dwelling to Priya Castellan.
Job SampleDeal() {
    Job job;
    AttachSmartFields(job);
    const std::pair<int, const char*> values[] = {
        {SellerAtty, "Ruth Ann Penfield/012345"},
        {SellerAttyPhone, "2035551212"},
        {Seller1Name, "Walter B. Hollis"},
        {Seller1Addr1, "14 Chestnut Lane"},
        {Seller1CityStateZip, "Branford, CT 06405"},
        {Seller1TaxId, "043123456"},
        {SellerFwdAddr1, "9 New Street"},
        {SellerFwdAddr2, "Apt. 4"},
        {SellerFwdCityStateZip, "Guilford, CT 06437"},
        {Buyer1Name, "Priya Castellan"},
        {Buyer1TaxId, "055123456"},
        {PropertyAddress1, "14 Chestnut Lane"},
        {PropertyCityStateZip, "Short Beach, CT 06405"},
        {SalePriceNumeric, "415000"},
        {ClosingDate, "May 9, 2026"},
    };
    for (const auto& [n, text] : values) job.SetField(n, text);
    return job;
}

class OP236 : public test::ToolFixture {
 protected:
    OP236Window Open() {
        return OP236Window({.job = job,
                            .jobList = jobList,
                            .jobName = "Hollis",
                            .programFolder = scratch.path(),
                            .clock = clock,
                            .dialogs = dialogs,
                            .shell = shell,
                            .printers = &printers,
                            .printer = &printer});
    }
    void UseSampleForm() { WriteBytes(scratch / "OP236.pdf", ReadBytes(kSampleForm)); }
    void With(Option option) { job.SetOption(option, true); }

    /// What goes into the form, as one text a field.
    std::map<std::string, std::string> Values(const ReturnEntries& entries) const {
        std::map<std::string, std::string> values;
        for (const FieldValue& value : FormValues(job, entries, clock))
            values[value.field] = value.tick ? "X" : value.text;
        return values;
    }

    Job job = SampleDeal();
    std::vector<std::string> jobList = {"Deed / Warranty", "Closing Statement"};
};

TEST_F(OP236, OpensWithWhatTheJobHolds) {
    const OP236Window window = Open();
    EXPECT_EQ(window.Title(), "Quillmark - Form OP-236 Utility");
    EXPECT_EQ(window.Control("Text1").text, "9 New Street, Apt. 4");
    EXPECT_EQ(window.Control("Text2").text, "Guilford, CT 06437");
    EXPECT_FALSE(window.Control("Text3").enabled);
    EXPECT_EQ(window.Control("Text5").text, "14 Chestnut Lane");
    EXPECT_EQ(window.Control("Text6").text, "Short Beach, CT 06405");
    EXPECT_EQ(window.Control("Combo1").text, "Warranty Deed");
    EXPECT_TRUE(window.Control("Option1").checked);
    EXPECT_TRUE(window.Control("Check1").visible);
    EXPECT_TRUE(window.Control("Check5").visible);
    for (const char* hidden : {"Check0", "Check4", "Text7", "Text9", "cboPrinters", "OK"})
        EXPECT_FALSE(window.Control(hidden).visible) << hidden;
    EXPECT_EQ(window.Control("code").text, "");
    EXPECT_EQ(window.Control("rtbCode").items.size(), 25u);
    EXPECT_THAT(window.Control("rtbCode").items.back(), HasSubstr("[2d]  C.S.A. § 12-494-2(d) Exemption"));
}

TEST_F(OP236, OpensByTheOptionsOfTheJob) {
    With(Entity);
    With(LandMultiFamily);
    With(Commercial);
    jobList = {"Mortgage Deed / FNMA", "CHRO Fair Housing Notice"};
    const OP236Window window = Open();
    EXPECT_EQ(window.Control("Text1").text, "14 Chestnut Lane");
    EXPECT_EQ(window.Control("Text5").text, "")
        << "what a buyer of commercial property does with it is not known";
    EXPECT_TRUE(window.Control("Option3").checked);
    EXPECT_FALSE(window.Control("Check1").visible);
    EXPECT_TRUE(window.Control("Check4").checked);
    EXPECT_EQ(window.Control("Combo1").text, "Mortgage Deed");
    EXPECT_EQ(window.Control("code").text, "02");
}

TEST_F(OP236, CouplesHaveEntriesOfTheirOwn) {
    With(TwoSellers);
    With(TwoBuyers);
    jobList = {"Deed / Testamentary Trustee"};
    OP236Window window = Open();
    EXPECT_EQ(window.Control("Text3").text, "9 New Street, Apt. 4");
    EXPECT_TRUE(window.Control("Check0").checked);
    EXPECT_FALSE(window.Control("Check1").visible);
    EXPECT_FALSE(window.Control("Check5").visible);
    EXPECT_EQ(window.Control("Combo1").text, "Testamentary Trustee");
    EXPECT_THROW(window.SetText("Text7", "elsewhere"), WindowRefusal);
    window.Tick("Check0", false);
    window.SetText("Text7", "1 Elm Street");
    EXPECT_EQ(window.Control("Text7").text, "1 Elm Street");
}

TEST_F(OP236, CodesBringWhatBelongsToThem) {
    OP236Window window = Open();
    window.Pick("rtbCode", "09");
    EXPECT_EQ(window.Control("Text9").text, "enter docket #");
    EXPECT_TRUE(window.Control("Text9").visible);
    window.Pick("rtbCode", "17");
    EXPECT_FALSE(window.Control("Text9").visible);
    EXPECT_TRUE(window.Control("Check1").checked);
    window.Pick("rtbCode", "2c");
    EXPECT_FALSE(window.Control("Check1").checked);
    window.Pick("rtbCode", "");
    EXPECT_EQ(window.Control("code").text, "");
    EXPECT_THROW(window.Pick("rtbCode", "23"), WindowRefusal);

    window.Tick("Check1", true);
    EXPECT_EQ(window.Control("code").text, "17");
    window.Tick("Check1", false);
    EXPECT_EQ(window.Control("code").text, "");
    window.Pick("Combo1", "Mortgage Deed");
    EXPECT_EQ(window.Control("code").text, "02");
    window.Pick("Combo1", "Easement");
    EXPECT_EQ(window.Control("code").text, "");
}

TEST_F(OP236, SpousesNeedAPriceAndNoEntity) {
    job.SetField(SalePriceNumeric, "1999.99");
    OP236Window window = Open();
    window.Tick("Check1", true);
    EXPECT_EQ(window.Control("code").text, "");
    With(Entity);
    OP236Window entity = Open();
    entity.Pick("rtbCode", "17");
    EXPECT_EQ(entity.Control("code").text, "");
    EXPECT_FALSE(entity.Control("rtbCode").index);
}

TEST_F(OP236, ValuesOfAPlainSale) {
    ReturnEntries entries;
    entries.seller1 = {"9 New Street", "Guilford, CT 06437"};
    entries.buyer1 = {"14 Chestnut Lane", "Branford"};
    entries.instrument = kWarrantyDeed;
    entries.stateGiftTaxReturn = true;
    EXPECT_THAT(
        Values(entries),
        UnorderedElementsAre(
            Pair("Town", "Branford"), Pair("LocProp", "14 Chestnut Lane"),
            Pair("Grantor1.0", "Hollis, Walter B."), Pair("TID.0", "043-12-3456"), Pair("TID1", "SSN"),
            Pair("Grantoradd.0.0", "9 New Street"), Pair("city.0.0", "Guilford"), Pair("ST.0.0", "CT"),
            Pair("zip2.0.0", "06437"), Pair("Return", "S"), Pair("Grantor1.1", "Castellan, Priya"),
            Pair("TID.1", "055-12-3456"), Pair("Tidfein2", "SSN"), Pair("Grantoradd.0.1", "14 Chestnut Lane"),
            Pair("Text3.0", "05"), Pair("Text3.1", "09"), Pair("Text3.2", "2026"), Pair("Instr", "W"),
            Pair("Text32.1.0", "415000"), Pair("Check Box33", "X"), Pair("Text36", "Walter B. Hollis"),
            Pair("Text37", "November 3, 2025"), Pair("Text38", "Ruth Ann Penfield"), Pair("Text39", "012345"),
            Pair("Text40", "(203) 555-1212")));
}

TEST_F(OP236, TheConsiderationGoesWhereItIsTaxed) {
    const auto lineOf = [&](const ReturnEntries& entries) {
        std::string line;
        for (const auto& [name, value] : Values(entries))
            if (name.starts_with("Text32") || name == "Text29" || name == "Text30" || name == "Check Box31")
                line += name + "=" + value + " ";
        return line;
    };
    ReturnEntries entries;
    job.SetField(SalePriceNumeric, "1999.99");
    EXPECT_EQ(lineOf(entries), "Check Box31=X ");
    job.SetField(SalePriceNumeric, "2000");
    EXPECT_EQ(lineOf(entries), "Text32.1.0=2000 ");
    With(LandMultiFamily);
    EXPECT_EQ(lineOf(entries), "Text32.0.0=2000 ");
    entries.otherThanDwelling = true;
    EXPECT_EQ(lineOf(entries), "Text32.4.0=2000 ");
    With(Commercial);
    EXPECT_EQ(lineOf(entries), "Text32.5.0=2000 ");
    entries.code = "2b";
    EXPECT_EQ(lineOf(entries), "Text29=2(b) Text30=C.S.A. §12-494-2 ");
    entries.code = "09";
    entries.citation = "FA-22-1234";
    EXPECT_EQ(lineOf(entries), "Text29=09 Text30=FA-22-1234 ");
}

TEST_F(OP236, SchedulesNameThoseBehindTheParties) {
    With(Entity);
    With(TwoBuyers);
    job.SetField(NamesOfMembers, "Marcus Dell, John Roe, Jr., Acme");
    job.SetField(Buyer2Name, "Omar Castellan");
    job.SetField(Buyer1TaxId, "06-1234567");
    ReturnEntries entries;
    entries.buyer1 = {"14 Chestnut Lane", "Branford, CT 06405"};
    entries.buyer2 = {"1 Elm Street", "Milford, CT 06460"};
    entries.buyer2LivesWithBuyer1 = true;
    entries.signer = Signer::Agent;
    auto values = Values(entries);
    EXPECT_EQ(values["Check Box16"], "X");
    EXPECT_EQ(values["TID1"], "FID");
    EXPECT_EQ(values["SchAfill_4"], "Dell, Marcus");
    EXPECT_EQ(values["SchAfill_7"], "Roe, John, Jr.");
    EXPECT_EQ(values["SchAfill_10"], "Acme");
    EXPECT_EQ(values["Grantor1.1"], "Priya Castellan") << "an entity's number: the name as it stands";
    EXPECT_EQ(values["Tidfein2"], "FID");
    EXPECT_EQ(values["SchBfill_4"], "Castellan, Omar");
    EXPECT_EQ(values["SchBZip1.2.0"], "06405");
    entries.buyer2LivesWithBuyer1 = false;
    EXPECT_EQ(Values(entries)["SchBCity1.2.0"], "Milford");
}

/// Value and state of every field that has one, as a reader of the file finds them.
std::map<std::string, std::string> ReadBack(const std::string& bytes) {
    QPDF pdf;
    pdf.processMemoryFile("filled", bytes.data(), bytes.size());
    std::map<std::string, std::string> values;
    const auto walk = [&](const auto& again, QPDFObjectHandle field, const std::string& above) -> void {
        std::string name = above;
        if (field.hasKey("/T")) name += (above.empty() ? "" : ".") + field.getKey("/T").getUTF8Value();
        QPDFObjectHandle value = field.getKey("/V");
        if (value.isString()) values[name] = value.getUTF8Value();
        if (value.isName() && value.getName() != "/Off") values[name] = value.getName();
        if (field.hasKey("/Kids"))
            for (QPDFObjectHandle kid : field.getKey("/Kids").aitems()) again(again, kid, name);
    };
    for (QPDFObjectHandle field : pdf.getRoot().getKey("/AcroForm").getKey("/Fields").aitems())
        walk(walk, field, {});
    return values;
}

TEST_F(OP236, FillsTheFormBesideTheJobsDocuments) {
    UseSampleForm();
    OP236Window window = Open();
    window.Click("CREATE");
    EXPECT_EQ(window.Document(), scratch / "documents/Hollis_OP236.pdf");
    EXPECT_THAT(shell.opened, ElementsAre(PathOf("documents/Hollis_OP236.pdf")));
    EXPECT_THAT(dialogs.TakeShown(), IsEmpty());
    auto values = ReadBack(ReadBytes(*window.Document()));
    EXPECT_EQ(values["Grantor1.0"], "Hollis, Walter B.");
    EXPECT_EQ(values["TID1"], "/SSN");
    EXPECT_EQ(values["Check Box33"], "/Yes");
    EXPECT_EQ(values["Text32.1.0"], "415000");
    EXPECT_EQ(ReadBytes(scratch / "OP236.pdf"), ReadBytes(kSampleForm)) << "the original stays as it is";

    window.Click("CREATE");
    EXPECT_EQ(window.Document(), scratch / "documents/Hollis_OP236 (2).pdf");
    window.Click("CREATE", false, scratch / "own.pdf");
    EXPECT_EQ(window.Document(), scratch / "own.pdf");
    window.Click("CREATE", false, scratch / "own.pdf");
    EXPECT_EQ(window.Document(), scratch / "own (2).pdf") << "nothing is replaced";
}

TEST_F(OP236, TellsWhichSchedulesGoWithIt) {
    UseSampleForm();
    With(TwoBuyers);
    jobList = {"Deed / Executor"};
    Open().Click("CREATE");
    const auto shown = dialogs.TakeShown();
    ASSERT_EQ(shown.size(), 2u);
    EXPECT_EQ(shown[0].title, "PLEASE NOTE ...");
    EXPECT_EQ(
        shown[0].text,
        "An OP-236 Schedule A, naming all (Seller) partners, shareholders,\nmembers or beneficiaries, must "
        "accompany this return.");
    EXPECT_EQ(shown[1].text, "An OP-236 Schedule B, naming the second Buyer, must accompany this return.");
}

// Every filled field of text has a look that holds the text, and every chosen button the state of its value.
TEST_F(OP236, EveryViewerShowsTheValues) {
    const FilledForm filled = FillPdfForm(
        kSampleForm,
        std::vector<FieldValue>{{"Town", "Café (“Sound”)"}, {"Return", "B"}, {"Check Box22", {}, true}});
    EXPECT_THAT(filled.missing, IsEmpty());
    QPDF pdf;
    pdf.processMemoryFile("filled", filled.bytes.data(), filled.bytes.size());
    int ticked = 0;
    std::string look;
    for (QPDFObjectHandle object : pdf.getAllObjects()) {
        if (!object.isDictionary() || !object.hasKey("/Rect")) continue;
        if (object.getKey("/AS").isName() && object.getKey("/AS").getName() != "/Off") ++ticked;
        if (object.getKey("/T").isString() && object.getKey("/T").getUTF8Value() == "Town") {
            const auto data = object.getKey("/AP").getKey("/N").getStreamData();
            look.assign(reinterpret_cast<const char*>(data->getBuffer()), data->getSize());
        }
    }
    EXPECT_EQ(ticked, 2);
    EXPECT_THAT(look, HasSubstr("/Helv 9.00 Tf"));
    EXPECT_THAT(look, HasSubstr("<436166e9202893"));
}

TEST_F(OP236, AFormThatLacksFieldsIsFilledAsFarAsItGoes) {
    const FilledForm filled = FillPdfForm(
        kSampleForm,
        std::vector<FieldValue>{{"Town", "Branford"}, {"Line 99", "x"}, {"TID1", "EIN"}, {"city.0.9", "x"}});
    EXPECT_THAT(filled.missing, ElementsAre("Line 99", "TID1 = EIN", "city.0.9"));
    EXPECT_EQ(ReadBack(filled.bytes)["Town"], "Branford");

    std::string form = ReadBytes(kSampleForm);
    form.replace(form.find("(LocProp)"), 9, "(Locxxxx)");
    WriteBytes(scratch / "OP236.pdf", form);
    OP236Window window = Open();
    window.Click("CREATE");
    ASSERT_TRUE(window.Document());
    EXPECT_THAT(dialogs.TakeShown().at(0).text, HasSubstr("\n\nLocProp"));
}

TEST_F(OP236, AFormThatCannotBeFilledIsNamed) {
    const auto complaint = [&] {
        OP236Window window = Open();
        window.Click("CREATE");
        EXPECT_FALSE(window.Document());
        const auto shown = dialogs.TakeShown();
        EXPECT_EQ(shown.at(0).title, "Adobe Reader");
        return shown.at(0).text;
    };
    EXPECT_EQ(complaint(), "Cannot open/find OP236.pdf");
    WriteBytes(scratch / "OP236.pdf", "no form at all");
    EXPECT_THAT(complaint(), HasSubstr("Cannot open/find OP236.pdf\n\nThe form OP236.pdf is no PDF"));
    WriteBytes(scratch / "OP236.pdf", ReadBytes(kSampleForm).substr(0, 9000));
    EXPECT_THAT(complaint(), HasSubstr("Cannot open/find OP236.pdf\n\nThe form OP236.pdf "));
    std::string xfa = ReadBytes(kSampleForm);
    xfa.replace(xfa.find("<< /Fields ["), 12, "<< /XFA [] /");
    WriteBytes(scratch / "OP236.pdf", xfa);
    EXPECT_THAT(complaint(), HasSubstr("XFA"));
}

TEST_F(OP236, EveryTornFormIsRefusedOrFilled) {
    const std::string whole = ReadBytes(kSampleForm);
    const std::vector<FieldValue> values = {{"Town", "Branford"}, {"TID1", "SSN"}};
    for (std::size_t length = 0; length < whole.size(); length += 997) {
        WriteBytes(scratch / "torn.pdf", whole.substr(0, length));
        try {
            EXPECT_THAT(FillPdfForm(scratch / "torn.pdf", values).bytes, Not(IsEmpty()));
        } catch (const FormError&) {
        }
    }
}

TEST_F(OP236, TestPrintMovesWithItsAdjustments) {
    OP236Window window = Open();
    EXPECT_THROW(window.Click("Test"), WindowRefusal) << "the frame of the settings is not open";
    window.Click("Printer Setup");
    EXPECT_EQ(window.Control("cboPrinters").text, "") << "each start begins from no printer";
    window.Pick("cboPrinters", "Dot");
    EXPECT_THAT(window.Control("lstBins").items, ElementsAre("Tractor", "  ---"));
    window.Pick("lstBins", 1);
    EXPECT_EQ(window.Control("txtFromTop").text, "0.0000");
    window.SetText("txtFromTop", "-0.125");
    window.SetText("txtFromLft", "0.25");
    window.Click("Test");
    ASSERT_EQ(window.Printed().size(), 1u);
    const PrintedPage& page = window.Printed()[0];
    EXPECT_EQ(page.printer, "Dot");
    EXPECT_EQ(page.bin, 9);
    EXPECT_EQ(page.paper, SheetSize::Legal);
    ASSERT_EQ(page.items.size(), 1u);
    EXPECT_EQ(page.items[0].text, "X");
    EXPECT_DOUBLE_EQ(page.items[0].across, 3.65625 + 0.25);
    EXPECT_DOUBLE_EQ(page.items[0].down, 5.796875 - 0.125);

    window.Click("OK");
    EXPECT_FALSE(window.Control("cboPrinters").visible);
    EXPECT_EQ(ReadBytes(scratch / "op236.cfg"), "\"Dot\",9,\"-0.125\",\"0.25\"\r\n");

    printer.fault = "out of paper";
    window.Click("Printer Setup");
    window.Click("Test");
    EXPECT_EQ(dialogs.TakeShown().at(0).text, "Printing Error ...\n\nout of paper");
}

TEST_F(OP236, TheFormOfPaperIsFilledAtItsPlaces) {
    job.SetField(SalePriceNumeric, "900000");
    OP236Window window = Open();
    window.PrintOP236("Dot", 7, 0, 0, false);
    const auto at = [&](double across, double down) {
        for (const PageItem& item : printer.pages.at(0).items)
            if (item.across == across && item.down == down) return item.text;
        return std::string("nothing");
    };
    EXPECT_EQ(at(0.59375, 2.28125), "Branford");
    EXPECT_EQ(at(7.796875, 2.5625), "X") << "a person's number";
    EXPECT_EQ(at(4.34375, 7.3125), "    900,000.00");
    EXPECT_EQ(at(6.84375, 7.5), "      6,000.00");
    EXPECT_EQ(at(6.84375, 7.6875), "      1,250.00");
    EXPECT_EQ(at(6.84375, 8.453125), "      7,250.00");
    EXPECT_EQ(at(3.65625, 5.796875), "X");
    EXPECT_EQ(at(0.59375, 5.8125), "05/09/26");
    EXPECT_EQ(at(6.84375, 9.71875), "Nov 03, 2025");
}

}  // namespace
}  // namespace quillmark::op236
