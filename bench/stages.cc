// SPDX-License-Identifier: MIT
// The stages of the conversion, each by itself, with Google Benchmark:
//   stages FILE.G [--benchmark_... options]
// What stands before a stage runs outside of its time; bytes per second are those of the GIL file.
#include <benchmark/benchmark.h>
#include <sys/stat.h>

#include <cstdio>
#include <cstdlib>

#include "convert/objects.h"
#include "driver/driver.h"
#include "flags/flags.h"
#include "driver/session.h"
#include "gil/object.h"
#include "gil/parser.h"
#include "gil/scanner.h"
#include "layout/geometry.h"
#include "layout/tiling.h"
#include "uil/writer.h"
#include "passes/clean_up.h"
#include "widget/tree.h"

static const char* input_name = nullptr;
static int64_t input_size = 0;
static std::FILE* sink = nullptr;

// A session of its own, with the file on standard input from its start.
static void Start() {
  ResetSession();
  verbose = 0;
  if (!std::freopen(input_name, "r", stdin)) std::abort();
  yyrestart();
}

static void Scan() {
  while (yylex() != 0) continue;
}

static void Parse() {
  if (yyparse() != 0) std::abort();
}

static void ResolveOwners() { gilFile = resolveChildren(gilFile); }

// With the layout of each container, unless that is switched off.
static void Convert() { ConvertObjHierToWidgHier(PutMenusFirst(gilFile), &top_widget); }

static void CleanUp() { top_widget = CleanUpTopLevelHierarchy(&top_widget); }

static void Write() {
  std::rewind(sink);
  GenUILForWidgHierarchy(top_widget, sink);
}

// Every step of a conversion in order; the row tells from where to where time counts.
using Step = void (*)();
static const Step kSteps[] = {Parse, ResolveOwners, Convert, CleanUp, ProcessActions, Write};

static void RunSteps(benchmark::State& state, std::size_t first, std::size_t end) {
  for (auto _ : state) {
    state.PauseTiming();
    Start();
    for (std::size_t i = 0; i < first; ++i) kSteps[i]();
    state.ResumeTiming();
    for (std::size_t i = first; i < end; ++i) kSteps[i]();
  }
  state.SetBytesProcessed(state.iterations() * input_size);
}

static void BM_Scan(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    Start();
    state.ResumeTiming();
    Scan();
  }
  state.SetBytesProcessed(state.iterations() * input_size);
}

static void BM_ScanAndParse(benchmark::State& state) { RunSteps(state, 0, 1); }
static void BM_Owners(benchmark::State& state) { RunSteps(state, 1, 2); }
static void BM_Convert(benchmark::State& state) { RunSteps(state, 2, 3); }

// The conversion without the layout of containers; what lies between this and BM_Convert is layout.
static void BM_ConvertWithoutLayout(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    Start();
    reposition = 0;
    Parse();
    ResolveOwners();
    state.ResumeTiming();
    Convert();
  }
  state.SetBytesProcessed(state.iterations() * input_size);
}

static void BM_CleanUp(benchmark::State& state) { RunSteps(state, 3, 4); }
static void BM_Actions(benchmark::State& state) { RunSteps(state, 4, 5); }
static void BM_Write(benchmark::State& state) { RunSteps(state, 5, 6); }
static void BM_All(benchmark::State& state) { RunSteps(state, 0, 6); }

BENCHMARK(BM_Scan);
BENCHMARK(BM_ScanAndParse);
BENCHMARK(BM_Owners);
BENCHMARK(BM_Convert);
BENCHMARK(BM_ConvertWithoutLayout);
BENCHMARK(BM_CleanUp);
BENCHMARK(BM_Actions);
BENCHMARK(BM_Write);
BENCHMARK(BM_All);

int main(int argc, char** argv) {
  if (argc < 2 || argv[1][0] == '-') {
    std::fputs("usage: stages FILE.G [--benchmark_... options]\n", stderr);
    return 2;
  }
  input_name = argv[1];
  struct stat status;
  if (stat(input_name, &status) != 0) {
    std::perror(input_name);
    return 1;
  }
  input_size = status.st_size;
  sink = std::fopen("/dev/null", "w");
  if (!sink) return 1;
  argv[1] = argv[0];
  --argc;
  ++argv;
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
