#pragma once

#include <span>
#include <string>
#include <string_view>

#include "production/kit/production.h"
#include "production/kit/word_session.h"

/// The built-in documents that have a builder, as builders/builders.inc lists them.
namespace quillmark {

class JobValues;
class Typist;

/// Which form of a document its builder is to type.
struct Variant {
    std::string_view tag;  ///< such as "BLN" for the balloon note; empty for the plain form
    int number = 1;        ///< 1 or 2: which seller, which payoff, or how many agents
};

/// Types one document at the insertion point, from top to bottom. It finds the insertion point at the start
/// of an empty section, and leaves bold, italic and underline off, no list, no tab stop of its own and no
/// indent. It changes nothing in the job and handles no failure.
using BuilderFunction = void (*)(const Production& production, Typist& type, const Variant& variant);

/// The option with which the same entry is typed a second time, as number 2.
enum class RunsAgain { Never, WithTwoSellers, WithTwoPayoffs };

struct Builder {
    std::string_view document;  ///< the entry of the job list, character by character
    BuilderFunction type = nullptr;
    Variant variant;
    RunsAgain again = RunsAgain::Never;
    std::string_view notices;  ///< letters of the notices that the document may call for
};

/// All builders in the order of the list.
std::span<const Builder> Builders();

/// The builder of a job list entry; null for entries that have none.
const Builder* FindBuilder(std::string_view document);

/// The notices that the document adds in this job: all of its letters, but "D" (joint tenants survive one
/// another, C.G.S. Sec. 47-14a) only while the tenancy type is "joint tenants" in whatever case.
std::string NoticesOf(const Builder& builder, const Job& job);

/// Types the document, and once more as number 2, on a page of its own, when the job's options ask for it.
void TypeDocument(const Builder& builder, const Production& production, WordSession& session);

}  // namespace quillmark
