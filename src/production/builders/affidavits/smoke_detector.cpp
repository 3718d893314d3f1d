#include "core/text_conversions.h"
#include "production/kit/passages.h"
#include "production/kit/pictures.h"
#include "production/kit/signers.h"

namespace quillmark {

using namespace field;
using word::InchesToPoints;

namespace {

constexpr double kPictureWidth = 1.25;
constexpr double kLabelWidth = 1.75;
constexpr double kBoxWidth = 0.35;
constexpr double kTextWidth = 7.25;  ///< of the page
constexpr double kRowHeight = 17;
constexpr int kGrey = 0xD9D9D9;

void SetWidths(const word::Table& table, double first) {
    table.Columns(1).Width = InchesToPoints(first);
    table.Columns(2).Width = InchesToPoints(kTextWidth - first);
}

/// The picture beside the title, in a double frame.
void TypeHead(Typist& type) {
    const word::Table head = type.Table(1, 2);
    SetWidths(head, kPictureWidth);
    AddPicture(type, "affidavits/smoke_detector.png", head.Cell(1, 1));
    const word::Cell title = head.Cell(1, 2);
    title.Range.Text =
        "AFFIDAVIT OF COMPLIANCE\rWith the Requirements of the Law for Smoke and Carbon Monoxide Detectors\r"
        "C.G.S. §29-453";
    title.Range.Font.Size = 11;
    title.Range.Font.Bold = true;
    title.Range.ParagraphFormat.Alignment = word::AlignCentre;
    title.VerticalAlignment = word::CellAlignCentre;
    // Room around the picture, which would cover the frame.
    head.Rows(1).Height = 88;
    head.Cell(1, 1).VerticalAlignment = word::CellAlignCentre;
    head.Borders.OutsideLineStyle = word::LineStyleDouble;
}

/// What is sold, by whom, to whom and when.
void TypeTransfer(const JobValues& job, Typist& type) {
    const std::pair<std::string_view, std::string> rows[] = {
        {"Property:", job.Property()},
        {job.Has(TwoSellers) ? "Sellers:" : "Seller:", job.SellerNames()},
        {job.Has(TwoBuyers) ? "Buyers:" : "Buyer:", job.BuyerNames()},
        {"Date of construction:",
         job.IsFilled(ConstructionMonthYear) ? job[ConstructionMonthYear] : RepeatUnderscore(15)},
        {"Date of closing:", job[ClosingDate]},
    };
    const word::Table table = type.Table(static_cast<int>(std::size(rows)), 2);
    SetWidths(table, kLabelWidth);
    int row = 0;
    for (const auto& [label, value] : rows) {
        table.Cell(++row, 1).Range.Text = label;
        table.Cell(row, 1).Range.Font.Bold = true;
        table.Cell(row, 2).Range.Text = value;
    }
    table.Borders.OutsideLineStyle = word::LineStyleSingle;
    table.Borders.InsideLineStyle = word::LineStyleSingle;
}

/// One kind of equipment: a shaded heading over a row for each statement with its box.
void TypeEquipment(Typist& type, std::string_view heading,
                   std::initializer_list<std::string_view> statements) {
    const word::Table table = type.Table(static_cast<int>(statements.size()) + 1, 2);
    SetWidths(table, kBoxWidth);
    int row = 1;
    for (const std::string_view statement : statements) {
        type.CheckBox(table.Cell(++row, 1), false);
        table.Cell(row, 2).Range.Text = statement;
        table.Rows(row).Height = kRowHeight;
        table.Cell(row, 1).VerticalAlignment = word::CellAlignCentre;
        table.Cell(row, 2).VerticalAlignment = word::CellAlignCentre;
    }
    table.Rows(1).Height = kRowHeight;
    table.Rows(1).Shading.BackgroundPatternColor = kGrey;
    table.Cell(1, 1).Merge(table.Cell(1, 2));
    table.Cell(1, 1).Range.Text = heading;
    table.Cell(1, 1).Range.Font.Bold = true;
    table.Cell(1, 1).VerticalAlignment = word::CellAlignCentre;
    table.Borders.OutsideLineStyle = word::LineStyleSingle;
    table.Borders.InsideLineStyle = word::LineStyleSingle;
}

void TypeOath(const JobValues& job, Typist& type) {
    type.AtTab(kSignatureTab, [&] {
        TypeSignatures(type, SellerSigners(job, SellerRole(job, "Seller")));
        type.As(word::Role::Notary, [&] {
            type.TypeBold("STATE OF CONNECTICUT\t}\r\t}");
            type.Text("\tss.  ", RepeatUnderscore(20), "\r");
            type.TypeBold("COUNTY OF ", RepeatUnderscore(18), "\t}\r\r");
        });
        TypeJurat(job, type);
        TypeNotary(job, type);
    });
}

}  // namespace

/// The seller's statement at the closing of a dwelling's sale, C.G.S. Sec. 29-453.
void TypeSmokeDetectorAffidavit(const JobValues& job, Typist& type) {
    type.Indents(0);
    type.Align(word::AlignLeft);
    type.Font("Arial", 10);
    TypeHead(type);
    type.Text(
        "This form shall be used for all dwellings that are sold or transferred and that are designed for one or two "
        "families or are units of a common interest community.  The transferor signs it and gives it to the "
        "transferee at the closing.\r\r");
    type.Text(
        "State Law requires that all properties have operable smoke and carbon monoxide detection and warning "
        "equipment.  Tick each box whose statement is true to the best of your knowledge.\r\r");
    TypeTransfer(job, type);
    TypeEquipment(
        type, "SMOKE DETECTION",
        {"Smoke detection and warning equipment is installed in or in the immediate vicinity of each bedroom, and "
         "sounds an audible alarm when its test button is pressed.",
         "The equipment is powered by the household electrical service.",
         "The equipment is powered by batteries.",
         "The equipment is interconnected, so that an alarm of one detector sets off all of them."});
    TypeEquipment(
        type, "CARBON MONOXIDE DETECTION",
        {"Carbon monoxide detection and warning equipment is installed in accordance with the manufacturer's "
         "instructions, and sounds an audible alarm when its test button is pressed.",
         "  Not required because the building does not contain a fuel-burning appliance, a fireplace or an attached "
         "garage."});
    type.Text(
        "The undersigned, being duly sworn, ", job.Has(TwoSellers) ? "depose and say" : "deposes and says",
        " that the statements ticked above are true.  They are no warranty beyond the transfer of title.\r");
    TypeOath(job, type);
    type.Indents(0);
}

}  // namespace quillmark
