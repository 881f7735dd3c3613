// Assembling subnets, against the mere adding of the same elements.

#include <subassembly/subassembler.h>

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

constexpr int Subnets = 1000;

element made(std::initializer_list<std::pair<const char *, QString>> properties) {
  element e;
  for (const auto &[name, value] : properties)
    e.set(QString::fromLatin1(name), value);
  return e;
}

/// A line of nodes with a subnet of one of five variants between each two.
NetData network() {
  static const QStringList variants{QStringLiteral("compressor_station"), QStringLiteral("regulator_station"),
                                    QStringLiteral("metering_station"), QStringLiteral("valve_junction"),
                                    QStringLiteral("default")};
  NetData net;
  for (int i = 0; i < 3 * Subnets; ++i)
    net.addElement(made({{"name", QStringLiteral("N%1").arg(i)},
                         {"type", QStringLiteral("n")},
                         {"x", QString::number(100 * i)},
                         {"y", QString::number(i % 7)}}));
  for (int i = 0; i < Subnets; ++i) {
    const QString &variant = variants.at(i % variants.size());
    QString pins = QStringLiteral("N%1;N%2").arg(3 * i).arg(3 * i + 1);
    if (variant == QLatin1String("valve_junction"))
      pins += QStringLiteral(";N%1").arg(3 * i + 2);
    net.addElement(made(
        {{"name", QStringLiteral("S%1").arg(i)}, {"type", QStringLiteral("sub")}, {"variant", variant}, {"pins", pins}}));
  }
  return net;
}

const QString &folder() {
  static const QString path = QStringLiteral(NIVRA_SOURCE_DIR "/net_subassemblies");
  return path;
}

/// As the check of the network leaves it before subnets are assembled: in order.
NetData walkedCopy(const NetData &net) {
  NetData copy = net;
  copy.forEach(NetData::AllTypes, [](element &e) { benchmark::DoNotOptimize(e.size()); });
  return copy;
}

void assembleSubnets(benchmark::State &state) {
  const NetData before = network();
  SubAssemblyCache cache;
  for (auto _ : state) {
    state.PauseTiming();
    NetData net = walkedCopy(before);
    state.ResumeTiming();
    SubAssembler assembler(net, folder(), cache);
    benchmark::DoNotOptimize(assembler.createElesOfAssembledSubnets().assembled);
    state.counters["elements"] = static_cast<double>(net.nodes().size() + net.edges().size()) - 3.0 * Subnets;
    state.PauseTiming();
    net.clear();
    state.ResumeTiming();
  }
  state.counters["templates read"] = cache.folder(folder())->geometry.size();
}
BENCHMARK(assembleSubnets)->Unit(benchmark::kMillisecond)->Iterations(50);

/// The baseline: the same elements added as they are.
void addElements(benchmark::State &state) {
  const NetData before = network();
  NetData after = before;
  SubAssembler(after, folder()).createElesOfAssembledSubnets();
  std::vector<element> created;
  for (const elements *collection : {&after.nodes(), &after.edges()}) {
    for (const elements::Entry &entry : *collection) {
      if (entry.value.contains(QStringLiteral("refEle")))
        created.push_back(entry.value);
    }
  }
  for (auto _ : state) {
    state.PauseTiming();
    NetData net = walkedCopy(before);
    state.ResumeTiming();
    for (const element &e : created)
      net.addElement(e);
    state.counters["elements"] = static_cast<double>(created.size());
    state.PauseTiming();
    net.clear();
    state.ResumeTiming();
  }
}
BENCHMARK(addElements)->Unit(benchmark::kMillisecond)->Iterations(50);

} // namespace
