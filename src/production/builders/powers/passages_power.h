#pragma once

#include <string_view>

#include "production/kit/job_values.h"
#include "production/kit/typing.h"

/// What the powers of attorney share, in the order of the page. They follow the Connecticut Uniform Power of
/// Attorney Act, C.G.S. Sec. 1-350 to 1-353b.
namespace quillmark {

/// The articles of a power, which are counted in words: "SECOND: EFFECTIVE DATE".
class Articles {
 public:
    /// Of a power whose first articles, so many of them, stand in a text.
    explicit Articles(Typist& type, std::size_t before = 0) : type_(type), next_(before) {}
    /// The number of the next article and its heading, both bold, and the blanks behind them.
    void Begin(std::string_view heading);

 private:
    Typist& type_;
    std::size_t next_;
};

/// A power whose principal is not known yet: it shows every hole, also those that a power ready to be signed
/// may leave open.
bool IsBlankPower(const JobValues& job);

/// The return address, the seller's attorney's, and the title.
void TypePowerHeading(const JobValues& job, Typist& type, std::string_view title);
/// Who appoints whom: one agent or two, who are "my agent" from there on. It ends without a return.
void TypeDesignation(const JobValues& job, Typist& type, int agents);

/// Who follows the agent, as an article of its own; nothing while no successor is named.
void TypeSuccessors(const JobValues& job, Typist& type, Articles& articles);
/// The date of the power, its durability and its end; `end` is what else ends it, " when ..." for instance.
void TypeEffectiveDate(const JobValues& job, Typist& type, Articles& articles, std::string_view end = {});
/// The reliance of others on the power and the ratification of what is done under it.
void TypeReliance(Typist& type, Articles& articles);

/// The principal's signature, both witnesses, the acknowledgment under the deeds' venue, and the end of the
/// page.
void TypePrincipalExecution(const JobValues& job, Typist& type);
/// Its parts, for a power with a venue of its own: both stand at the signature tab.
void TypePrincipalSignature(const JobValues& job, Typist& type);
void TypePrincipalAcknowledgment(const JobValues& job, Typist& type);

}  // namespace quillmark
