#include "selection/job_list_parking.h"

#include <fmt/format.h>

#include "selection/job_list_lines.h"

namespace quillmark {

namespace {

std::vector<std::string>& SlotsOf(ParkingList list, JobInHand& hand) {
    return hand.ParkedDocuments[static_cast<std::size_t>(list)];
}

}  // namespace

ParkingFull::ParkingFull(std::string_view document)
    : std::runtime_error(
          fmt::format("\"{}\" cannot be set aside: {} documents that this choice leaves out are set aside "
                      "already. Remove some documents from the job list and try again.",
                      document, kParkingSlots)) {}

void RequireParkingRoom(DocumentTrait any, ParkingList list, bool restoresFirst, const JobInHand& hand) {
    const auto& parked = hand.ParkedDocuments[static_cast<std::size_t>(list)];
    std::size_t used = restoresFirst ? 0 : parked.size();
    const auto take = [&](std::string_view name) {
        if (HasTrait(name, any) && ++used > kParkingSlots) throw ParkingFull(name);
    };
    for (const JobListLine& line : hand.List2) take(line.name);
    if (!restoresFirst) return;
    for (const std::string& name : parked) take(name);
}

void Park(DocumentTrait any, ParkingList list, JobInHand& hand) {
    RequireParkingRoom(any, list, false, hand);
    for (const JobListLine& line : hand.List2)
        if (HasTrait(line.name, any)) SlotsOf(list, hand).push_back(line.name);
    TakeOff(any, hand);
}

void RestoreParked(ParkingList list, JobInHand& hand) {
    auto& slots = SlotsOf(list, hand);
    for (const std::string& name : slots) AppendLine(name, hand);
    slots.clear();
}

}  // namespace quillmark
