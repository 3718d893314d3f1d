#include "session/undo_snapshot.h"

#include <algorithm>
#include <utility>

#include "core/options.h"

namespace quillmark {

namespace {

bool Same(const FieldHolder& a, const FieldHolder& b) {
    return a.text == b.text && a.relevant == b.relevant && a.locked == b.locked && a.colour == b.colour &&
           a.tag == b.tag && a.top == b.top && a.forShow == b.forShow;
}

bool Same(const GridRow& a, const GridRow& b) {
    return a.kind == b.kind && a.n == b.n && a.label == b.label && a.value == b.value && a.notes == b.notes &&
           a.lit == b.lit && a.key == b.key && a.locked == b.locked;
}

bool Same(const JobListLine& a, const JobListLine& b) {
    return a.name == b.name && a.selected == b.selected;
}

bool SameNames(const std::vector<JobListLine>& a, const std::vector<JobListLine>& b) {
    return std::ranges::equal(a, b, {}, &JobListLine::name, &JobListLine::name);
}

bool SameName(const NameBox& a, const NameBox& b) {
    return a.text == b.text && a.locked == b.locked && a.noSave == b.noSave;
}

std::string WithoutBrackets(std::string_view marker) {
    return std::string(marker.size() > 2 ? marker.substr(1, marker.size() - 2) : marker);
}

bool Same(const std::vector<JobListLine>& a, const std::vector<JobListLine>& b) {
    return std::ranges::equal(a, b, [](const JobListLine& x, const JobListLine& y) { return Same(x, y); });
}

/// A copy of one part of the screen without a list in it that need not be copied.
template <class Part, class List>
Part Without(List Part::*list, Part& screen) {
    List aside = std::exchange(screen.*list, {});
    Part part = screen;
    screen.*list = std::move(aside);
    return part;
}

/// The first line that only one of the lists has; that list is the longer one, or `to`.
std::string NewLine(const std::vector<JobListLine>& from, const std::vector<JobListLine>& to) {
    for (const JobListLine& line : to) {
        const auto count = [&](const auto& list) {
            return std::ranges::count(list, line.name, &JobListLine::name);
        };
        if (count(to) > count(from)) return line.name;
    }
    return {};
}

}  // namespace

bool Snapshot::IsSame(const Field& field, const Job& job, int n) {
    if (!Same(field.holder, job.txtField(n)) || field.values[0] != job.D(n)) return false;
    for (int k = 1; k <= 4; ++k)
        if (field.values[static_cast<std::size_t>(k)] != job.D(k * 1000 + n)) return false;
    return true;
}

Snapshot::Field Snapshot::Read(const Job& job, int n) {
    Field field{job.txtField(n), {job.D(n)}};
    for (int k = 1; k <= 4; ++k) field.values[static_cast<std::size_t>(k)] = job.D(k * 1000 + n);
    return field;
}

std::shared_ptr<const Snapshot::Fields> Snapshot::FieldsOf(const Job& job, std::size_t block,
                                                           const Snapshot* before) const {
    const auto first = static_cast<int>(block * kBlock);
    const int end = std::min(first + static_cast<int>(kBlock), kFields + 1);
    const auto at = [&](int n) { return static_cast<std::size_t>(n - first); };
    if (before) {
        const Fields& old = *before->fields_[block];
        bool same = true;
        for (int n = first; same && n < end; ++n) same = IsSame(old[at(n)], job, n);
        if (same) return before->fields_[block];
    }
    auto fields = std::make_shared<Fields>();
    for (int n = first; n < end; ++n) (*fields)[at(n)] = Read(job, n);
    return fields;
}

std::shared_ptr<const Snapshot::Rows> Snapshot::RowsOf(const ScreenState& screen, std::size_t begin,
                                                       const Snapshot* before) const {
    const std::size_t end = std::min(begin + kBlock, screen.grid.size());
    const auto first = screen.grid.begin() + static_cast<std::ptrdiff_t>(begin);
    const auto last = screen.grid.begin() + static_cast<std::ptrdiff_t>(end);
    const std::size_t block = begin / kBlock;
    if (before && block < before->rows_.size()) {
        const Rows& old = *before->rows_[block];
        const bool same = std::equal(old.begin(), old.end(), first, last,
                                     [](const GridRow& a, const GridRow& b) { return Same(a, b); });
        if (same) return before->rows_[block];
    }
    return std::make_shared<const Rows>(first, last);
}

std::shared_ptr<const Snapshot> Snapshot::Of(ScreenState& screen, const Snapshot* before) {
    const auto snapshot = std::make_shared<Snapshot>();
    const Job& job = screen.job;
    for (std::size_t block = 0; block < kFieldBlocks; ++block)
        snapshot->fields_[block] = snapshot->FieldsOf(job, block, before);
    snapshot->rows_.reserve((screen.grid.size() + kBlock - 1) / kBlock);
    for (std::size_t begin = 0; begin < screen.grid.size(); begin += kBlock)
        snapshot->rows_.push_back(snapshot->RowsOf(screen, begin, before));
    snapshot->pictures_ = before && *before->pictures_ == job.FieldPictures
                              ? before->pictures_
                              : std::make_shared<const Pictures>(job.FieldPictures);
    snapshot->userFields_ = before && *before->userFields_ == job.userFields
                                ? before->userFields_
                                : std::make_shared<const UserFields>(job.userFields);
    for (int n = 1; n <= kOptions; ++n) snapshot->options_[static_cast<std::size_t>(n)] = job.optConf(n);
    snapshot->list_ = before && Same(*before->list_, screen.List2)
                          ? before->list_
                          : std::make_shared<const JobList>(screen.List2);
    snapshot->around_ = Without<JobAround>(&JobAround::List2, screen);
    snapshot->controls_ = Without<ScreenControls>(&ScreenControls::List1, screen);
    snapshot->history_ = job.JobDocuments;
    return snapshot;
}

const Snapshot::Field& Snapshot::At(int n) const {
    const auto index = static_cast<std::size_t>(n);
    return (*fields_[index / kBlock])[index % kBlock];
}

void Snapshot::PutBack(ScreenState& screen, const Snapshot* other) const {
    Job& job = screen.job;
    for (int n = 0; n <= kFields; ++n) {
        const Field& field = At(n);
        job.txtField(n) = field.holder;
        if (n == 0) continue;
        job.SetValue(n, field.values[0]);
        for (int k = 1; k <= 4; ++k) job.SetDerived(k, n, field.values[static_cast<std::size_t>(k)]);
    }
    for (int n = 1; n <= kOptions; ++n) job.SetOption(n, options_[static_cast<std::size_t>(n)]);
    if (job.FieldPictures != *pictures_) job.FieldPictures = *pictures_;
    job.userFields = *userFields_;
    screen.grid.clear();
    for (const auto& rows : rows_) screen.grid.insert(screen.grid.end(), rows->begin(), rows->end());
    static_cast<JobAround&>(screen) = around_;
    screen.List2 = *list_;
    ScreenControls controls = controls_;
    controls.List1 = std::move(screen.List1);
    controls.ended = screen.ended;
    controls.creating = screen.creating;
    controls.browserOpen = screen.browserOpen;
    if (!other) job.JobDocuments = history_;
    if (other && SameName(controls.txtJobName, other->controls_.txtJobName)) {
        const bool enabled = controls.txtJobName.enabled;
        controls.txtJobName = screen.txtJobName;
        controls.txtJobName.enabled = enabled;
    }
    static_cast<ScreenControls&>(screen) = std::move(controls);
}

bool Snapshot::HasSameJob(const Snapshot& other) const {
    const auto sameField = [&](int n) {
        const Field& a = At(n);
        const Field& b = other.At(n);
        return Same(a.holder, b.holder) && a.values == b.values;
    };
    for (std::size_t block = 0; block < kFieldBlocks; ++block) {
        if (fields_[block] == other.fields_[block]) continue;
        const auto first = static_cast<int>(block * kBlock);
        for (int n = std::max(first, 1); n < std::min(first + static_cast<int>(kBlock), kFields + 1); ++n)
            if (!sameField(n)) return false;
    }
    return options_ == other.options_ && (pictures_ == other.pictures_ || *pictures_ == *other.pictures_) &&
           (userFields_ == other.userFields_ || *userFields_ == *other.userFields_) &&
           (list_ == other.list_ || Same(*list_, *other.list_)) &&
           around_.LegalList == other.around_.LegalList &&
           around_.ParkedDocuments == other.around_.ParkedDocuments;
}

std::string Snapshot::ActSince(const Snapshot& before, int hint) const {
    const auto changed = [&](int n) {
        return At(n).holder.text != before.At(n).holder.text || At(n).values[0] != before.At(n).values[0];
    };
    if (!SameNames(*list_, *before.list_)) {
        if (list_->size() == before.list_->size() && NewLine(*before.list_, *list_).empty())
            return "order of the job list";
        const bool dropped = list_->size() < before.list_->size();
        return (dropped ? "remove " : "add ") +
               (dropped ? NewLine(*list_, *before.list_) : NewLine(*before.list_, *list_));
    }
    for (int n = 1; n <= kOptions; ++n) {
        const auto at = static_cast<std::size_t>(n);
        if (options_[at] && !before.options_[at]) return std::string(OptionCaption(n));
    }
    for (int n = 1; n <= kOptions; ++n)
        if (before.options_[static_cast<std::size_t>(n)] && !options_[static_cast<std::size_t>(n)])
            return "no " + std::string(OptionCaption(n));
    if (hint > 0 && changed(hint)) return WithoutBrackets(FieldMarker(hint));
    if (*userFields_ != *before.userFields_) {
        for (const auto& pair : *userFields_)
            if (std::ranges::find(*before.userFields_, pair) == before.userFields_->end())
                return WithoutBrackets(pair.first);
        for (const auto& pair : *before.userFields_)
            if (std::ranges::find(*userFields_, pair) == userFields_->end())
                return WithoutBrackets(pair.first);
    }
    for (int n = 1; n <= kFields; ++n)
        if (changed(n) && At(n).holder.relevant) return WithoutBrackets(FieldMarker(n));
    for (int n = 1; n <= kFields; ++n)
        if (!Same(At(n).holder, before.At(n).holder)) return WithoutBrackets(FieldMarker(n));
    return list_->empty() ? "change" : "legal paper";
}

}  // namespace quillmark
