// ustring on the paths the launcher builds and searches: a bundle path put
// together from its components, the search for a component in it, and the
// NFC normalisation every path from the file system passes through.
#include <benchmark/benchmark.h>

#include "ustring.h"

namespace {

const char* const kComponents[] = {
    "Users",    "someone", ".Calderix", "Calderix.app", "Contents", "Frameworks", "QtWidgets.framework",
    "Versions", "5",       "Resources", "qt_fr.qm"};

// An ASCII path, where NFC has nothing to change, and one whose accented
// letters are decomposed, as HFS+ stores them, where it has to compose.
const char* const kAsciiPath =
    "/Users/someone/.Calderix/Calderix.app/Contents/Resources/translations/qt_fr.qm";
const char* const kDecomposedPath =
    "/Users/Ame\xcc\x81lie Bo\xcc\x88hm/.Calderix/Calderix.app/Contents/Resources/"
    "Re\xcc\x81sume\xcc\x81s/Cafe\xcc\x81 cre\xcc\x80me.txt";

void BM_UstringAppendPath(benchmark::State& state)
{
    for (auto _ : state) {
        ustring path;
        for (const char* component : kComponents) {
            path.append("/");
            path.append(component);
        }
        benchmark::DoNotOptimize(path.c_str());
    }
}
BENCHMARK(BM_UstringAppendPath);

void BM_UstringFindComponent(benchmark::State& state)
{
    const ustring path(kAsciiPath);
    for (auto _ : state) {
        benchmark::DoNotOptimize(path.find("/Contents/"));
        benchmark::DoNotOptimize(path.rfind('/'));
    }
}
BENCHMARK(BM_UstringFindComponent);

void BM_UstringNfc(benchmark::State& state, const char* text)
{
    // A fresh copy per round: the UTF-16 form is cached on the string, and
    // each path the launcher meets arrives without one.
    const ustring source(text);
    for (auto _ : state) {
        ustring path(source);
        ustring nfc = path.normalize(ustring::NFC);
        benchmark::DoNotOptimize(nfc.c_str());
    }
}
BENCHMARK_CAPTURE(BM_UstringNfc, ascii, kAsciiPath);
BENCHMARK_CAPTURE(BM_UstringNfc, decomposed, kDecomposedPath);

} // namespace
