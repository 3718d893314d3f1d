#include "cli/console_commands.h"
#include "closing/closing_statement.h"
#include "production/run/normalise.h"

namespace quillmark::cli {

Json FiguresOfStatement(ConsoleSession& session, const Request& request) {
    const std::string mode = request.Text("mode");
    if (!mode.empty() && mode != kTaxExemptMode)
        throw BadRequest("mode is neither empty nor " + std::string(kTaxExemptMode));
    const FirmContext& firm = session.screen().FirmAround();
    Job job = session.State().job;  // the values as documents have them, in a copy: the job stays as it is
    const NormalisedValues asTyped(job, firm.clock.Today());
    Json figures = Json::object();
    for (const auto& [name, figure] :
         FiguresByName(ComputeClosingStatement(job, firm.settings, mode, session.screen().Person())))
        figures[std::string(name)] = figure;
    return figures;
}

}  // namespace quillmark::cli
