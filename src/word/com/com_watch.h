#pragma once

#ifdef _WIN32

#include <windows.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <set>
#include <thread>

namespace quillmark::word {

/// The running programs of an automation server's class, by number.
std::set<DWORD> ProcessesOf(const CLSID& server);

/// Ends a server of this program's own that does not come back from a call: out of sight, it may wait for an
/// answer that nobody can give. The call then fails as with any server that has died.
class ServerWatch {
 public:
    /// Watches the one program that is among `present` and was not among `former`; none, where that leaves a
    /// choice.
    ServerWatch(const std::set<DWORD>& former, const std::set<DWORD>& present,
                std::chrono::milliseconds longestCall);
    ~ServerWatch();
    ServerWatch(const ServerWatch&) = delete;
    ServerWatch& operator=(const ServerWatch&) = delete;

    /// From here on the server is in the user's sight and is never ended.
    void LetGo() { isOwn_ = false; }

    /// Lives as long as a call does.
    class Call {
     public:
        explicit Call(ServerWatch& watch) : watch_(watch) { watch_.began_ = Now(); }
        ~Call() { watch_.began_ = 0; }
        Call(const Call&) = delete;
        Call& operator=(const Call&) = delete;

     private:
        ServerWatch& watch_;
    };

 private:
    struct Close {
        void operator()(HANDLE process) const { CloseHandle(process); }
    };
    static std::int64_t Now();
    void Watch();

    const std::chrono::milliseconds longestCall_;
    std::unique_ptr<void, Close> process_;
    std::atomic<bool> isOwn_{true};
    std::atomic<std::int64_t> began_{0};  ///< in milliseconds; 0 between calls
    std::mutex guard_;
    std::condition_variable ended_;
    bool isEnding_ = false;
    std::thread watcher_;
};

}  // namespace quillmark::word

#endif
