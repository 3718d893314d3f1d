#pragma once

#include <cstddef>
#include <stdexcept>
#include <string_view>

#include "selection/document_catalogue.h"
#include "selection/job_in_hand.h"

/// `ParkedDocuments`: documents that a choice of option took off the job list, kept so that another choice
/// can bring them back.
namespace quillmark {

enum class ParkingList : std::size_t {
    A = 0,  ///< by seller kind and property type
    B = 1,  ///< by having no payoffs
};
inline constexpr std::size_t kParkingSlots = 10;

/// A list has no slot left for a document.
class ParkingFull : public std::runtime_error {
 public:
    explicit ParkingFull(std::string_view document);
};

/// Throws ParkingFull if the documents on the job list that have any of the traits find no room in the
/// parking list; with `restoresFirst` as it will be once that list has been restored.
void RequireParkingRoom(DocumentTrait any, ParkingList list, bool restoresFirst, const JobInHand& hand);

/// Takes every document that has any of the traits off the job list into the parking list, in list order.
/// Throws ParkingFull, with nothing changed.
void Park(DocumentTrait any, ParkingList list, JobInHand& hand);

/// Appends what is parked to the job list, in slot order, and empties the slots.
void RestoreParked(ParkingList list, JobInHand& hand);

}  // namespace quillmark
