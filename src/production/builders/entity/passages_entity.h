#pragma once

#include <string_view>

#include "production/kit/job_values.h"
#include "production/kit/typing.h"

/// What the authority papers of an entity share: the sale that they authorise, and who signs them in what
/// number.
namespace quillmark {

/// The page of these papers: both indents, which the paper clears at its end, and one typeface.
void BeginEntityPaper(Typist& type);

/// The caption, in bold over the page.
void TypeCaption(Typist& type, std::initializer_list<std::string_view> lines);

/// "Chestnut Holdings LLC, a limited liability company organized under the laws of the State of Connecticut
/// (the "Company")", the name in bold. `kind` is "limited liability company", `shortly` is "Company".
void TypeEntity(const JobValues& job, Typist& type, std::string_view kind, std::string_view shortly);

/// " shall convey property owned by the Corporation located at ..." with buyers, price and closing.
void TypeConveyanceBySale(const JobValues& job, Typist& type);

/// What the person who signs for the seller may do, from " is hereby authorized" to the end of the sentence.
void TypeAuthority(Typist& type);

/// A rule, "Dated: " with what follows it, and the name below, for each person of a list whose names are
/// separated by commas. Needs no tab stop of the caller's.
void TypeDatedSignatures(Typist& type, std::string_view names, std::string_view capacity,
                         std::string_view date);

/// The secretary's rule and name at the signature tab.
void TypeSecretarySignature(const JobValues& job, Typist& type);

}  // namespace quillmark
