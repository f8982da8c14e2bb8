#include <benchmark/benchmark.h>

#include "tmp_name_gen.h"

namespace {

void BM_TmpNameGenGetTmpName(benchmark::State& state)
{
    TmpNameGen& generator = TmpNameGen::getInstance();
    for (auto _ : state) {
        ustring name = generator.getTmpName();
        benchmark::DoNotOptimize(name.c_str());
    }
}
BENCHMARK(BM_TmpNameGenGetTmpName);

} // namespace
