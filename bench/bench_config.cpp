// Config::read of the level file as the bundle ships it (every line
// commented out) and as a developer switches it on.
#include <benchmark/benchmark.h>

#include "bench_support.h"
#include "config.h"

namespace {

const char* const kShipped = "# Log levels per component: 3 error, 4 warning, 5 note, 6 info, 7 debug.\n"
                             "#launcher_debug=7\n"
                             "#service_debug=7\n"
                             "#extractor_debug=7\n"
                             "#file_op_debug=7\n";
const char* const kEnabled = "# Log levels per component: 3 error, 4 warning, 5 note, 6 info, 7 debug.\n"
                             "launcher_debug=7\n"
                             "service_debug=7\n"
                             "extractor_debug=7\n"
                             "file_op_debug=7\n";

void BM_ConfigReadLevelFile(benchmark::State& state, const char* text)
{
    TempFolder folder;
    const std::string path = folder.Join("launcher.debug");
    WriteFileOrDie(path, text);
    const ustring level_file(path);
    for (auto _ : state) {
        Config config;
        if (config.read(level_file) != 0) {
            state.SkipWithError("Config::read failed");
            break;
        }
        benchmark::DoNotOptimize(config.entries.size());
    }
}
BENCHMARK_CAPTURE(BM_ConfigReadLevelFile, shipped, kShipped);
BENCHMARK_CAPTURE(BM_ConfigReadLevelFile, enabled, kEnabled);

} // namespace
