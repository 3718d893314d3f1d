#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/job.h"
#include "platform/clock.h"
#include "platform/machine.h"
#include "tools/op236/pdf_form.h"

/// Connecticut's real estate conveyance tax return, Form OP-236, as values: what a job and the entries of the
/// window put into the state's form, and where they stand on the printed one.
namespace quillmark::op236 {

/// The instruments of the return by their place in `Combo1`; none is -1.
enum Instrument : int {
    kAdministratorsDeed,
    kConservatorsDeed,
    kEasement,
    kExecutorsDeed,
    kMortgageDeed,
    kQuitclaimDeed,
    kTestamentaryTrustee,
    kTrusteesDeed,
    kWarrantyDeed,
};
inline constexpr std::array<std::string_view, 9> kInstruments = {
    "Administrator's Deed", "Conservator's Deed",   "Easement",       "Executor's Deed", "Mortgage Deed",
    "Quitclaim Deed",       "Testamentary Trustee", "Trustee's Deed", "Warranty Deed"};

/// The first instrument that the job list holds, under the catalogue's name of it; -1 for none.
int InstrumentOf(const std::vector<std::string>& jobList);

enum class Signer { Grantor, Attorney, Agent };

/// A street address over a city line.
struct PostalAddress {
    std::string street;
    std::string cityLine;
};

/// What the person enters beside what the job holds.
struct ReturnEntries {
    PostalAddress seller1, seller2, buyer1, buyer2;  ///< after conveyance
    int instrument = -1;
    Signer signer = Signer::Grantor;
    bool buyer2LivesWithBuyer1 = false;
    bool federalGiftTaxReturn = false;
    bool stateGiftTaxReturn = false;
    bool otherThanDwelling = false;
    bool buyerIsEntity = false;
    std::string code;      ///< of the exemption; empty for none
    std::string citation;  ///< or docket number, where the exemption asks for one
};

/// A conveyance for less is not taxed, and the return says so.
inline constexpr double kLeastTaxedPrice = 2000;
double SalePriceOf(const Job& job);

/// Whether Schedule A, of the seller's beneficiaries, partners or members, goes with the return; and Schedule
/// B, of the buyer's or of a second buyer.
bool NeedsScheduleA(const Job& job, const ReturnEntries& entries);
bool NeedsScheduleB(const Job& job, const ReturnEntries& entries);

/// The fields of the state's form with what goes in, in the order of the form; what has no value is left out.
/// A date that is empty is today's.
std::vector<FieldValue> FormValues(const Job& job, const ReturnEntries& entries, const Clock& clock);

/// What goes on the two-part form of paper, in inches; the adjustments are added to every place.
std::vector<PageItem> PaperItems(const Job& job, const ReturnEntries& entries, const Clock& clock,
                                 double vertical, double horizontal);
/// The X by which the adjustments are tried: in the box of a warranty deed.
PageItem TestItem(double vertical, double horizontal);

}  // namespace quillmark::op236
