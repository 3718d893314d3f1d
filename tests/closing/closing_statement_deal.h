#pragma once

#include <map>
#include <string>
#include <string_view>

#include "closing/closing_statement.h"

namespace quillmark::test {

/// A sale for $100,000 until other fields are entered, and the statement that comes of it. A question that
/// was not prepared for fails the test.
struct StatementDesk {
    Job job;
    Settings settings;
    ScriptedDialogs dialogs{{}, ScriptedDialogs::WhenUnanswered::Fail};

    StatementDesk() { job.SetField(76, "$100,000.00"); }

    StatementDesk& In(std::string_view town, std::string_view prorationDate) {
        job.SetDerived(1, 72, town);
        job.SetField(81, prorationDate);
        return *this;
    }
    StatementDesk& With(const std::map<int, std::string>& fields) {
        for (const auto& [n, text] : fields) job.SetField(n, text);
        return *this;
    }
    ClosingStatement Compute(std::string_view mode = "") {
        return ComputeClosingStatement(job, settings, mode, dialogs);
    }
};

}  // namespace quillmark::test
