#pragma once

#include <signal.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <new>
#include <random>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "entry/address_book_files.h"
#include "platform/atomic_file.h"

/// Many programs write to one address book at once, and some of them are killed. Run in short as a test, at
/// full size as a benchmark.
namespace quillmark::test {

struct StressPlan {
    int processes = 8;
    int records = 1000;  ///< that each of them writes; every tenth is one that all of them write
    int kills = 40;      ///< spread over the run; the killed start again, but for a quarter of the programs
    std::chrono::milliseconds betweenKills{2000};
    unsigned seed = 1;
};

struct StressResult {
    int finished = 0;  ///< writes that returned
    int killed = 0;
    int restarted = 0;
    int failed = 0;   ///< programs that ended in an error
    int records = 0;  ///< lines of the list
    std::vector<std::string> missing, duplicate, torn;
    int leftFiles = 0;  ///< temporary files of the killed
    double seconds = 0;
    double longestWrite = 0;  ///< in seconds, from the call to its return, waiting for the others included
};

/// What the programs tell, in memory that outlives them.
struct StressBoard {
    struct Row {
        std::atomic<int> finished = 0;
        std::atomic<double> longest = 0;
    };
    static constexpr int kRows = 64;
    Row rows[kRows];
};

class StressRun {
 public:
    StressRun(const std::filesystem::path& folder, StressPlan plan)
        : folder_(folder), plan_(plan), random_(plan.seed) {
        if (plan.processes > StressBoard::kRows) throw std::invalid_argument("too many processes");
        void* shared =
            ::mmap(nullptr, sizeof(StressBoard), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        if (shared == MAP_FAILED) throw std::bad_alloc();
        board_ = new (shared) StressBoard;
    }
    ~StressRun() { ::munmap(board_, sizeof(StressBoard)); }
    StressRun(const StressRun&) = delete;
    StressRun& operator=(const StressRun&) = delete;

    StressResult Run() {
        const auto start = Time::now();
        for (int process = 0; process < plan_.processes; ++process) Start(process);
        while (!running_.empty()) {
            if (result_.killed < plan_.kills) {
                ::usleep(static_cast<useconds_t>(1000 * Random(1, 2 * plan_.betweenKills.count())));
                Reap(WNOHANG);
                KillOne();
            } else {
                Reap(0);
            }
        }
        result_.seconds = Seconds(start);
        Check();
        return result_;
    }

 private:
    using Time = std::chrono::steady_clock;
    static double Seconds(Time::time_point since) {
        return std::chrono::duration<double>(Time::now() - since).count();
    }

    static std::string RecordOf(int process, int i) {
        const std::string writer = i % 10 == 9 ? "all" : std::to_string(process);
        return "Servicer " + writer + "/" + std::to_string(i) +
               ", National Association _ 500 Finance Drive _  _ Anycity, OH 43210";
    }

    long Random(long from, long to) { return std::uniform_int_distribution<long>(from, to)(random_); }

    void Start(int process) {
        const pid_t child = ::fork();
        if (child != 0) {
            running_[child] = process;
            return;
        }
        try {
            Write(board_->rows[process], process);
        } catch (...) {
            ::_exit(1);
        }
        ::_exit(0);
    }

    /// Goes on behind the last write that returned, so a killed program's last record may come twice.
    void Write(StressBoard::Row& row, int process) const {
        const SystemClock clock;
        const AddressBooks books(folder_, clock);
        for (int i = row.finished; i < plan_.records; ++i) {
            const auto start = Time::now();
            books.Add(AddressBook::Servicers, RecordOf(process, i));
            row.longest = std::max<double>(row.longest, Seconds(start));
            row.finished = i + 1;
        }
    }

    void Reap(int options) {
        int status = 0;
        while (const pid_t child = ::waitpid(-1, &status, options)) {
            if (child < 0) return;
            running_.erase(child);
            if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) ++result_.failed;
        }
    }

    void KillOne() {
        if (running_.empty()) return;
        const auto victim = std::next(running_.begin(), Random(0, static_cast<long>(running_.size()) - 1));
        const auto [child, process] = *victim;
        ::kill(child, SIGKILL);
        int status = 0;
        ::waitpid(child, &status, 0);
        running_.erase(victim);
        if (!WIFSIGNALED(status)) return;  // it had just ended
        ++result_.killed;
        const int forGood = result_.killed - 1 - result_.restarted;
        if (forGood < plan_.processes / 4 && Random(1, 4) == 1) return;
        ++result_.restarted;
        Start(process);
    }

    void Check() {
        constexpr std::size_t kLimit = 64u << 20;
        const std::string bytes = ReadFile(folder_ / "Servicers.lst", kLimit);
        std::set<std::string> lines;
        for (std::size_t at = 0; at < bytes.size();) {
            const std::size_t end = bytes.find("\r\n", at);
            const std::string line = bytes.substr(at, end - at);
            at = end == std::string::npos ? bytes.size() : end + 2;
            ++result_.records;
            if (end == std::string::npos || !Written(line)) result_.torn.push_back(line);
            if (!lines.insert(line).second) result_.duplicate.push_back(line);
        }
        for (int process = 0; process < plan_.processes; ++process) {
            const int finished = board_->rows[process].finished;
            result_.finished += finished;
            result_.longestWrite = std::max<double>(result_.longestWrite, board_->rows[process].longest);
            for (int i = 0; i < finished; ++i)
                if (!lines.count(RecordOf(process, i))) result_.missing.push_back(RecordOf(process, i));
        }
        for (const auto& entry : std::filesystem::directory_iterator(folder_))
            result_.leftFiles += entry.path().extension() == ".tmp";
    }

    /// Whether some program wrote the line, or was at it when it was killed.
    bool Written(const std::string& line) const {
        const std::size_t slash = line.find('/');
        if (slash == std::string::npos) return false;
        const int i = std::atoi(line.c_str() + slash + 1);
        for (int process = 0; process < plan_.processes; ++process)
            if (i <= board_->rows[process].finished && line == RecordOf(process, i)) return true;
        return false;
    }

    const std::filesystem::path folder_;
    const StressPlan plan_;
    std::mt19937 random_;
    StressBoard* board_;
    std::map<pid_t, int> running_;
    StressResult result_;
};

}  // namespace quillmark::test
