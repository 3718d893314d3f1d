#include "session/screen_text.h"

#include <fmt/format.h>

namespace quillmark::test {

namespace {

std::string RowText(const GridRow& row) {
    return fmt::format("{} {} |{}|{}|{}|{}| {} {} {} {}", static_cast<int>(row.kind), row.n, row.label,
                       row.value, row.notes[0], row.notes[1], row.lit[0], row.lit[1], row.key, row.locked);
}

std::string HolderText(int n, const Job& job) {
    const FieldHolder& holder = job.txtField(n);
    std::string text =
        fmt::format("{}: {} = {} ({} {} {} {} {})", n, holder.text, job.D(n), holder.relevant, holder.locked,
                    static_cast<unsigned>(holder.colour), holder.tag, holder.top);
    for (int k = 1; k <= 4; ++k) text += "; " + job.D(k * 1000 + n);
    return text;
}

void AddButtons(const ScreenState& screen, std::vector<std::string>& texts) {
    for (const Button* button :
         {&screen.cmdOpen, &screen.cmdCreate, &screen.cmdReset, &screen.cmdExit, &screen.cmdTemplate,
          &screen.cmdPackages, &screen.cmdCustom, &screen.cmdNameAs, &screen.cmdEnvelopes, &screen.cmdOP236,
          &screen.cmdPrintFList, &screen.cmdSelect})
        texts.push_back(
            fmt::format("{} {} {} {}", button->caption, button->tooltip, button->enabled, button->visible));
}

void AddLists(const ScreenState& screen, std::vector<std::string>& texts) {
    texts.insert(texts.end(), screen.List1.begin(), screen.List1.end());
    for (const JobListLine& line : screen.List2)
        texts.push_back(fmt::format("{} {}", line.name, line.selected));
    for (const auto& parked : screen.ParkedDocuments) texts.insert(texts.end(), parked.begin(), parked.end());
    for (const GridRow& row : screen.grid) texts.push_back(RowText(row));
    texts.insert(texts.end(), screen.userMarkers.begin(), screen.userMarkers.end());
}

void AddJob(const Job& job, std::vector<std::string>& texts) {
    texts.push_back(job.name);
    texts.push_back(job.JobDocuments);
    for (int n = 1; n <= kFields; ++n) texts.push_back(HolderText(n, job));
    for (const auto& [marker, value] : job.userFields) texts.push_back(marker + "=" + value);
}

}  // namespace

std::vector<std::string> TextsOf(const ScreenState& screen) {
    const NameBox& box = screen.txtJobName;
    std::vector<std::string> texts = {
        fmt::format("{} {} {} {}", box.text, box.locked, box.enabled, box.noSave),
        fmt::format("{} {} {} {}", NameOf(screen.mode), screen.FieldEntryStarted, screen.templateBeingSet,
                    screen.fromTemplate),
        fmt::format("{} {} {} {}", screen.List1Enabled, screen.List2Enabled, screen.List2Tooltip(),
                    screen.LegalList),
        fmt::format("{} {} {}", screen.relevantFieldCount, screen.total, screen.remaining)};
    for (int n = 1; n <= kOptions; ++n) {
        const OptionButton& option = screen.options[static_cast<std::size_t>(n)];
        texts.push_back(fmt::format("{} {} {} {}", screen.job.optConf(n), option.enabled, option.visible,
                                    option.tooltip));
    }
    AddButtons(screen, texts);
    AddLists(screen, texts);
    AddJob(screen.job, texts);
    return texts;
}

}  // namespace quillmark::test
