#include "platform/file_holder.h"

#include <fmt/format.h>

#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "platform/note_file.h"
#include "platform/record_file.h"
#include "platform/this_user.h"

namespace quillmark {

namespace {

constexpr std::size_t kNoteLimit = 4096;

std::string TimeText(std::chrono::local_seconds time) {
    const auto day = std::chrono::floor<std::chrono::days>(time);
    const std::chrono::year_month_day date{day};
    const std::chrono::hh_mm_ss hour{time - day};
    return fmt::format("{:04}-{:02}-{:02} {:02}:{:02}:{:02}", static_cast<int>(date.year()),
                       static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                       hour.hours().count(), hour.minutes().count(), hour.seconds().count());
}

}  // namespace

std::string DescriptionOf(const std::optional<FileHolder>& holder) {
    if (!holder) return "In use by another user";
    return fmt::format("In use by {} at {} since {}", holder->user, holder->computer, holder->since);
}

std::optional<FileHolder> ThisHolder(const Clock& clock) {
    static const ComputerUser user = ThisUser();
    if (user.user.empty() && user.computer.empty()) return std::nullopt;
    return FileHolder{user.user, user.computer, TimeText(clock.Now())};
}

void WriteHolder(const std::filesystem::path& note, const Clock& clock) {
    const auto holder = ThisHolder(clock);
    if (!holder) return;
    RecordWriter record;
    try {
        record.Write({holder->user, holder->computer, holder->since});
    } catch (const UnencodableError&) {
        return;
    }
    WriteNote(note, record.Bytes());
}

std::optional<FileHolder> ReadHolder(const std::filesystem::path& note) {
    try {
        const std::string bytes = ReadFile(note, kNoteLimit);
        RecordReader reader("", bytes);
        if (!reader.Next()) return std::nullopt;
        return FileHolder{reader.Text(0), reader.Text(1), reader.Text(2)};
    } catch (const FileError&) {
        return std::nullopt;
    } catch (const RecordError&) {
        return std::nullopt;  // caught while it is being written
    }
}

}  // namespace quillmark
