#include <cstdlib>
#include <iostream>

#include "platform/note_file.h"
#include "renderer/serve.h"

#ifndef _WIN32
#include <sys/resource.h>
#include <unistd.h>
#endif
#ifdef __linux__
#include <signal.h>
#include <sys/prctl.h>
#endif

namespace {

/// What LibreOffice prints must not get among the answers: they take the standard output's place over.
std::FILE* TakeOutput() {
#ifdef _WIN32
    return stdout;
#else
    std::FILE* answers = ::fdopen(::dup(STDOUT_FILENO), "w");
    ::dup2(STDERR_FILENO, STDOUT_FILENO);
    return answers;
#endif
}

/// A page is a convenience: this process goes first when memory is short, never takes more than its share,
/// and does not outlive the window that it works for.
void BeModest() {
#ifndef _WIN32
    constexpr rlim_t kAddresses = rlim_t{4} << 30;
    const rlimit memory = {kAddresses, kAddresses};
    ::setrlimit(RLIMIT_AS, &memory);
    const rlimit noCores = {0, 0};
    ::setrlimit(RLIMIT_CORE, &noCores);
    [[maybe_unused]] const int niceness = ::nice(1);
#endif
#ifdef __linux__
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    quillmark::WriteNote("/proc/self/oom_score_adj", "700");
#endif
}

}  // namespace

int main(int count, char** words) {
    if (count != 3) {
        std::cerr << "quillmark-preview PROFILE WORK: makes pages for the desktop, which starts it\n";
        return 2;
    }
    BeModest();
    const quillmark::RendererFolders folders{words[1], words[2]};
#ifndef _WIN32
    ::setenv("TMPDIR", words[2], 1);  // what is left behind goes with that folder
#endif
    std::FILE* answers = TakeOutput();
    quillmark::ServeRequests(folders, std::cin, answers);
    std::_Exit(0);  // LibreOffice's own shutdown brings nothing and may crash
}
