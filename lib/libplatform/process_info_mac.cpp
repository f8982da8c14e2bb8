#include "process_info.h"

#include <cerrno>
#include <libproc.h>
#include <sys/proc.h>
#include <sys/proc_info.h>
#include <unistd.h>

namespace platform {

int UserProcessExecutable(pid_t pid, std::string& exe)
{
    if (pid <= 0) {
        return ESRCH;
    }
    struct proc_bsdinfo info;
    if (proc_pidinfo(pid, PROC_PIDTBSDINFO, 0, &info, sizeof info) != static_cast<int>(sizeof info)) {
        return errno != 0 ? errno : ESRCH;
    }
    if (info.pbi_uid != geteuid()) {
        return EPERM;
    }
    // A zombie has no path left to report.
    if (info.pbi_status == SZOMB) {
        return ESRCH;
    }
    char path[PROC_PIDPATHINFO_MAXSIZE];
    const int n = proc_pidpath(pid, path, sizeof path);
    if (n <= 0) {
        return errno != 0 ? errno : ESRCH;
    }
    exe.assign(path, static_cast<size_t>(n));
    return 0;
}

} // namespace platform
