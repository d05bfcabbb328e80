#pragma once

#include <string>
#include <string_view>

// Paths as text; nothing here looks at the disk.

namespace verandis {

/// Folder, separator, name. Nothing is stripped: a folder that ends in a separator gets a second
/// one, which the machine ignores.
std::string JoinPath(std::string_view folder, std::string_view name);

/// The path with the machine's separator in place of every "\".
std::string WithMachineSeparators(std::string_view path);

/// The path without a drive ("C:") in front.
std::string_view WithoutDrive(std::string_view path);

/// The part in front of the last separator of either sign; empty when there is none.
std::string_view FolderOf(std::string_view path);

/// The part behind the last separator of either sign.
std::string_view NameOf(std::string_view path);

/// True when `path` is `folder` or lies below it, without regard to letter case and separator sign.
bool LiesIn(std::string_view path, std::string_view folder);

}  // namespace verandis
