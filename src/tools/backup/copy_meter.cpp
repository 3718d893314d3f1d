#include "tools/backup/copy_meter.h"

namespace quillmark {

void CopyMeter::Begin(CopyProgress::Stage stage) {
    progress_.stage = stage;
    progress_.filesDone = 0;
    progress_.bytesDone = 0;
    Tell();
}

void CopyMeter::Add(std::uintmax_t bytes) {
    ++progress_.files;
    progress_.bytes += bytes;
    Tell();
}

void CopyMeter::Bytes(std::size_t count) {
    progress_.bytesDone += count;
    Tell();
}

void CopyMeter::FileDone() {
    ++progress_.filesDone;
    Tell();
}

void CopyMeter::Tell() const {
    const bool goesOn = !watch_ || watch_(progress_);
    if (!goesOn && progress_.stage != CopyProgress::Stage::Replacing) throw CopyCanceled();
}

}  // namespace quillmark
