#pragma once

#include <string>
#include <vector>

#include "core/Text.h"
#include "host/modRegistry.h"

// Files and single registry values. File names are as the user gives them, with "\" or "/" between their components;
// they reach the system through NativePath. What fails gives false or nothing, unless it is said to be a run-time
// error.
namespace korvande {

class Screen;

// Whether there is a file of this name; a folder is no file.
bool FileExistsAt(TextView name);

// Whether it is certain that there is none. What the system does not tell may be a file, and opening it tells more.
bool FileIsMissing(TextView name);

// Whether nothing at all, file or folder, has this name yet. What the system does not tell may be something.
bool IsFreeName(TextView name);

// The same; what the system does not tell is a run-time error.
bool MayBeMade(TextView name);

// Whether the name belongs to a regular file or to nothing yet, so that a finished file may be renamed to it. Devices,
// pipes and folders are neither.
bool IsRegularFileOrMissing(TextView name);

// The same; what the system does not tell is a run-time error.
bool MayBeReplaced(TextView name);

// Whether two names mean the same file, under whatever names and links; for files that do not exist yet, whether
// creating both would create one file (case does not count then, as in every search for a file).
bool SameFile(TextView name1, TextView name2);

// A text that two names share exactly when they mean the same file.
std::string FileIdentity(TextView name);

// The last component of a name: "KAART.IDX" of "C:\DATA\KAART.IDX". Separators at the end do not count.
Text FileNameOf(TextView name);

// The parent folder of a name, ending in a separator: "C:\DATA\" of "C:\DATA\KAART.IDX". Empty for a root and for a
// name without a folder, so that the result and a file name always make a name in that folder.
Text FolderOf(TextView name);

// A name with its folder in full; the name itself when the system does not tell it.
Text FullName(TextView name);

// A folder's name with a separator behind it when it does not end in one: the one it uses itself, or else the system's.
// The empty name, the current folder, stays empty.
Text FolderWithSeparator(TextView folder);

// A name less its last three characters, with these behind it. It does not look for a dot.
Text WithLastThreeReplaced(TextView name, TextView extension);

// Copies a file, over an earlier one as well. When it fails and `showError` is set a message box tells why.
bool CopyFileWithReport(Screen& screen, TextView source, TextView target, bool showError);

// Deletes a file (no folder); false when there is none or it stays.
bool DeleteFileAt(TextView name);

// Renames a file within its file system, in one step: any other program sees the old or the new one. An earlier file of
// the new name is replaced, or without `replace` left alone, which is a failure, and so is one that may not be written.
// A link at the new name stays: the file that it points to is replaced.
enum class Replace { No, Yes };
bool RenameFileAt(TextView from, TextView to, Replace replace = Replace::Yes);

// The same; a failure is a run-time error.
void PutFileAt(TextView from, TextView to, Replace replace = Replace::Yes);

// A name that nothing has yet, for a file that is to be renamed to the name given: in the same folder, beside the file
// itself when the name is a link. A run-time error when the system does not tell one.
Text TemporaryNameBeside(TextView name);

// The names (without folder) of a folder's files that match a pattern with "*" and "?", ignoring case, and sorted
// without regard to case.
std::vector<Text> ListFiles(TextView folder, TextView pattern);

// Reads a value of a key below a hive, of at most 1023 characters: a text up to its first NUL character, a double word
// as a decimal number. False, with an empty value, when there is no such key or value or it is of another type.
bool ReadRegistryValue(RegKey hive, TextView keyName, TextView valueName, Text& value);

// Writes a text value of a key below a hive. The key must exist.
bool WriteRegistryValue(RegKey hive, TextView keyName, TextView valueName, TextView data);

}  // namespace korvande
