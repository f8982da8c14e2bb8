// Logger::LogMsg with the file sink: a debug message that its component's
// default threshold filters out (the common case in a shipped bundle) and a
// warning that is formatted, written and counted towards rotation.
#include <benchmark/benchmark.h>

#include "bench_support.h"
#include "log.h"

namespace {

void BM_LogMsg(benchmark::State& state, Logger::Level level)
{
    TempFolder folder;
    // No level file: every component keeps the default threshold.
    if (Logger::Initialize(Logger::TYPE_FILE, ustring(folder.Join("launcher.log")), ustring(), 50) != 0) {
        state.SkipWithError("Logger::Initialize failed");
        return;
    }
    const ustring component("extractor_debug");
    int entry = 0;
    for (auto _ : state) {
        Logger::LogMsg(level, component, "[WARNING] extractor(%d): entry %d: '%s'\n", __LINE__, ++entry,
                       "Contents/Frameworks/QtGui.framework/Versions/5/QtGui");
    }
    Logger::Destroy();
}
BENCHMARK_CAPTURE(BM_LogMsg, filtered, Logger::LEVEL_DEBUG);
BENCHMARK_CAPTURE(BM_LogMsg, written, Logger::LEVEL_WARNING);

} // namespace
