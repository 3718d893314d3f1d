#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/drives.h"
#include "tools/backup/copy_list.h"

/// The way back: what a backup holds is first copied beside the files at home and compared; then each file
/// takes its place, and what stood there is kept until all have. Files that the backup does not hold stay as
/// they are. Names that differ only in case are the same file.
namespace quillmark {

/// After any failure everything is as it was. Throws FileError (InUse while another computer restores) and
/// CopyCanceled.
void RestoreBackup(const Drive& drive, const BackupHome& home, const CopyWatch& watch);

/// What a restore would do.
struct RestorePreview {
    std::size_t files = 0;  ///< in the backup
    std::size_t jobs = 0;   ///< among them
    std::uintmax_t bytes = 0;
    std::size_t replaced = 0;  ///< of the files at home
    std::size_t newer = 0;     ///< among these, written after the backup's
};

/// Throws FileError.
RestorePreview PreviewOfRestore(const Drive& drive, const BackupHome& home);

}  // namespace quillmark
