// Linux side of the canonical path: the pieces behind CanonicalPath, open to
// tests so that the case-insensitive rules can run on an ordinary folder.
#pragma once

#include <string>

#include "canonical_path.h"

namespace platform {

// How a folder compares the names of its entries. Detect asks the file system
// (vfat, exfat, SMB and casefolded ext4/f2fs/tmpfs folders ignore case).
enum class NameCase { Detect, Sensitive, Insensitive };

// The rule `folder` applies to its entries; Sensitive when it cannot tell.
NameCase FolderNameCase(const std::string& folder);

// The spelling under which `folder` stores `name`. An exact match wins; then a
// name equal under Unicode normalisation (and, where case is ignored, under
// case folding); among several such, the byte-wise smallest. A name that the
// folder finds exactly under a case-sensitive rule costs no listing.
// Returns 0 with `stored` set, or an errno value (ENOENT: no such entry).
int StoredName(const std::string& folder, const std::string& name, NameCase rule, std::string& stored);

// CanonicalPath with the folders' name rule given instead of detected.
int ResolvePath(const std::string& path, FinalLink final_link, NameCase rule, std::string& out);

} // namespace platform
