#include <model/displayunits.h>
#include <model/netmetadata.h>
#include <model/propertytext.h>

#include <scenarioset/scenarioset.h>
#include <scenarioset/settable.h>

namespace {

using Kind = SetStatistic::Kind;

QString numberText(double number) {
  constexpr int Digits = 12;
  return PropertyText::ofNumber(number, Digits).toString();
}

} // namespace

SetTable SetTable::of(const ScenarioSet &set, const NetMetaData &metaData) {
  SetTable table;
  table.headers =
      QStringList{QStringLiteral("name"), QStringLiteral("type"), QStringLiteral("property"), QStringLiteral("unit")};
  for (const Kind kind : SetStatistic::All) {
    if (!SetStatistic::isScenario(kind))
      table.valueColumns.append(table.headers.size());
    table.headers.append(SetStatistic::titleInFiles(kind));
  }
  const std::vector<Index> columns = set.sortedColumns();
  table.rows.reserve(columns.size());
  for (const Index column : columns) {
    const SetFigures figures = set.figures(column);
    if (figures.count == 0)
      continue;
    const DisplayUnits::Shown shown =
        DisplayUnits::of(metaData.attribute(set.elementType(column), set.propertyName(column)));
    QStringList row{set.elementName(column), set.elementType(column), set.propertyName(column), shown.unit};
    for (const Kind kind : SetStatistic::All) {
      const double number = SetStatistic::of(figures, kind);
      if (kind == Kind::Count)
        row.append(QString::number(figures.count));
      else if (SetStatistic::isScenario(kind))
        row.append(set.scenarioName(kind == Kind::MinimumAt ? figures.minimumAt : figures.maximumAt));
      else if (SetStatistic::isDifference(kind))
        row.append(numberText(shown.toDisplay(number) - shown.toDisplay(0.0)));
      else
        row.append(numberText(shown.toDisplay(number)));
    }
    table.rows.push_back(row);
  }
  return table;
}
