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
#include <mpParser.h>

namespace {

constexpr int Hundred = 100000;

NetData &network() {
  static auto *net = [] {
    auto *read = new NetData; // never destroyed: it is as large as the benchmarks are short
    NivraReader(*read).readGeomJsn(Measure::network(Hundred), {});
    return read;
  }();
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

/// All elements with twenty properties each, as the dock shows them first; then what people do with them. The first time a
/// column is sorted or filtered it is read.
std::vector<PropertyKey> twentyColumns() {
  constexpr std::size_t Twenty = 20;
  std::vector<PropertyKey> columns;
  QStringList types;
  const PropertyCensus census(network());
  for (const PropertyCensus::Type &type : census.types())
    types.append(type.code);
  for (const PropertyCensus::Property &property : census.properties(types))
    columns.push_back(property.key);
  columns.resize(std::min(columns.size(), Twenty));
  return columns;
}

QStringList allTypes() {
  QStringList types;
  for (const PropertyCensus::Type &type : PropertyCensus(network()).types())
    types.append(type.code);
  return types;
}

void elementTableOpens(benchmark::State &state) {
  const std::vector<PropertyKey> columns = twentyColumns();
  const QStringList types = allTypes();
  for (auto _ : state) {
    ElementTableModel model(network());
    ElementTableView view;
    view.setTable(&model);
    model.show(types, columns);
    view.show();
    QApplication::processEvents();
    state.counters["rows"] = model.rowCount();
  }
}
BENCHMARK(elementTableOpens)->Unit(benchmark::kMillisecond)->Iterations(3);

/// The argument says whether the column is sorted for the first time.
void elementTableSorts(benchmark::State &state) {
  const std::vector<PropertyKey> columns = twentyColumns();
  ElementTableModel model(network());
  ElementTableView view;
  view.setTable(&model);
  view.show();
  const bool isFirst = state.range(0) == 1;
  for (auto _ : state) {
    state.PauseTiming();
    if (isFirst)
      model.show(allTypes(), columns);
    else
      model.sort(0);
    state.ResumeTiming();
    model.sort(model.columnCount() - 1);
    QApplication::processEvents();
  }
}
BENCHMARK(elementTableSorts)->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond)->Iterations(3);

/// A range of numbers and a part of the name.
void elementTableFilters(benchmark::State &state) {
  ElementTableModel model(network());
  ElementTableView view;
  view.setTable(&model);
  view.show();
  model.show(allTypes(), twentyColumns());
  for (auto _ : state) {
    model.setFilters({{QStringLiteral("x"), QStringLiteral(">100")}, {QStringLiteral("name"), QStringLiteral("7")}});
    QApplication::processEvents();
    state.counters["rows"] = model.rowCount();
    model.setFilters({});
  }
}
BENCHMARK(elementTableFilters)->Unit(benchmark::kMillisecond)->Iterations(3);

void elementTableGroups(benchmark::State &state) {
  ElementTableModel model(network());
  ElementTableView view;
  view.setTable(&model);
  view.show();
  model.show(allTypes(), twentyColumns());
  for (auto _ : state) {
    model.groupBy(ElementTableModel::Grouping::Property, model.columns().back().name());
    QApplication::processEvents();
    state.counters["rows"] = model.rowCount();
    model.groupBy(ElementTableModel::Grouping::None);
  }
}
BENCHMARK(elementTableGroups)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace
