#include "production/run/field_list.h"

#include <gmock/gmock.h>

#include "core/fields.h"
#include "production/sample_deal.h"

namespace quillmark::test {
namespace {

using ::testing::ElementsAre;

const std::string kHeading = "QUILL MARK Field List >  ";
const std::string kRule(30, '_');

SelectionState ScreenWith(std::vector<std::string> documents) {
    SelectionState screen;
    screen.job = SampleDeal();
    for (std::string& name : documents) screen.List2.push_back({std::move(name)});
    return screen;
}

GridRow Row(RowKind kind, std::string label, std::string value) {
    GridRow row;
    row.kind = kind;
    row.label = std::move(label);
    row.value = std::move(value);
    return row;
}

TEST(FieldList, DocumentsBreakAfterTheColumnsOfThePaper) {
    // The apostrophe of this entry is three bytes.
    const std::string entry = "Secretary’s Certificate / Corporate";
    const std::size_t characters = entry.size() - 2;
    SelectionState screen = ScreenWith({entry, std::string(89 - characters - 2, 'x')});
    EXPECT_THAT(FieldList(screen).lines, ElementsAre(kHeading + entry + "; " + screen.List2[1].name,
                                                     "* asterisks denote required fields"));
    screen.List2[1].name += 'y' + std::string(120, 'z');
    const auto lines = FieldList(screen).lines;
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[1], "y" + std::string(119, 'z'));
    EXPECT_EQ(lines[2], "z");
}

TEST(FieldList, FieldsShowTheirValueOrARuleToWriteOn) {
    SelectionState screen = ScreenWith({"Deed / Warranty", "Schedule A"});
    screen.txtJobName.text = "Hollis";
    for (const int n : {field::Seller1Name, field::Buyer1Addr2, field::SellerAttyAddr2, field::ClosingDate,
                        field::SchedADescription, field::OtherDisbursement2})
        screen.job.txtField(n).relevant = true;
    screen.grid = {Row(RowKind::Heading, " USER-DEFINED~~~", ""),
                   Row(RowKind::User, "[number of the parking space]", ""),
                   Row(RowKind::User, "[hoa]", "Harbor View")};
    const PrintJob list = FieldList(screen);
    EXPECT_EQ(list.name, "Field List");
    EXPECT_EQ(list.font, "Courier New");
    EXPECT_THAT(list.lines,
                ElementsAre(kHeading + "Deed / Warranty; Schedule A",  //
                            "File Name: Hollis",                       //
                            "seller atty addr 2      " + kRule,        //
                            "seller 1 name         * Walter B. Hollis",
                            "buyer 1 addr 2          Unit 3",    //
                            "closing date          * " + kRule,  //
                            "other disbursement #2 * " + kRule,  //
                            "sched A description   * A certain piece or parcel of land, known as Lot 7.", "",
                            "NORTHERLY: by Chestnut Lane.",         //
                            "number of the parking * " + kRule,     //
                            "hoa                   * Harbor View",  //
                            "* asterisks denote required fields"));
}

TEST(FieldList, WithoutDocumentsThereIsTheHeadingAndTheName) {
    SelectionState screen = ScreenWith({});
    EXPECT_THAT(FieldList(screen).lines, ElementsAre(kHeading));
    screen.txtJobName.text = "Hollis";
    EXPECT_THAT(FieldList(screen).lines, ElementsAre(kHeading, "File Name: Hollis"));
}

}  // namespace
}  // namespace quillmark::test
