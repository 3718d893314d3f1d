#include "production/run/field_list.h"

#include <gmock/gmock.h>

#include "core/fields.h"
#include "production/sample_deal.h"

namespace quillmark::test {
namespace {

using ::testing::ElementsAre;

const std::string kHeading = "QUILL MARK Field List >  ";
const std::string kRule(30, '_');

std::string fileName;  ///< of the job, empty for none

JobInHand HandWith(std::vector<std::string> documents) {
    fileName.clear();
    JobInHand hand;
    hand.job = SampleDeal();
    for (std::string& name : documents) hand.List2.push_back({std::move(name)});
    return hand;
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
    JobInHand hand = HandWith({entry, std::string(89 - characters - 2, 'x')});
    EXPECT_THAT(FieldList(hand, fileName).lines, ElementsAre(kHeading + entry + "; " + hand.List2[1].name,
                                                             "* asterisks denote required fields"));
    hand.List2[1].name += 'y' + std::string(120, 'z');
    const auto lines = FieldList(hand, fileName).lines;
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[1], "y" + std::string(119, 'z'));
    EXPECT_EQ(lines[2], "z");
}

TEST(FieldList, FieldsShowTheirValueOrARuleToWriteOn) {
    JobInHand hand = HandWith({"Deed / Warranty", "Schedule A"});
    fileName = "Hollis";
    for (const int n : {field::Seller1Name, field::Buyer1Addr2, field::SellerAttyAddr2, field::ClosingDate,
                        field::SchedADescription, field::OtherDisbursement2})
        hand.job.txtField(n).relevant = true;
    hand.grid = {Row(RowKind::Heading, " USER-DEFINED~~~", ""),
                 Row(RowKind::User, "[number of the parking space]", ""),
                 Row(RowKind::User, "[hoa]", "Harbor View")};
    const PrintJob list = FieldList(hand, fileName);
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
    JobInHand hand = HandWith({});
    EXPECT_THAT(FieldList(hand, fileName).lines, ElementsAre(kHeading));
    fileName = "Hollis";
    EXPECT_THAT(FieldList(hand, fileName).lines, ElementsAre(kHeading, "File Name: Hollis"));
}

}  // namespace
}  // namespace quillmark::test
