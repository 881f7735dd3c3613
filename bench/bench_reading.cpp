// Reading, looking up and checking, against the straightforward reader.

#include "baseline.h"
#include "measure.h"

#include <io/networkfileconverter.h>
#include <io/nivrareader.h>
#include <model/consistencycheck.h>
#include <view/netviscontrol.h>

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <chrono>
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

/// Reads, checks and draws a network; the seconds of each.
std::array<double, 3> secondsOf(const QString &path) {
  using Clock = std::chrono::steady_clock;
  const auto since = [](Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
  };
  std::array<double, 3> seconds{};
  NetData net;
  NetVisControl control(net, QString());
  auto start = Clock::now();
  NivraReader(net).readGeomJsn(path, {});
  seconds[0] = since(start);
  start = Clock::now();
  ConsistencyCheck::checkNetData(net);
  benchmark::DoNotOptimize(ConsistencyCheck::prune(net).edges);
  seconds[1] = since(start);
  start = Clock::now();
  control.plot()->resize(1200, 900);
  control.showNetData(QString());
  control.plot()->grab();
  seconds[2] = since(start);
  return seconds;
}

/// Names outside of ASCII against the same network with plain names, in turns: the counters are ratios of the shortest
/// times, each of which is to stay below 1.3.
void otherNames(benchmark::State &state) {
  const int elements = static_cast<int>(state.range(0));
  const QString plain = Measure::network(elements);
  const QString other = Measure::networkOfOtherNames(elements);
  constexpr double Endless = 1e9;
  std::array<double, 3> ofPlain{Endless, Endless, Endless};
  std::array<double, 3> ofOther = ofPlain;
  const auto shorten = [](std::array<double, 3> &shortest, const std::array<double, 3> &seconds) {
    for (std::size_t i = 0; i < seconds.size(); ++i)
      shortest[i] = std::min(shortest[i], seconds[i]);
  };
  for (auto _ : state) {
    shorten(ofPlain, secondsOf(plain));
    shorten(ofOther, secondsOf(other));
  }
  const std::array<const char *, 3> names{"read", "check", "draw"};
  for (std::size_t i = 0; i < names.size(); ++i)
    state.counters[names[i]] = ofOther[i] / ofPlain[i];
}
BENCHMARK(otherNames)->Arg(3L * Hundred)->Unit(benchmark::kMillisecond)->Iterations(5);

} // namespace
