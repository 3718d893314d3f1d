#pragma once

#include <functional>
#include <string>

#include "core/job.h"

/// Documents as golden texts: whole in one configuration of a job, and for each branch only what differs.
namespace quillmark::test {

/// The document of this job as EngineDesk::Reading gives it.
std::string Reading(const std::string& document, const Job& job);

/// The changes from one reading to another as a lawyer redlines them, one place to a line, with some words
/// around it: [-struck-] and [+written in+], paragraph ends as ¶.
std::string Redline(const std::string& before, const std::string& after);

/// Compares the whole document with tests/goldens/GOLDEN.txt, which begins with the document's name and the
/// facts of the job in a sentence.
void ExpectWhole(const std::string& golden, const std::string& document, const std::string& facts,
                 const Job& job);

/// Compares what a change to the job changes in the document with tests/goldens/GOLDEN.txt.
void ExpectBranch(const std::string& golden, const std::string& document, const std::string& facts,
                  const Job& plain, const std::function<void(Job&)>& change);

}  // namespace quillmark::test
