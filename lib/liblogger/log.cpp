#include "log.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <syslog.h>
#include <unistd.h>

#include "config.h"
#include "regular_file.h"

Logger::Type Logger::log_type = Logger::TYPE_STDOUT;
std::map<ustring, int> Logger::log_level;
FILE* Logger::log_fp = stderr;
int* Logger::log_size = nullptr;
ustring Logger::log_path;
// Constant-initialised, so it exists before any code runs and no thread
// ever sees it half made.
pthread_mutex_t Logger::log_lock = PTHREAD_MUTEX_INITIALIZER;
int64_t* Logger::log_rotated_count_shared = nullptr;
int64_t Logger::log_rotated_count_private = 0;
int Logger::rotate_cnt = kDefaultRotateCount;
bool Logger::log_initialized = true;
bool Logger::inter_process_safe = false;
int Logger::log_flock = -1;

namespace {

const int kDefaultThreshold = Logger::LEVEL_WARNING;
const int kRotateSize = 1048576;
const size_t kTimestampSize = 512;
const size_t kRotateNameSize = 1024;

bool IsStreamSink(int type)
{
    return type == Logger::TYPE_SYSLOG || type == Logger::TYPE_STDOUT || type == Logger::TYPE_STDERR;
}

// The platform hook: the size of a file, or the errno of the failed stat.
int StatFileSize(const char* path, long long* size)
{
    struct stat st;
    if (stat(path, &st) != 0) {
        return errno;
    }
    *size = static_cast<long long>(st.st_size);
    return 0;
}

// Opens the log file at path for appending, creating it when missing. A
// FIFO, a device or a folder in its place is refused at once instead of
// blocking the first message (a FIFO without a reader would wait forever).
// Returns the stream, or null.
FILE* OpenLogFile(const char* path)
{
    const int fd = platform::OpenRegularFile(path, O_WRONLY | O_APPEND | O_CREAT);
    if (fd < 0) {
        return nullptr;
    }
    FILE* fp = fdopen(fd, "a");
    if (fp == nullptr) {
        close(fd);
    }
    return fp;
}

// Standard output and standard error belong to the process; only streams
// the logger opened itself are ever closed.
void CloseOwnStream(FILE*& fp)
{
    if (fp != nullptr && fp != stdout && fp != stderr) {
        std::fclose(fp);
    }
    fp = nullptr;
}

} // namespace

// Returns 0 with the sink in place, or -1: when a cell cannot be allocated,
// or, for the file sink, when the path is empty or cannot be opened for
// appending. Leaves the log file created (empty) when missing.
int Logger::Initialize(Type type, const ustring& path, const ustring& level_file, int count)
{
    DestroySharedData();
    InitializeSharedData();
    if (log_size == nullptr) {
        return -1;
    }

    log_level[ustring("default_component")] = kDefaultThreshold;
    if (!level_file.empty()) {
        // A missing or malformed level file leaves the thresholds as they
        // are; Config hands back no entries at all after a syntax error.
        Config config;
        config.read(level_file);
        for (const auto& entry : config.entries) {
            log_level[entry.first] = config.get_int(entry.first);
        }
    }

    log_type = type;
    if (IsStreamSink(type)) {
        CloseOwnStream(log_fp);
        log_fp = type == TYPE_STDOUT ? stdout : (type == TYPE_STDERR ? stderr : nullptr);
        log_path.clear();
        *log_size = -1;
        *log_rotated_count_shared = 0;
        log_rotated_count_private = 0;
        log_initialized = true;
        return 0;
    }

    FILE* fp = path.empty() ? nullptr : OpenLogFile(path.c_str_utf8());
    if (fp == nullptr) {
        // The type now says "file" but the earlier stream and path stay.
        // Messages keep going to that stream (standard error on a first
        // call) so nothing is lost; without an earlier log path there is
        // nothing to rotate, so the size cell is -1 and the writers neither
        // count nor ever reach Rotate. With an earlier path the counting
        // carries on from that file's size.
        *log_size = log_path.empty() ? -1 : GetFileSize(log_path);
        log_rotated_count_private = 0;
        return -1;
    }
    CloseOwnStream(log_fp);
    log_fp = fp;
    log_path = path;
    rotate_cnt = count;
    *log_rotated_count_shared = 0;
    log_rotated_count_private = 0;
    *log_size = GetFileSize(log_path);
    log_initialized = true;
    return 0;
}

void Logger::LogMsg(Level level, const ustring& component, const char* fmt, ...)
{
    va_list ap;
    va_start(ap, fmt);
    LogMsg2(level, component, fmt, ap);
    va_end(ap);
}

// Writes one admitted message under the lock; for the file sink counts its
// bytes and rotates once the file passes the limit. A message above its
// component's threshold costs a lookup and is never formatted.
void Logger::LogMsg2(Level level, const ustring& component, const char* fmt, va_list ap)
{
    if (!log_initialized) {
        return;
    }

    // Before any Initialize the cells are made by the first message, under
    // the lock, so that two early writers cannot both make them. A rotation
    // in another thread leaves log_fp null for a moment; tested without the
    // lock, that would drop messages that arrive meanwhile. Under the lock,
    // null means silenced for good (failed rotation or Destroy).
    Lock();
    InitializeSharedData();
    if (log_size == nullptr || (log_type != TYPE_SYSLOG && log_fp == nullptr)) {
        Unlock();
        return;
    }
    if (log_rotated_count_private != *log_rotated_count_shared) {
        ReloadLogFile();
        log_rotated_count_private = *log_rotated_count_shared;
    }

    auto it = log_level.find(component);
    const int threshold = it == log_level.end() ? kDefaultThreshold : it->second;
    if (level > threshold) {
        Unlock();
        return;
    }

    int count = 0;
    if (log_type == TYPE_SYSLOG) {
        vsyslog(LOG_ERR, fmt, ap);
    } else if (log_type == TYPE_STDOUT || log_type == TYPE_STDERR || log_type == TYPE_FILE) {
        count = PrintToFilePointerV(fmt, ap);
    } else {
        std::vfprintf(stderr, fmt, ap);
    }

    // Without a log path (a failed first Initialize of the file sink) there
    // is nothing to rotate, so nothing is counted either.
    if (log_type == TYPE_FILE && !log_path.empty() && *log_size >= 0 && count >= 0) {
        *log_size = *log_size > INT_MAX - count ? INT_MAX : *log_size + count;
        if (*log_size > kRotateSize) {
            Rotate();
            *log_size = 0;
        }
    }
    Unlock();
}

// Frees the cells; closes the log file of the file sink. Messages are
// dropped until the next Initialize.
void Logger::Destroy()
{
    log_initialized = false;
    if (!IsStreamSink(log_type)) {
        CloseOwnStream(log_fp);
        log_path.clear();
    }
    DestroySharedData();
}

// Moves P_i to P_(i+1) for i = N-2..0, deletes P_(N-1), then P to P_0, and
// opens a fresh P. Leaves P_0..P_(N-2) on disk. Returns 0, or -1 with log_fp
// null (every later message dropped) when P cannot be moved or reopened.
int Logger::Rotate()
{
    const char* path = log_path.c_str_utf8();
    char from[kRotateNameSize];
    char to[kRotateNameSize];

    // A cut-off name could rename somebody else's file, so a path that
    // leaves no room for the suffixes counts as a failed rotation.
    for (int suffix : {0, rotate_cnt - 1}) {
        int needed = std::snprintf(to, sizeof to, "%s_%d", path, suffix);
        if (needed < 0 || static_cast<size_t>(needed) >= sizeof to) {
            CloseOwnStream(log_fp);
            return -1;
        }
    }

    for (int i = rotate_cnt - 2; i >= 0; --i) {
        std::snprintf(from, sizeof from, "%s_%d", path, i);
        std::snprintf(to, sizeof to, "%s_%d", path, i + 1);
        std::rename(from, to);
    }
    std::snprintf(to, sizeof to, "%s_%d", path, rotate_cnt - 1);
    std::remove(to);

    CloseOwnStream(log_fp);
    std::snprintf(to, sizeof to, "%s_%d", path, 0);
    if (std::rename(path, to) != 0) {
        return -1;
    }
    FILE* fp = OpenLogFile(path);
    if (fp == nullptr) {
        return -1;
    }
    log_fp = fp;
    if (log_rotated_count_shared != nullptr) {
        ++*log_rotated_count_shared;
    }
    ++log_rotated_count_private;
    return 0;
}

// File sink only: reopens log_path for appending and recounts its size.
// Leaves log_fp null when the reopen fails; does nothing without a path,
// where the current stream is not a log file of ours.
void Logger::ReloadLogFile()
{
    if (IsStreamSink(log_type) || log_path.empty()) {
        return;
    }
    CloseOwnStream(log_fp);
    FILE* fp = OpenLogFile(log_path.c_str_utf8());
    if (fp == nullptr) {
        return;
    }
    log_fp = fp;
    if (log_size != nullptr) {
        *log_size = GetFileSize(log_path);
    }
}

// Size in bytes, or 0 after reporting the stat failure to the current sink.
int Logger::GetFileSize(const ustring& path)
{
    long long size = 0;
    int error = StatFileSize(path.c_str_utf8(), &size);
    if (error != 0) {
        PrintToFilePointer("stat(%s): %s (%d)\n", path.c_str_utf8(), std::strerror(error), error);
        return 0;
    }
    // A file beyond the range of int (a sparse one, or years of logging)
    // counts as full, so that the next message rotates it.
    return size > INT_MAX ? INT_MAX : static_cast<int>(size);
}

int Logger::PrintToFilePointer(const char* fmt, ...)
{
    va_list ap;
    va_start(ap, fmt);
    int count = PrintToFilePointerV(fmt, ap);
    va_end(ap);
    return count;
}

// Writes the timestamp and the message to log_fp and flushes. Returns the
// sum of the two writes' byte counts (a failed write counts -1), 0 without
// a stream.
int Logger::PrintToFilePointerV(const char* fmt, va_list ap)
{
    if (log_fp == nullptr) {
        return 0;
    }
    char stamp[kTimestampSize];
    stamp[0] = '\0';
    time_t now = std::time(nullptr);
    const struct tm* local = std::localtime(&now);
    if (local == nullptr || std::strftime(stamp, sizeof stamp, "%b %d %H:%M:%S ", local) == 0) {
        stamp[0] = '\0';
    }
    int stamp_count = std::fprintf(log_fp, "%s", stamp);
    int message_count = std::vfprintf(log_fp, fmt, ap);
    std::fflush(log_fp);
    return stamp_count + message_count;
}

void Logger::InitializeLock() {}

void Logger::DestroyLock() {}

void Logger::Lock()
{
    pthread_mutex_lock(&log_lock);
}

void Logger::Unlock()
{
    pthread_mutex_unlock(&log_lock);
}

// Allocates both cells, zeroed, unless both exist; on failure neither does.
void Logger::InitializeSharedData()
{
    if (log_size != nullptr && log_rotated_count_shared != nullptr) {
        return;
    }
    DestroySharedData();
    auto* size = static_cast<int*>(std::calloc(1, sizeof(int)));
    auto* rotated = static_cast<int64_t*>(std::calloc(1, sizeof(int64_t)));
    if (size == nullptr || rotated == nullptr) {
        std::free(size);
        std::free(rotated);
        return;
    }
    log_size = size;
    log_rotated_count_shared = rotated;
}

void Logger::DestroySharedData()
{
    std::free(log_size);
    std::free(log_rotated_count_shared);
    log_size = nullptr;
    log_rotated_count_shared = nullptr;
}

void Logger::InitializeFileLock() {}

void Logger::DestroyFileLock() {}

void LogMSG_c(int level, char* component, const char* fmt, va_list ap)
{
    Logger::LogMsg2(static_cast<Logger::Level>(level), ustring(component != nullptr ? component : ""), fmt,
                    ap);
}
