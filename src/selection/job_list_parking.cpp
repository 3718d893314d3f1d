#include "selection/job_list_parking.h"

#include <fmt/format.h>

#include "selection/job_list_lines.h"

namespace quillmark {

namespace {

std::vector<std::string>& SlotsOf(ParkingList list, SelectionState& screen) {
    return screen.ParkedDocuments[static_cast<std::size_t>(list)];
}

}  // namespace

ParkingFull::ParkingFull(std::string_view document)
    : std::runtime_error(
          fmt::format("\"{}\" cannot be set aside: {} documents that this choice leaves out are set aside "
                      "already. Remove some documents from the job list and try again.",
                      document, kParkingSlots)) {}

void RequireParkingRoom(DocumentTrait any, ParkingList list, bool restoresFirst,
                        const SelectionState& screen) {
    const auto& parked = screen.ParkedDocuments[static_cast<std::size_t>(list)];
    std::size_t used = restoresFirst ? 0 : parked.size();
    const auto take = [&](std::string_view name) {
        if (HasTrait(name, any) && ++used > kParkingSlots) throw ParkingFull(name);
    };
    for (const JobListLine& line : screen.List2) take(line.name);
    if (!restoresFirst) return;
    for (const std::string& name : parked) take(name);
}

void Park(DocumentTrait any, ParkingList list, SelectionState& screen) {
    RequireParkingRoom(any, list, false, screen);
    for (const JobListLine& line : screen.List2)
        if (HasTrait(line.name, any)) SlotsOf(list, screen).push_back(line.name);
    TakeOff(any, screen);
}

void RestoreParked(ParkingList list, SelectionState& screen) {
    auto& slots = SlotsOf(list, screen);
    for (const std::string& name : slots) AppendLine(name, screen);
    slots.clear();
}

}  // namespace quillmark
