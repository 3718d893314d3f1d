#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/folders.h"

/// What can be picked for a job, and what the rules of the job list need to know of each document.
namespace quillmark {

/// A property of a document; several are joined with "|".
enum class DocumentTrait : unsigned {
    None = 0,
    PlainDeed = 1u << 0,      ///< of an owner in their own right: warranty, quitclaim
    FiduciaryDeed = 1u << 1,  ///< of an administrator, conservator, executor or trustee
    TrusteeDeed = 1u << 2,    ///< comes with the trustee's affidavit
    DeedAffidavit = 1u << 3,  ///< goes with the deed that it came with
    Payoff = 1u << 4,         ///< makes sense only where a mortgage is paid off
    Letter = 1u << 5,         ///< can be printed on letterhead, which has no legal size
    SmsPayoff = 1u << 6,      ///< a payoff by way of the secondary market service
    DirectPayoff = 1u << 7,   ///< stands against the former
    EntityOnly = 1u << 8,     ///< for a seller that is an entity
    PersonOnly = 1u << 9,     ///< for a seller who is a person
    NotCommercial = 1u << 10,
};
constexpr DocumentTrait operator|(DocumentTrait a, DocumentTrait b) {
    return static_cast<DocumentTrait>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}
/// Whether the document has any of the traits. Names that are no built-in document have none.
bool HasTrait(std::string_view document, DocumentTrait any);

/// The documents that the system offers, in catalogue order.
std::span<const std::string_view> DocumentCatalogue();

/// Documents that are no longer offered but still known: they reach a job through an older job file or a
/// package.
std::span<const std::string_view> OlderDocuments();

/// Documents that rules name.
inline constexpr std::string_view kBridgeportContract = "Contract / Bridgeport Bar";
inline constexpr std::string_view kValleyContract = "Contract / Valley Bar";
inline constexpr std::string_view kEngagementLetter = "Seller's Engagement Letter";
inline constexpr std::string_view kPrivacyPolicy = "Privacy Policy";
inline constexpr std::string_view kTrusteesAffidavit = "Trustee's Affidavit";
inline constexpr std::string_view kCfpbAddendum = "CFPB Addendum";
inline constexpr std::string_view kChroNotice = "CHRO Fair Housing Notice";
inline constexpr std::string_view kBridgeportClosingLetter = "Closing Letter / Bridgeport Bar";
inline constexpr std::string_view kClosingStatement = "Closing Statement";  ///< begins the name of both
inline constexpr std::string_view kDeedPrefix = "Deed / ";

/// Whether the line is a sales agreement. Its transmittals are not.
bool IsContract(std::string_view line);

/// The placeholder of a document that the user fills by hand.
inline constexpr std::string_view kNewDocument = "[ NEW DOCUMENT ]";

/// Whether the job list entry is a custom document of the firm: "[ name ]", but not the placeholder.
bool IsCustomDocument(std::string_view name);

/// The lines "[ name ]" of the firm's own forms, in order of name; none without the folder.
std::vector<std::string> CustomDocumentLines(const Folders& folders);

/// What a job list or a package can be made of: the catalogue and the firm's own forms.
std::vector<std::string> OfferedDocuments(const Folders& folders);

/// The names in a job's document history, each followed by ":". A known name that holds a colon itself is one
/// name.
std::vector<std::string> DocumentsOf(std::string_view jobDocuments);

/// Whether the job's document history holds the name.
bool IsInHistory(std::string_view document, std::string_view jobDocuments);

}  // namespace quillmark
