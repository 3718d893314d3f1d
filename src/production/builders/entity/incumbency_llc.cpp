#include "core/people.h"
#include "core/text_conversions.h"
#include "production/builders/entity/passages_entity.h"

namespace quillmark {

using namespace field;

namespace {

/// A line for each member to sign on, the share to be filled in by hand.
void TypeMembers(const std::vector<std::string>& members, Typist& type) {
    type.Indents(0.75);
    type.TypeUnderlined("Member");
    type.AtTab(2.7, [&] {
        type.Text("\t");
        type.TypeUnderlined("Share");
        type.Text("\r");
    });
    for (const std::string& member : members)
        type.Text("\r\r", RepeatUnderscore(25), "  _______%\r", member, "\r");
}

}  // namespace

void TypeLlcIncumbency(const JobValues& job, Typist& type) {
    const std::vector<std::string> members = PeopleIn(job[NamesOfMembers]);
    const bool isAlone = members.size() == 1;
    BeginEntityPaper(type);
    TypeCaption(type, {"CERTIFICATE OF INCUMBENCY"});

    type.Text("The undersigned, being ", isAlone ? "the only member" : "all of the members", " of ");
    TypeEntity(job, type, "limited liability company", "Company");
    type.Text(isAlone ? ", does" : ", do", " hereby certify that:\r\r");

    type.BeginList();
    type.Text(
        "The certificate of organization of the Company is on file with the Secretary of the State and has been "
        "neither cancelled nor forfeited, and no step toward dissolution or merger has been taken or proposed.");
    type.EndItem();
    type.Text(
        isAlone ? "The member" : "The members",
        " may act for the Company in the sale of its real property, and no other consent is required, by the "
        "operating agreement or otherwise.");
    type.EndItem();
    type.Text(
        isAlone ? "The following person is the only member" : "The following persons are all of the members",
        " of the Company on this day, with the share in it that is set opposite ",
        isAlone ? "the signature:" : "each signature:");
    type.EndItem();
    type.EndList();

    type.Text("Witness ", isAlone ? "my signature" : "our signatures", " this ",
              job.DayMonthYear(DocumentDate), ".\r\r");
    type.As(word::Role::Signature, [&] { TypeMembers(members, type); });
    type.Indents(0);
}

}  // namespace quillmark
