// Searching and listing, against the bare work that is in it.

#include "boundedparser.h"
#include "elementtable/elementtablemodel.h"
#include "elementtable/elementtableview.h"
#include "elementtable/propertycensus.h"
#include "measure.h"
#include "search/networksearch.h"

#include <formulas/formula.h>
#include <formulas/networkformulas.h>
#include <io/nivrareader.h>
#include <tools/nivrasearch.h>
#include <tools/nivravectable.h>
#include <tools/vectorrows.h>

#include <QApplication>
#include <QComboBox>
#include <QRegularExpression>
#include <QTableView>

#include <benchmark/benchmark.h>
#include <map>
#include <mpParser.h>

namespace {

constexpr int Hundred = 100000;
constexpr int Million = 1000000;

NetData &network(int elements = Hundred) {
  static std::map<int, NetData *> networks; // never destroyed: they are as large as the benchmarks are short
  NetData *&net = networks[elements];
  if (net == nullptr) {
    net = new NetData;
    NivraReader(*net).readGeomJsn(Measure::network(elements), {});
  }
  return *net;
}

/// Nodes, which all have coordinates.
SearchParams allNames(const QString &formula = QString()) {
  return {QString(), QString(), QStringLiteral("^n$"), QStringLiteral("^name$"), false, formula};
}

/// The baseline: the compiled expression as often as there are elements, its value bound anew.
void bareEvaluation(benchmark::State &state) {
  BoundedParser parser(nullptr);
  mup::Value value(0.0);
  parser.DefineVar("v", mup::Variable(&value));
  parser.DefineVar("w", mup::Variable(&value));
  parser.SetExpr("v>1e9 or w>-1e9");
  const auto count = static_cast<int>(network().nodes().size());
  for (auto _ : state) {
    for (int i = 0; i < count; ++i) {
      value = static_cast<mup::float_type>(i % 20);
      benchmark::DoNotOptimize(parser.Eval().GetBool());
    }
  }
}
BENCHMARK(bareEvaluation)->Unit(benchmark::kMillisecond);

void parsedAnew(benchmark::State &state) {
  constexpr int Few = 1000;
  for (auto _ : state) {
    for (int i = 0; i < Few; ++i)
      benchmark::DoNotOptimize(Formula(QStringLiteral("x@ELE>1e9 or y@ELE>-1e9"), network()).references().size());
  }
}
BENCHMARK(parsedAnew)->Unit(benchmark::kMillisecond)->Iterations(1);

void searchByFormula(benchmark::State &state) {
  for (auto _ : state) {
    NetworkSearch search(network(), allNames(QStringLiteral("x@ELE>1e9 or y@ELE>-1e9")));
    state.counters["rows"] = static_cast<double>(search.run().rows.size());
  }
}
BENCHMARK(searchByFormula)->Unit(benchmark::kMillisecond)->Iterations(10);

const QString &pattern() {
  static const QString text = QStringLiteral("7[0-9]*9$");
  return text;
}

/// The baseline: the same texts matched, nothing else.
void bareMatching(benchmark::State &state) {
  std::vector<QString> texts;
  network().forEach(NetData::AllTypes, [&texts](const element &e) {
    for (const Property &property : e)
      texts.push_back(property.value.toString());
  });
  const QRegularExpression expression(pattern(), QRegularExpression::CaseInsensitiveOption);
  for (auto _ : state) {
    int found = 0;
    for (const QString &text : texts)
      found += expression.match(text).hasMatch() ? 1 : 0;
    benchmark::DoNotOptimize(found);
  }
  state.counters["texts"] = static_cast<double>(texts.size());
}
BENCHMARK(bareMatching)->Unit(benchmark::kMillisecond)->Iterations(2);

void searchByPattern(benchmark::State &state) {
  for (auto _ : state) {
    NetworkSearch search(network(), {QString(), pattern(), QString(), QString(), false, QString()});
    state.counters["rows"] = static_cast<double>(search.run().rows.size());
  }
}
BENCHMARK(searchByPattern)->Unit(benchmark::kMillisecond)->Iterations(2);

/// The baseline: the search alone, as the panel asks at first.
void searchAlone(benchmark::State &state) {
  for (auto _ : state) {
    NetworkSearch search(network(), {QString(), QString(), QString(), QStringLiteral("^name$"), false, QString()});
    state.counters["rows"] = static_cast<double>(search.run().rows.size());
  }
}
BENCHMARK(searchAlone)->Unit(benchmark::kMillisecond)->Iterations(3);

/// The panel with as many rows: searched, filled, sorted and shown.
void searchPanel(benchmark::State &state) {
  NivraSearch panel(network());
  panel.show();
  for (auto _ : state) {
    panel.searchWithFormula();
    QApplication::processEvents();
  }
}
BENCHMARK(searchPanel)->Unit(benchmark::kMillisecond)->Iterations(3);

/// The baseline: the rows built, nothing else.
void rowsAlone(benchmark::State &state) {
  VectorRows::Request request;
  request.property = QStringLiteral("name");
  VectorRows rows(network());
  for (auto _ : state)
    state.counters["rows"] = static_cast<double>(rows.build(request).size());
}
BENCHMARK(rowsAlone)->Unit(benchmark::kMillisecond)->Iterations(3);

/// The vector table with a property of all elements: rows built, filled, sorted and shown.
void vectorTable(benchmark::State &state) {
  NivraVecTable table(network());
  table.show();
  auto *properties = table.findChild<QComboBox *>(QStringLiteral("comboBoxProp"));
  properties->setCurrentText(QStringLiteral("name"));
  for (auto _ : state) {
    table.on_pushButtonUpdate_clicked();
    QApplication::processEvents();
  }
  state.counters["rows"] = table.findChild<QTableView *>()->model()->rowCount();
}
BENCHMARK(vectorTable)->Unit(benchmark::kMillisecond)->Iterations(3);

/// So many formulas, each for a tenth of the nodes or pipes, a third of which need the result of the one before.
void formulaFiles(benchmark::State &state) {
  const auto count = static_cast<int>(state.range(0));
  QByteArray lines;
  for (int i = 0; i < count; ++i)
    lines += QStringLiteral("f%1(%2: %3$) = %4 + %5\n")
                 .arg(i % 20)
                 .arg(i % 2 == 0 ? QStringLiteral("n") : QStringLiteral("p"))
                 .arg((i / 20) % 100, 2, 10, QLatin1Char('0'))
                 .arg(i % 2 == 0 ? QStringLiteral("x") : QStringLiteral("length"))
                 .arg(i % 3 == 0 && i % 20 > 1 ? QStringLiteral("f%1").arg(i % 20 - 2) : QString::number(i))
                 .toUtf8();
  const std::vector<FormulaDefinition> definitions =
      FormulaFile::parse(lines, QStringLiteral("bench"), QString()).definitions;
  for (auto _ : state) {
    state.PauseTiming();
    NetData net = network();
    state.ResumeTiming();
    NetworkFormulas formulas(net);
    formulas.setDefinitions(definitions);
    formulas.apply();
    state.counters["evaluations"] = formulas.evaluations();
    state.PauseTiming();
    net.clear();
    state.ResumeTiming();
  }
}
BENCHMARK(formulaFiles)->Unit(benchmark::kMillisecond)->Iterations(1)->Arg(100)->Arg(1000);

/// All elements with twenty properties each, in a view of the size of the dock.
struct TableInView {
  explicit TableInView(int elements)
      : net(network(elements))
      , model(net) {
    constexpr std::size_t Twenty = 20;
    const PropertyCensus census(net);
    for (const PropertyCensus::Type &type : census.types())
      types.append(type.code);
    for (const PropertyCensus::Property &property : census.properties(types))
      columns.push_back(property.key);
    columns.resize(std::min(columns.size(), Twenty));
    view.setTable(&model);
    view.resize(1200, 300);
    view.show();
  }

  NetData &net;
  ElementTableModel model;
  ElementTableView view;
  QStringList types;
  std::vector<PropertyKey> columns;
};

int elementsOf(const benchmark::State &state) {
  return static_cast<int>(state.range(0));
}

/// As they are shown first, in the order of their names.
void elementTableOpens(benchmark::State &state) {
  TableInView table(elementsOf(state));
  for (auto _ : state) {
    table.model.show(table.types, table.columns);
    QApplication::processEvents();
    state.counters["rows"] = table.model.rowCount();
  }
}
BENCHMARK(elementTableOpens)->Arg(Hundred)->Arg(Million)->Unit(benchmark::kMillisecond)->Iterations(3);

/// By a column of numbers that is sorted for the first time.
void elementTableSorts(benchmark::State &state) {
  TableInView table(elementsOf(state));
  for (auto _ : state) {
    state.PauseTiming();
    table.model.show(table.types, {PropertyKey::find("x")});
    state.ResumeTiming();
    table.model.sort(1);
    QApplication::processEvents();
    state.PauseTiming();
    table.model.setSorted(QStringLiteral("name"), Qt::AscendingOrder);
    state.ResumeTiming();
  }
}
BENCHMARK(elementTableSorts)->Arg(Hundred)->Arg(Million)->Unit(benchmark::kMillisecond)->Iterations(3);

/// By a comparison of numbers and a part of the name.
void elementTableFilters(benchmark::State &state) {
  TableInView table(elementsOf(state));
  table.model.show(table.types, table.columns);
  for (auto _ : state) {
    table.model.setFilters({{QStringLiteral("x"), QStringLiteral(">100")}, {QStringLiteral("name"), QStringLiteral("7")}});
    QApplication::processEvents();
    state.counters["rows"] = table.model.rowCount();
    state.PauseTiming();
    table.model.setFilters({});
    state.ResumeTiming();
  }
}
BENCHMARK(elementTableFilters)->Arg(Hundred)->Arg(Million)->Unit(benchmark::kMillisecond)->Iterations(3);

void elementTableGroups(benchmark::State &state) {
  TableInView table(elementsOf(state));
  table.model.show(table.types, table.columns);
  for (auto _ : state) {
    table.model.groupBy(ElementTableModel::Grouping::Property, QStringLiteral("type"));
    QApplication::processEvents();
    state.counters["rows"] = table.model.rowCount();
    state.PauseTiming();
    table.model.groupBy(ElementTableModel::Grouping::None);
    state.ResumeTiming();
  }
}
BENCHMARK(elementTableGroups)->Arg(Hundred)->Arg(Million)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace
