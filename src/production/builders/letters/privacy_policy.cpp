#include "core/text_conversions.h"
#include "production/builders/builder_list.h"
#include "production/builders/letters/letter.h"

namespace quillmark {

using namespace field;

/// What the firm does with what it learns of a client, in the manner of the notices under the
/// Gramm-Leach-Bliley Act (15 U.S.C. Sec. 6803); one copy to each seller.
void TypePrivacyPolicy(const JobValues& job, Typist& type, const Variant& variant) {
    const Party& seller = variant.number == 2 ? kSeller2 : kSeller1;

    BeginLetter(type);
    TypeLetterHead(job, type);
    type.Text(job[seller.name], "\r", job.TwoLines(seller.addr1), "\r", job[seller.cityStateZip],
              RepeatReturn(2));
    type.Text("Dear ", job[seller.name], ":", RepeatReturn(2));
    TypeHeadLines(type, {"PRIVACY POLICY NOTICE"});

    type.Align(word::AlignJustified);
    TypeParagraph(
        type,
        "Attorneys, like others who advise on financial matters, are entrusted with personal information "
        "and owe their clients an account of how it is treated. We have always held, and under the Rules "
        "of Professional Conduct must hold, what our clients tell us in confidence. This notice says what "
        "we collect, with whom we share it, and how we keep it.");
    type.TypeBold("Information we collect.");
    TypeParagraph(
        type,
        " In the course of representing you we receive nonpublic personal information from you, such as "
        "your address, telephone number and tax identification number; from your lenders, such as loan "
        "numbers and balances; and from the other persons who take part in your transaction, such as real "
        "estate brokers, title companies, attorneys and public offices.");
    type.TypeBold("Information we disclose.");
    TypeParagraph(
        type,
        " We do not sell this information, and we disclose none of it, of present or former clients, "
        "except as you have authorized, as is needed to carry out the transaction for which you have "
        "engaged us, or as the law requires. Those who may need some of it for your transaction are "
        "lenders, title insurers, brokers, the attorneys for the other parties, and the taxing and "
        "recording authorities.");
    type.TypeBold("How we protect it.");
    TypeParagraph(
        type,
        " Access to your information is limited to the attorneys and staff of this firm, and to those who "
        "serve it under a like duty of confidence, who need it in order to serve you. We maintain "
        "physical, electronic and procedural safeguards, and we destroy records securely when we are no "
        "longer obliged to keep them.");
    TypeParagraph(
        type,
        "Please call us if you have any question about this notice. Your privacy, our professional ethics "
        "and your confidence in us matter to us.");
    TypeClosing(job, type, "Very truly yours,");
    EndLetter(type);
}

}  // namespace quillmark
