#include "platform/file_step.h"

#include <utility>

namespace quillmark {

namespace {

FileWatch watcher;

}  // namespace

void WatchFileSteps(FileWatch watch) {
    watcher = std::move(watch);
}

void BeforeStep(FileStep step, const std::filesystem::path& file) {
    if (watcher) watcher(step, file);
}

}  // namespace quillmark
