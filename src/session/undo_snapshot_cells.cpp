#include <charconv>
#include <stdexcept>
#include <type_traits>

#include "session/undo_snapshot.h"

/// A snapshot as named texts, for the journal: what has not changed since the last one need not be written.
namespace quillmark {

namespace {

/// Values one after the other: numbers end with ';', texts begin with their length.
class Writer {
 public:
    void Number(long long value) { text += std::to_string(value) + ';'; }
    void Text(const std::string& value) {
        Number(static_cast<long long>(value.size()));
        text += value;
    }
    std::string text;
};

class Reader {
 public:
    explicit Reader(std::string_view text) : text_(text) {}
    long long Number() {
        long long value = 0;
        const auto [end, error] = std::from_chars(text_.data(), text_.data() + text_.size(), value);
        if (error != std::errc{} || end == text_.data() + text_.size() || *end != ';') Fail();
        text_.remove_prefix(static_cast<std::size_t>(end - text_.data()) + 1);
        return value;
    }
    std::string Text() {
        const std::size_t length = Count();
        std::string value(text_.substr(0, length));
        text_.remove_prefix(length);
        return value;
    }
    /// Of what follows, which takes at least a byte each.
    std::size_t Count() {
        const long long count = Number();
        if (count < 0 || static_cast<std::size_t>(count) > text_.size()) Fail();
        return static_cast<std::size_t>(count);
    }
    [[noreturn]] static void Fail() { throw std::runtime_error("the journal's record is damaged"); }

 private:
    std::string_view text_;
};

// One description of each value serves both ways.
struct Put {
    Writer& to;
    void operator()(const std::string& value) const { to.Text(value); }
    template <class T>
    requires(std::is_arithmetic_v<T> || std::is_enum_v<T>) void operator()(const T& value) const {
        to.Number(static_cast<long long>(value));
    }
    template <class T>
    void Resize(const std::vector<T>& list) const {
        to.Number(static_cast<long long>(list.size()));
    }
};
struct Take {
    Reader& from;
    void operator()(std::string& value) const { value = from.Text(); }
    template <class T>
    requires(std::is_arithmetic_v<T> || std::is_enum_v<T>) void operator()(T& value) const {
        value = static_cast<T>(from.Number());
    }
    template <class T>
    void Resize(std::vector<T>& list) const {
        list.resize(from.Count());
    }
};

template <class Way, class T>
void Go(const Way& way, T& value);

template <class Way, class... Values>
void Each(const Way& way, Values&... values) {
    (Go(way, values), ...);
}

template <class T>
struct IsList : std::false_type {};
template <class T>
struct IsList<std::vector<T>> : std::true_type {};
template <class T>
struct IsArray : std::false_type {};
template <class T, std::size_t n>
struct IsArray<std::array<T, n>> : std::true_type {};

template <class Way, class T>
void Go(const Way& way, T& v) {
    using Value = std::remove_const_t<T>;
    if constexpr (IsList<Value>::value) {
        way.Resize(v);
        for (auto& item : v) Go(way, item);
    } else if constexpr (IsArray<Value>::value) {
        for (auto& item : v) Go(way, item);
    } else if constexpr (std::is_same_v<Value, std::pair<std::string, std::string>>) {
        Each(way, v.first, v.second);
    } else if constexpr (std::is_same_v<Value, FieldHolder>) {
        Each(way, v.text, v.relevant, v.locked, v.colour, v.tag, v.top, v.forShow);
    } else if constexpr (std::is_same_v<Value, GridRow>) {
        Each(way, v.kind, v.n, v.label, v.value, v.notes, v.lit, v.key, v.locked);
    } else if constexpr (std::is_same_v<Value, JobListLine>) {
        Each(way, v.name, v.selected);
    } else if constexpr (std::is_same_v<Value, GridGroup>) {
        Each(way, v.headingRow, v.complete);
    } else if constexpr (std::is_same_v<Value, Button>) {
        Each(way, v.caption, v.tooltip, v.enabled, v.visible);
    } else if constexpr (std::is_same_v<Value, OptionButton>) {
        Each(way, v.enabled, v.visible, v.tooltip);
    } else if constexpr (std::is_same_v<Value, NameBox>) {
        Each(way, v.text, v.locked, v.enabled, v.noSave);
    } else if constexpr (std::is_same_v<Value, JobAround>) {
        Each(way, v.mode, v.fromTemplate, v.LegalList, v.ParkedDocuments, v.groups, v.relevantFieldCount,
             v.total, v.remaining, v.userMarkers);
    } else if constexpr (std::is_same_v<Value, ScreenControls>) {
        Each(way, v.txtJobName, v.FieldEntryStarted, v.templateBeingSet, v.options, v.propertyTypeFrame,
             v.List1Enabled, v.List2Enabled, v.currentRow, v.currentGroup, v.cmdOpen, v.cmdCreate, v.cmdReset,
             v.cmdExit, v.cmdTemplate, v.cmdPackages, v.cmdCustom, v.cmdNameAs, v.cmdEnvelopes, v.cmdOP236,
             v.cmdPrintFList, v.cmdSelect, v.openDoes, v.createDoes, v.nameAsDoes, v.exitDoes, v.picInfo);
    } else {
        way(v);
    }
}

template <class... Values>
std::string Written(const Values&... values) {
    Writer writer;
    Each(Put{writer}, values...);
    return writer.text;
}

template <class... Values>
void ReadInto(const std::string& text, Values&... values) {
    Reader reader(text);
    Each(Take{reader}, values...);
}

const std::string& Cell(const Snapshot::Cells& cells, const std::string& name) {
    const auto found = cells.find(name);
    if (found == cells.end()) Reader::Fail();
    return found->second;
}

}  // namespace

Snapshot::Cells Snapshot::CellsSince(const Snapshot* before) const {
    Cells cells;
    for (std::size_t block = 0; block < kFieldBlocks; ++block) {
        if (before && before->fields_[block] == fields_[block]) continue;
        Writer writer;
        for (const Field& field : *fields_[block]) Each(Put{writer}, field.holder, field.values);
        cells["f" + std::to_string(block)] = writer.text;
    }
    cells["rows"] = Written(rows_.size());
    for (std::size_t block = 0; block < rows_.size(); ++block) {
        const bool same = before && block < before->rows_.size() && before->rows_[block] == rows_[block];
        if (!same) cells["r" + std::to_string(block)] = Written(*rows_[block]);
    }
    if (!before || before->pictures_ != pictures_) cells["pictures"] = Written(*pictures_);
    if (!before || before->userFields_ != userFields_) cells["user"] = Written(*userFields_);
    if (!before || before->list_ != list_) cells["list"] = Written(*list_);
    cells["options"] = Written(options_);
    cells["around"] = Written(around_);
    cells["controls"] = Written(controls_);
    cells["history"] = Written(history_);
    return cells;
}

std::shared_ptr<const Snapshot> Snapshot::FromCells(const Cells& cells) {
    const auto snapshot = std::make_shared<Snapshot>();
    for (std::size_t block = 0; block < kFieldBlocks; ++block) {
        auto fields = std::make_shared<Fields>();
        Reader reader(Cell(cells, "f" + std::to_string(block)));
        for (Field& field : *fields) Each(Take{reader}, field.holder, field.values);
        snapshot->fields_[block] = std::move(fields);
    }
    std::size_t blocks = 0;
    ReadInto(Cell(cells, "rows"), blocks);
    if (blocks > cells.size()) Reader::Fail();
    for (std::size_t block = 0; block < blocks; ++block) {
        auto rows = std::make_shared<Rows>();
        ReadInto(Cell(cells, "r" + std::to_string(block)), *rows);
        snapshot->rows_.push_back(std::move(rows));
    }
    auto pictures = std::make_shared<Pictures>();
    ReadInto(Cell(cells, "pictures"), *pictures);
    snapshot->pictures_ = std::move(pictures);
    auto userFields = std::make_shared<UserFields>();
    ReadInto(Cell(cells, "user"), *userFields);
    snapshot->userFields_ = std::move(userFields);
    auto list = std::make_shared<JobList>();
    ReadInto(Cell(cells, "list"), *list);
    snapshot->list_ = std::move(list);
    ReadInto(Cell(cells, "options"), snapshot->options_);
    ReadInto(Cell(cells, "around"), snapshot->around_);
    ReadInto(Cell(cells, "controls"), snapshot->controls_);
    ReadInto(Cell(cells, "history"), snapshot->history_);
    return snapshot;
}

}  // namespace quillmark
