#pragma once

#include <string>

#include "selection/job_in_hand.h"
#include "selection/job_list_parking.h"

/// What the choice of an option does beside setting it: it moves documents on and off the job list and
/// rebuilds values that depend on the option. The fields are the caller's to refresh.
namespace quillmark {

/// What a chosen option asks of the person.
struct OptionEffects {
    /// Public Act 16-16: whether the sale is of rental property, which comes with a notice of fair housing.
    bool asksFairHousing = false;
};

/// Chooses an option. Throws ParkingFull, with nothing changed.
OptionEffects ChooseOption(int n, JobInHand& hand);

/// The answer that rental property is sold: the notice goes on the list. Gives the notice of the addition.
std::string AddFairHousingNotice(JobInHand& hand);

/// Clears the group of an option that need not have one set. Throws ParkingFull, with nothing changed.
void ClearOptionGroup(int n, JobInHand& hand);

}  // namespace quillmark
