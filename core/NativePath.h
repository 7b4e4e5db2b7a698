#pragma once

#include <cstdio>

#include "core/Text.h"

namespace korvande {

// The path by which the system knows a file name. On Windows it is the name itself; elsewhere "\" is "/", "X:" the
// folder in the environment variable KORVANDE_DRIVE_X (unset: error 71), and a component that does not exist as written
// is looked for without regard to case.
std::string NativePath(TextView name);

// The name of the file that takes everything and keeps nothing.
TextView NullDevice() noexcept;

// How a file is opened; writing creates it or empties it.
enum class OpenMode { Read, Write, Append };

// Opens a file in binary form, through NativePath. A folder, or what the system refuses, is a run-time error.
std::FILE* OpenNativeFile(TextView name, OpenMode mode);

// Makes a file that is new, to be written in binary form, with the rights of another one when that is there; null when
// anything has its name already. The name stays as it is; only its folder is looked for without regard to case. What
// the system refuses is a run-time error.
std::FILE* CreateNativeFile(TextView name, TextView rightsOf);

// Whether a read or write of a regular file failed only for a signal that came (errno tells), and is to be done again;
// a wait for a pipe or a terminal is ended by one.
bool IsOnlyInterrupted(std::FILE* file) noexcept;

// Has what was written to a file, or the names in a folder, reach the disk before it goes on. A disk that fails is a
// run-time error. A folder is passed over where the system knows no such thing, or lets nobody read it.
void FlushToDisk(std::FILE* file);
void FlushFolderToDisk(TextView folder);

}  // namespace korvande
