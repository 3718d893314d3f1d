#pragma once

#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>

namespace quillmark {

/// How far a backup or a restore is.
struct CopyProgress {
    enum class Stage {
        Looking,    ///< for what is to be copied; the totals still grow
        Copying,    ///< to where it does nobody harm
        Comparing,  ///< reading back what was written
        Replacing,  ///< what was there before; this is not left half-way
    };

    Stage stage = Stage::Looking;
    std::size_t files = 0;         ///< in all
    std::size_t filesDone = 0;     ///< of this stage
    std::uintmax_t bytes = 0;      ///< in all
    std::uintmax_t bytesDone = 0;  ///< of this stage
};

/// Called at every step; false gives up, which is heeded up to the stage of replacing.
using CopyWatch = std::function<bool(const CopyProgress&)>;

/// The person gave up. Everything is as it was.
class CopyCanceled : public std::exception {
 public:
    const char* what() const noexcept override { return "canceled"; }
};

/// Counts what is done and tells the watch.
class CopyMeter {
 public:
    /// `watch` may be empty and must outlive the object.
    explicit CopyMeter(const CopyWatch& watch) : watch_(watch) {}

    void Begin(CopyProgress::Stage stage);
    void Add(std::uintmax_t bytes);  ///< one more file is to be copied
    void Bytes(std::size_t count);   ///< of the file in hand are done
    void FileDone();
    const CopyProgress& Now() const { return progress_; }

 private:
    /// Throws CopyCanceled.
    void Tell() const;

    CopyProgress progress_;
    const CopyWatch& watch_;
};

}  // namespace quillmark
