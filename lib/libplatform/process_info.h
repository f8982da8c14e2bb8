// Who a process id names, for deciding whether it may be signalled.
#pragma once

#include <string>
#include <sys/types.h>

namespace platform {

// The path of the executable that process pid runs, when the process runs
// as this user. A file removed since the process started keeps the path it
// had then; a file renamed is reported under its new name. Returns 0 with
// exe set, ESRCH when no such process runs (a zombie runs nothing), EPERM
// when it belongs to another user or hides its executable, or another
// errno value.
int UserProcessExecutable(pid_t pid, std::string& exe);

} // namespace platform
