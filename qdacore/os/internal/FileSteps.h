// What operations on a caller's paths and the copy of a directory have in common: one host call
// each, and what its situations mean. Paths are in the host's own form, without a NUL.

#ifndef QDACORE_OS_INTERNAL_FILESTEPS_H
#define QDACORE_OS_INTERNAL_FILESTEPS_H

#include <string>

#include <qdacore/host/Files.h>

namespace NZRVQDA20 {

enum class PathKind { kMissing, kFile, kDirectory };

// Throws kQDAStatusFileSystemError when the host cannot tell.
PathKind KindOf(const std::string& path);

// Throws as TOSSpecific::CreateDir.
void MakeDirectory(const std::string& path);

// Throws as TOSSpecific::FileCopy.
void CopyOneFile(const std::string& source, const std::string& target, host::Files::AtLink atLink);

// Returns when `copied` is done; otherwise throws as TOSSpecific::FileCopy.
void ExpectCopied(const host::Outcome& copied);

[[noreturn]] void FileSystemError();

}  // namespace NZRVQDA20

#endif
