// FSRemove of a tree of 5,000 small files in 50 folders, the shape of the
// backup the launcher deletes after an upgrade. Building the tree is kept
// out of the timing.
#include <benchmark/benchmark.h>

#include <string>

#include "bench_support.h"
#include "file-op.h"

namespace {

constexpr int kFolders = 50;
constexpr int kFilesPerFolder = 100;

void BuildTree(const std::string& root)
{
    MakeFolderOrDie(root);
    const std::string content(512, 'x');
    for (int f = 0; f < kFolders; ++f) {
        const std::string folder = root + "/folder" + std::to_string(f);
        MakeFolderOrDie(folder);
        for (int i = 0; i < kFilesPerFolder; ++i) {
            WriteFileOrDie(folder + "/file" + std::to_string(i) + ".dat", content);
        }
    }
}

void BM_FSRemoveTree(benchmark::State& state)
{
    TempFolder folder;
    const std::string root = folder.Join("Calderix.app_tmp");
    const ustring path(root);
    for (auto _ : state) {
        state.PauseTiming();
        BuildTree(root);
        state.ResumeTiming();
        if (FSRemove(path, true) != 0) {
            state.SkipWithError("FSRemove failed");
            break;
        }
    }
    state.SetItemsProcessed(state.iterations() * kFolders * kFilesPerFolder);
}
BENCHMARK(BM_FSRemoveTree)->Unit(benchmark::kMillisecond)->Iterations(10);

} // namespace
