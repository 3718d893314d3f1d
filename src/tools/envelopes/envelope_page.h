#pragma once

#include <string>
#include <vector>

#include "core/job.h"
#include "platform/machine.h"

/// One #10 envelope: who it goes to, and where each line stands on it.
namespace quillmark::envelopes {

/// The four lines of an addressee.
struct Address {
    std::string line1, line2, line3, cityStateZip;
};

/// Who can be picked: a field whose value is a person or firm, or the tracking service of mortgage releases.
struct Addressee {
    int field = 0;     ///< 0 for the service
    std::string line;  ///< as the list shows it: the marker in 24 columns, then the value
};
/// Those of the job that have a value, in the order of their fields, and the service.
std::vector<Addressee> AddresseesOf(const Job& job);
/// What belongs to an addressee; parts that have no value are empty.
Address AddressOf(const Job& job, const Addressee& addressee);

/// The largest indent from the left, in inches, and the usual one.
inline constexpr double kMostIndent = 6;
inline constexpr double kUsualIndent = 2.75;

/// What a setup begins with where none has been kept: an envelope that lies as one reads it.
struct EnvelopeSettings {
    std::string printer;
    int bin = 0;
    std::string font = "Arial";
    bool landscape = true;
    bool returnAddress = false;
    double indent = kUsualIndent;  ///< inches
};

/// The page of an envelope. The first line of the addressee stands 1.75 inches from the top, the others below
/// it; an empty line takes no room. The sender is the seller's attorney of the job.
PrintedPage PageOf(const Address& address, const Job& job, const EnvelopeSettings& settings);

}  // namespace quillmark::envelopes
