#include "core/text_conversions.h"
#include "production/builders/entity/passages_entity.h"

namespace quillmark {

using namespace field;

namespace {

/// Names and offices, to be filled in by hand.
void TypeOfficers(Typist& type) {
    type.AtTabs({0.75, 4}, [&] {
        type.Text("\t");
        type.TypeUnderlined("Name");
        type.Text("\t");
        type.TypeUnderlined("Office");
        type.Text("\r");
        for (int officer = 0; officer < 4; ++officer)
            type.Text("\r\t", RepeatUnderscore(28), "\t", RepeatUnderscore(28), "\r");
    });
    type.Text("\r");
}

}  // namespace

void TypeCorporateIncumbency(const JobValues& job, Typist& type) {
    BeginEntityPaper(type);
    TypeCaption(type, {"CERTIFICATE OF INCUMBENCY"});

    type.Text("I, ", job[CorporateSecretary], ", do hereby certify that:\r\r");

    type.BeginList();
    type.Text("I am the duly elected Secretary of ");
    TypeEntity(job, type, "corporation", "Corporation");
    type.Text(", and have charge of its minutes and its seal.");
    type.EndItem();
    type.Text(
        "Annexed hereto is a true and complete copy of the By-Laws of the Corporation, with all amendments made to "
        "this day, and they are in full force.");
    type.EndItem();
    type.Text(
        "As of the date hereof, neither the shareholders nor the Board of Directors of the Corporation have taken "
        "or proposed any step toward its dissolution, its merger, or a change of its By-Laws.");
    type.EndItem();
    type.Text(
        "The following persons are the Officers of the Corporation in the offices set opposite their names, have "
        "been duly elected, and hold those offices on this day:");
    type.EndItem();
    type.EndList();
    TypeOfficers(type);

    type.Text("Witness, my signature and the seal of the Company this ", job.DayMonthYear(DocumentDate),
              ".\r");
    TypeSecretarySignature(job, type);
    type.Indents(0);
}

}  // namespace quillmark
