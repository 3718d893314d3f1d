#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "selection/job_in_hand.h"

namespace quillmark {

/// Whether a document asks for field n under the options that are set now. Custom documents are not looked
/// into: their forms say what they ask for.
bool AsksFor(std::string_view document, int n, const Job& job);

/// The entries of the job list that ask for field n, in order, each once.
std::vector<std::string> DocumentsAsking(int n, const JobInHand& inHand);

}  // namespace quillmark
