#include "session/preview_command.h"

#include <algorithm>

namespace quillmark {

PreviewOrder OrderOfPreview(const MainScreen& screen, std::string_view document) {
    const ScreenState& state = screen.State();
    if (state.List2.empty()) throw NotAllowed("the job list is empty");
    PreviewOrder order;
    for (const JobListLine& line : state.List2) order.JobList.push_back(line.name);
    if (!document.empty() && std::ranges::find(order.JobList, document) == order.JobList.end())
        throw NotAllowed("List2 has no line \"" + std::string(document) + "\"");
    order.document = document;
    order.job = state.job;
    order.job.name = state.txtJobName.IsSaveable() ? state.txtJobName.text : std::string();
    order.LegalList = state.LegalList;
    order.settings = screen.FirmAround().settings;
    order.CustomFormsFolder = screen.FirmAround().folders.CustomFormsFolder;
    order.today = screen.FirmAround().clock.Today();
    order.nameUsable = state.txtJobName.IsSaveable();
    return order;
}

OpenList OpenNow(const MainScreen& screen) {
    const ScreenState& state = screen.State();
    const auto typed = state.List2.empty() ? std::vector<TypedEntry>() : TypeEach(OrderOfPreview(screen));
    return OpenListOf(state, screen.FirmAround(), typed);
}

}  // namespace quillmark
