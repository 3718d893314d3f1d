#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "selection/job_in_hand.h"

/// What the closing has to know about an amount beside its size, asked when it is first entered: whether it
/// has been paid, who is credited, whether a payoff holds the charge for recording the release, whether a
/// loan is an equity line.
namespace quillmark {

/// A question that is answered Yes or No.
struct Question {
    std::string title;
    std::string text;
};

/// How far the questions of an entry have come.
struct QuestionStep {
    std::optional<Question> question;  ///< the next one; nothing when all have been asked
    std::string tag;                   ///< then: what the answers put behind the value; empty for nothing
};

/// The next question about `value`, the first entry of field n, after these answers. A value that is no first
/// one, is no amount or has its tag raises none.
QuestionStep NextQuestion(int n, std::string_view value, const std::vector<bool>& answers,
                          const JobInHand& hand);

}  // namespace quillmark
