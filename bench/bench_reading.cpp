// Reading, looking up and checking, against the straightforward reader.

#include "baseline.h"
#include "measure.h"

#include <io/networkfileconverter.h>
#include <io/nivrareader.h>
#include <model/consistencycheck.h>

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <memory>

namespace {

constexpr int Hundred = 100000;
constexpr int Million = 1000000;

std::unique_ptr<NetData> read(int elements) {
  auto net = std::make_unique<NetData>();
  NivraReader(*net).readGeomJsn(Measure::network(elements), {});
  return net;
}

void readBaseline(benchmark::State &state) {
  const QString path = Measure::network(static_cast<int>(state.range(0)));
  state.counters["MB"] = Measure::peakMemory([&] {
    const Baseline::Network network = Baseline::read(path);
    benchmark::DoNotOptimize(network.size());
  });
  for (auto _ : state) {
    auto network = std::make_unique<Baseline::Network>(Baseline::read(path));
    state.PauseTiming();
    network.reset();
    malloc_trim(0);
    state.ResumeTiming();
  }
}
BENCHMARK(readBaseline)->Arg(Hundred)->Unit(benchmark::kMillisecond)->Iterations(2);

void readStore(benchmark::State &state) {
  const int elements = static_cast<int>(state.range(0));
  const QString path = Measure::network(elements);
  state.counters["MB"] = Measure::peakMemory([&] { benchmark::DoNotOptimize(read(elements)->edges().size()); });
  for (auto _ : state) {
    auto net = read(elements);
    state.PauseTiming();
    net.reset();
    malloc_trim(0); // each reading finds the memory that a program finds that just started
    state.ResumeTiming();
  }
}
BENCHMARK(readStore)->Arg(Hundred)->Unit(benchmark::kMillisecond)->Iterations(8);
BENCHMARK(readStore)->Arg(Million)->Unit(benchmark::kMillisecond)->Iterations(2);

/// The same network in the text form.
void readText(benchmark::State &state) {
  const QString json = Measure::network(static_cast<int>(state.range(0)));
  const QString text = NetworkFileConverter::otherForm(json);
  if (!NetworkFileConverter::convert(json, text).ok)
    state.SkipWithError("the network cannot be converted");
  for (auto _ : state) {
    auto net = std::make_unique<NetData>();
    NivraReader(*net).readGeomJsn(text, {});
    state.PauseTiming();
    net.reset();
    malloc_trim(0);
    state.ResumeTiming();
  }
}
BENCHMARK(readText)->Arg(Hundred)->Unit(benchmark::kMillisecond)->Iterations(8);
BENCHMARK(readText)->Arg(Million)->Unit(benchmark::kMillisecond)->Iterations(2);

/// Every element asked for by name once.
void findElements(benchmark::State &state) {
  const auto net = read(static_cast<int>(state.range(0)));
  QStringList names;
  net->forEach(NetData::AllTypes, [&](element &e) { names.append(e.value(QStringLiteral("name"))); });
  for (auto _ : state) {
    for (const QString &name : names)
      benchmark::DoNotOptimize(net->findElement(name, NetData::AllTypes).second);
  }
}
BENCHMARK(findElements)->Arg(Hundred)->Unit(benchmark::kMillisecond);
BENCHMARK(findElements)->Arg(Million)->Unit(benchmark::kMillisecond);

/// Both passes over a network that was just read, the sorting of its names included.
void checkNetwork(benchmark::State &state) {
  for (auto _ : state) {
    state.PauseTiming();
    auto net = read(static_cast<int>(state.range(0)));
    state.ResumeTiming();
    ConsistencyCheck::checkNetData(*net);
    benchmark::DoNotOptimize(ConsistencyCheck::prune(*net).edges);
    state.PauseTiming();
    net.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(checkNetwork)->Arg(Hundred)->Unit(benchmark::kMillisecond)->Iterations(8);
BENCHMARK(checkNetwork)->Arg(Million)->Unit(benchmark::kMillisecond)->Iterations(2);

} // namespace
