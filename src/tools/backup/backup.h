#pragma once

#include <filesystem>
#include <optional>

#include "platform/drives.h"
#include "tools/backup/copy_list.h"

/// A backup is a plain folder on a drive, one on each. The new one is written beside the old one, read back
/// and compared, and only then takes its place.
namespace quillmark {

/// Where the backup of a drive is, or would be.
std::filesystem::path BackupFolderOf(const Drive& drive);
/// The same as a person reads it, with a separator at its end: "E:\QUILLMARK BACKUP\".
std::string BackupPathText(const Drive& drive);

bool HasBackup(const Drive& drive);

/// Replaces the drive's backup. After any failure, and at any moment at which the program is killed, the old
/// one or the new one stands whole (SettleBackup puts it in its place); what it is taken of is only read.
/// Throws FileError (DiskFull, before anything is written, where both do not fit; InUse while another
/// computer is at it) and CopyCanceled.
void MakeBackup(const BackupHome& home, const Drive& drive, const CopyWatch& watch);

/// Clears away what a backup that was cut short has left: the old backup has its name again. Leaves alone
/// what another computer is writing at this moment, and what cannot be changed.
void SettleBackup(const Drive& drive);

}  // namespace quillmark
