// Logger: the process-wide, per-component, level-filtered log.
//
// Every module logs with LogMsg(level, component, fmt, ...). The format
// carries its own tag, source name and line, e.g.
//   "[ERROR] extractor(%d): Allocate extractor failed\n"
// and the logger only prefixes a timestamp "%b %d %H:%M:%S ". Product code
// writes such calls through LOG_MSG below.
#pragma once

#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <map>
#include <pthread.h>

#include "ustring.h"

#if defined(__GNUC__)
#define CALDERIX_PRINTF(fmt_index, first_arg) __attribute__((format(printf, fmt_index, first_arg)))
#else
#define CALDERIX_PRINTF(fmt_index, first_arg)
#endif

class Logger {
public:
    enum Type { TYPE_SYSLOG = 1, TYPE_STDOUT = 2, TYPE_STDERR = 3, TYPE_FILE = 4 };
    enum Level { LEVEL_ERROR = 3, LEVEL_WARNING = 4, LEVEL_NOTE = 5, LEVEL_INFO = 6, LEVEL_DEBUG = 7 };
    // The rotation count before any Initialize and the one the launcher
    // passes: rotation keeps the names _0 to _48.
    static constexpr int kDefaultRotateCount = 50;

    // Sets up the sink and reads per-component thresholds from level_file
    // (key=value, component=level). Returns 0, or -1 when a cell cannot be
    // allocated or the log file cannot be opened. Not thread-safe: call it
    // before other threads log.
    static int Initialize(Type type, const ustring& log_path, const ustring& level_file, int rotate_cnt);
    static void LogMsg(Level level, const ustring& component, const char* fmt, ...) CALDERIX_PRINTF(3, 4);
    static void LogMsg2(Level level, const ustring& component, const char* fmt, va_list ap)
        CALDERIX_PRINTF(3, 0);
    static void Destroy();
    // Shifts log_N to log_N+1, drops the last and reopens a fresh log.
    // Returns 0, or -1 with the logger silenced (log_fp null). Lock held.
    static int Rotate();
    static void ReloadLogFile();
    static int GetFileSize(const ustring& path);
    static int PrintToFilePointer(const char* fmt, ...) CALDERIX_PRINTF(1, 2);
    static int PrintToFilePointerV(const char* fmt, va_list ap) CALDERIX_PRINTF(1, 0);

    // The lock is initialised statically and lives as long as the process;
    // these two keep the interface's shape and do nothing.
    static void InitializeLock();
    static void DestroyLock();
    static void Lock();
    static void Unlock();
    static void InitializeSharedData();
    static void DestroySharedData();
    // A single process writes the log; these keep the shape of the
    // inter-process variant and do nothing.
    static void InitializeFileLock();
    static void DestroyFileLock();

private:
    static Type log_type;
    static std::map<ustring, int> log_level;
    static FILE* log_fp;
    static int* log_size;
    static ustring log_path;
    static pthread_mutex_t log_lock;
    static int64_t* log_rotated_count_shared;
    static int64_t log_rotated_count_private;
    static int rotate_cnt;
    static bool log_initialized;
    static bool inter_process_safe;
    static int log_flock;
};

// LOG_MSG(ERROR, "Allocate extractor failed\n") logs under the level
// LEVEL_ERROR the format "[ERROR] " LOG_SOURCE "(%d): Allocate extractor
// failed\n" with the calling line as its first argument. The file that logs
// defines LOG_SOURCE (the literal name its lines carry) and LOG_COMPONENT
// (the component name, a ustring). Level and tag come from one word, so they
// cannot disagree, and the format stays a literal that printf checks.
#define LOG_MSG(LEVEL, fmt, ...)                                                                             \
    Logger::LogMsg(Logger::LEVEL_##LEVEL, LOG_COMPONENT, "[" #LEVEL "] " LOG_SOURCE "(%d): " fmt, __LINE__,  \
                   ##__VA_ARGS__)

void LogMSG_c(int level, char* component, const char* fmt, va_list ap) CALDERIX_PRINTF(3, 0);
