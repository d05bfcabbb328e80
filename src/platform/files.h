#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// All file work of the system. Paths may carry "/" or "\"; a drive ("C:") in front is kept in text
// and ignored on disk. Each component of a path is found by its exact name first, else by the first
// name (in byte order) that is equal without regard to letter case. Text on disk is Windows-1252
// with CR LF line ends; in memory it is UTF-8 without line ends. No function here throws or shows
// anything: the caller decides what a failure means.

namespace verandis {

/// The bytes of a file as they stand on disk; nothing when it cannot be opened.
std::optional<std::string> ReadBytes(const std::string& path);

/// The same without a copy: the view holds until the next reading of any file.
std::optional<std::string_view> ReadView(const std::string& path);

/// Replaces a file by these bytes; the folder must exist. False when not every byte could be
/// written.
bool WriteBytes(const std::string& path, std::string_view bytes);

/// The lines of a text file: CR LF and LF end a line, a last line without an end counts, nothing is
/// trimmed. Nothing when the file cannot be opened.
std::optional<std::vector<std::string>> ReadLines(const std::string& path);

/// The same for a file that is UTF-8 on disk (settings files).
std::optional<std::vector<std::string>> ReadUtf8Lines(const std::string& path);

/// Replaces a text file by these lines, each ended by CR LF. False when it cannot be written.
bool WriteLines(const std::string& path, const std::vector<std::string>& lines);

/// The same for a file that is UTF-8 on disk.
bool WriteUtf8Lines(const std::string& path, const std::vector<std::string>& lines);

/// Appends one line, ended by CR LF; makes the file when it is missing, and ends its last line
/// first when that has no end.
bool AppendLine(const std::string& path, const std::string& line);

/// True when the path is a file that can be opened for reading.
bool FileExists(const std::string& path);

/// True when the path is a folder.
bool FolderExists(const std::string& path);

/// Names of the entries of a folder, sorted by byte order, without "." and "..". Empty when it
/// cannot be listed.
std::vector<std::string> ListFolder(const std::string& folder);

/// Names of the files in a folder that match a pattern with "*" ("*.CLI"), without regard to letter
/// case, sorted by lower-cased name. "*.*" means every file, also one without a point.
std::vector<std::string> ListFiles(const std::string& folder, std::string_view pattern);

/// Copies the bytes of one file; an existing target is replaced.
bool CopyFile(const std::string& source, const std::string& target);

/// Deletes a file (or a link, never what it points at). False when it is not there or stays.
bool DeleteFile(const std::string& path);

/// Deletes every file in a folder that matches the pattern.
void DeleteFiles(const std::string& folder, std::string_view pattern);

/// Makes a folder and all its parents. True when it is there afterwards.
bool MakeFolders(const std::string& path);

/// Removes an empty folder.
bool RemoveFolder(const std::string& path);

/// Renames a file or folder within its parent; `newName` is a bare name. False when the target
/// exists or the system refuses.
bool Rename(const std::string& path, const std::string& newName);

/// Makes a folder the current one of the process; false when it is not there. No file of the system
/// is opened by a path relative to it.
bool ChangeFolder(const std::string& path);

/// The path as seen from the root of the machine, for paths that a user types.
std::string AbsolutePath(const std::string& path);

/// The path without "." and "..", repeated or trailing separators and links on its way: the one
/// path by which two names of a folder can be compared. Parts that do not exist stay as they are.
std::string CanonicalPath(const std::string& path);

/// Path of the running program; empty when the system does not tell.
std::string ProgramPath();

/// True when the entry is a symbolic link, whatever it points at.
bool IsLink(const std::string& path);

/// The path as it is really spelled on disk; components that are missing keep their spelling. What
/// leaves the program (arguments of other programs, paths stored in model files) goes through here.
std::string TrueSpelling(const std::string& path);

}  // namespace verandis
