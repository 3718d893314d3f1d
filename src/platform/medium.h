#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>

/// Copies of files that have to be right on the medium they are meant for, and folders that take each other's
/// place.
namespace quillmark {

/// A number that files of different bytes practically never share.
using Digest = std::uint64_t;

/// Called after each part of a file, with the part's number of bytes; what it throws ends the work.
using ByteWatch = std::function<void(std::size_t)>;

/// Copies an ordinary file to a new one; a link is followed. The copy has the time of its original. Gives the
/// digest of the bytes that were read. Throws FileError of the file that failed, also where the new one is
/// there already; a part of the copy may then be left.
Digest CopyToNewFile(const std::filesystem::path& from, const std::filesystem::path& to,
                     const ByteWatch& watch);

/// The digest of an ordinary file, read from its medium and not from memory, as far as the system lets itself
/// be told. Call FlushMedium first. Throws FileError.
Digest DigestOnMedium(const std::filesystem::path& file, const ByteWatch& watch);

/// Waits until everything written by CopyToNewFile and every new name below the folder is on its medium.
/// Throws FileError.
void FlushMedium(const std::filesystem::path& folder);

/// Lets two folders on one medium take each other's name in one step. False, with nothing changed, where the
/// system or the medium cannot do it.
bool ExchangeFolders(const std::filesystem::path& one, const std::filesystem::path& other);

/// Gives a file or folder that is about to stand at `target` the owner and rights of what stands there, or of
/// a new one in its folder, so that whoever shares the folder shares it. What the system does not grant is
/// left as it is.
void TakeRightsOf(const std::filesystem::path& target, const std::filesystem::path& file);

}  // namespace quillmark
