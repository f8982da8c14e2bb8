// The user's home folder for a process started without a usable HOME.
#pragma once

namespace platform {

// Sets HOME to the home folder that the password database gives for this
// user when HOME is unset or not an absolute path; leaves an absolute HOME
// alone. Call it before anything reads HOME (Qt's home path reads it on
// every call) and before a second thread exists. Returns 0 when HOME is
// absolute afterwards, or an errno value (ENOENT when the database has no
// absolute home for this user).
int EnsureHomeVariable();

} // namespace platform
