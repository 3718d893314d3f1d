#include "production/builders/agreements/passages_agreement.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "core/text_conversions.h"
#include "production/kit/passages.h"
#include "production/kit/signers.h"

namespace quillmark {

using namespace field;

namespace {

using Lines = std::vector<std::string>;

/// Two addresses in columns, the second at the signature tab.
void TypeSideBySide(Typist& type, const Lines& left, const Lines& right) {
    type.AtTab(kSignatureTab, [&] {
        for (std::size_t i = 0; i < std::max(left.size(), right.size()); ++i) {
            type.Text(i < left.size() ? left[i] : "");
            if (i < right.size()) type.Text("\t", right[i]);
            type.Text("\r");
        }
        type.Text("\r");
    });
}

void AddAddress(const JobValues& job, Lines& lines, Field addr1, Field cityStateZip) {
    lines.push_back(job[addr1]);
    const auto addr2 = static_cast<Field>(addr1 + 1);
    if (job.IsFilled(addr2)) lines.push_back(job[addr2]);
    lines.push_back(job[cityStateZip]);
}

/// An attorney with everything by which to be reached; a firm that is named after the attorney is named once.
Lines AttorneyLines(const JobValues& job, Field firm, const Attorney& attorney, Field phone, Field fax) {
    Lines lines = {job[firm]};
    if (job[firm].find(job[attorney.name]) == std::string::npos)
        lines.push_back("Attn: " + job[attorney.name]);
    AddAddress(job, lines, attorney.addr1, attorney.cityStateZip);
    lines.push_back("Telephone " + job[phone]);
    if (job.IsFilled(fax)) lines.push_back("Fax " + job[fax]);
    return lines;
}

void TypeAttorneys(const JobValues& job, Typist& type) {
    Lines left = AttorneyLines(job, SellerLawfirm, kSellerAtty, SellerAttyPhone, SellerAttyFax);
    Lines right = AttorneyLines(job, BuyerLawfirm, kBuyerAtty, BuyerAttyPhone, BuyerAttyFax);
    left.insert(left.begin(), "For Seller and for Escrow Agent:");
    right.insert(right.begin(), "For Buyer:");
    TypeSideBySide(type, left, right);
}

void TypeEscrowSignatures(const JobValues& job, Typist& type) {
    type.AtTab(kSignatureTab, [&] {
        TypeSignatures(type, SellerSigners(job, "Seller"));
        TypeSignatures(type, BuyerSigners(job, "Buyer"));
        type.As(word::Role::Signature, [&] {
            type.Text(RepeatReturn(2), "\t", SignatureRule(), "\r",  //
                      "\t", job[SellerLawfirm], ", Escrow Agent\r",  //
                      "\tBy ", job[SellerAtty], "\r");
        });
    });
}

void TypeIndemnitorSignatures(const JobValues& job, Typist& type) {
    type.AtTab(kSignatureTab, [&] { TypeSignatures(type, SellerSigners(job, "Indemnitor")); });
}

void TypeEscrowHolder(const JobValues& job, Typist& type) {
    type.As(word::Role::Signature, [&] {
        type.Text(
            "The undersigned has received the Escrow and agrees to hold it and to pay it out as Section 2 provides.",
            RepeatReturn(3));
        type.AtTab(kSignatureTab,
                   [&] { type.Text("\t", SignatureRule(), "\r\t", job[EscrowAtty], ", Escrow Holder\r"); });
    });
}

}  // namespace

Passages AgreementPassages() {
    static constexpr auto kPassages = std::to_array<Passage>({
        {"attorneys", TypeAttorneys},
        {"escrow signatures", TypeEscrowSignatures},
        {"indemnitor signatures", TypeIndemnitorSignatures},
        {"escrow holder", TypeEscrowHolder},
    });
    return kPassages;
}

}  // namespace quillmark
