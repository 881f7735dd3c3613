#include "search/networksearch.h"
#include "search/searchtable.h"
#include "shared/naturalorder.h"

#include <model/elementtypes.h>
#include <model/names.h>
#include <tools/elementquery.h>

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

/// Orders by name; what has the same name keeps its order.
template <typename Row, typename NameOf>
void sortByName(std::vector<Row> &rows, const NameOf &nameOf) {
  std::vector<std::pair<QCollatorSortKey, Row>> keyed;
  keyed.reserve(rows.size());
  for (Row &row : rows) {
    QCollatorSortKey key = NaturalOrder::key(nameOf(row));
    keyed.emplace_back(std::move(key), std::move(row));
  }
  std::stable_sort(keyed.begin(), keyed.end(), [](const auto &a, const auto &b) { return a.first.compare(b.first) < 0; });
  std::transform(keyed.begin(), keyed.end(), rows.begin(), [](auto &entry) { return std::move(entry.second); });
}

/// A code or word means that type and no other ("s" is no subnet); everything else is a pattern.
SearchedTypes typesOf(const QString &text) {
  const ElementType *type = ElementTypes::byCode(text);
  if (type == nullptr)
    type = ElementTypes::byWord(text);
  return SearchedTypes(type == nullptr ? text : QLatin1Char('^') + type->code + QLatin1Char('$'));
}

/// A column of values, and the units in which they stand.
struct Column {
  PropertyKey property;
  QString name;
  QSet<QString> units{};
  bool isThere = false; ///< some element of the network has it
};

struct Line {
  QString name;
  QString type;
  std::vector<DisplayValue::Shown> cells; ///< by column
};

/// The unit stands in the header, or beside the values where these have several.
VectorRows::Exported tabulated(const std::vector<Column> &columns, const std::vector<Line> &lines) {
  VectorRows::Exported table;
  table.headers = QStringList{QStringLiteral("name"), QStringLiteral("type")};
  for (const Column &column : columns) {
    const bool isOfOneUnit = column.units.size() == 1 && !column.units.begin()->isEmpty();
    table.valueColumns.append(table.headers.size());
    table.headers.append(isOfOneUnit ? QStringLiteral("%1 [%2]").arg(column.name, *column.units.begin()) : column.name);
    if (column.units.size() > 1)
      table.headers.append(QStringLiteral("unit of ") + column.name);
  }
  table.rows.reserve(lines.size());
  for (const Line &line : lines) {
    QStringList row{line.name, line.type};
    for (std::size_t i = 0; i < columns.size(); ++i) {
      row.append(line.cells[i].value);
      if (columns[i].units.size() > 1)
        row.append(line.cells[i].unit);
    }
    table.rows.push_back(std::move(row));
  }
  return table;
}

} // namespace

ElementQuery::Found ElementQuery::search(const SearchParams &params) {
  NetworkSearch::Result result = NetworkSearch(m_net, params).run();
  Found found;
  if (result.isStopped) {
    found.error = tr("The search stopped: %1").arg(result.error);
    return found;
  }
  sortByName(result.rows, [](const SearchRow &row) { return row.name; });
  found.table.headers = SearchTable::headers();
  found.table.valueColumns = {found.table.headers.indexOf(QStringLiteral("value"))};
  QSet<QString> known;
  for (SearchRow &row : result.rows) {
    if (!known.contains(row.name)) {
      known.insert(row.name);
      found.names.append(row.name);
    }
    found.table.rows.push_back({row.name, row.type, row.property, row.value, row.unit});
  }
  return found;
}

std::optional<VectorRows::Exported> ElementQuery::properties(const Request &request, QString *reason) {
  std::vector<Column> columns;
  for (const QString &name : request.properties)
    columns.push_back({PropertyKey::find(name), name});
  const SearchedTypes types = typesOf(request.type);
  const QSet<QString> wanted(request.elements.begin(), request.elements.end());
  DisplayValue display(*m_net.metaData());
  std::vector<Line> lines;
  m_net.forEach(NetData::AllTypes, [&](const element &e) {
    Line line{e.value(Names::all().name), e.value(Names::all().type), {}};
    const bool isListed = types.matches(line.type) && (!request.isRestricted || wanted.contains(line.name));
    bool hasValue = false;
    for (Column &column : columns) {
      const PropertyText *text = column.property.isNull() ? nullptr : e.find(column.property);
      column.isThere = column.isThere || text != nullptr;
      hasValue = hasValue || text != nullptr;
      if (!isListed)
        continue;
      line.cells.push_back(text == nullptr ? DisplayValue::Shown() : display.of(line.type, column.property, *text));
      if (text != nullptr)
        column.units.insert(line.cells.back().unit);
    }
    if (isListed && hasValue)
      lines.push_back(std::move(line));
  });
  for (const Column &column : columns) {
    if (!column.isThere) {
      *reason = tr("No element has the property \"%1\".").arg(column.name);
      return std::nullopt;
    }
  }
  sortByName(lines, [](const Line &line) { return line.name; });
  return tabulated(columns, lines);
}

std::optional<ElementQuery::Criteria> ElementQuery::criteria(const QStringList &texts, QString *reason) {
  static const QRegularExpression criterion(QStringLiteral("^([a-z]+)=(.*)$"),
                                            QRegularExpression::DotMatchesEverythingOption);
  Criteria criteria;
  SearchParams &params = criteria.params;
  for (const QString &text : texts) {
    const QRegularExpressionMatch match = criterion.match(text);
    const QString word = match.hasMatch() ? match.captured(1) : QStringLiteral("name");
    const QString pattern = match.hasMatch() ? match.captured(2) : text;
    if (word == QLatin1String("name") || word == QLatin1String("regex")) {
      params.name = pattern;
      params.regex = word == QLatin1String("regex");
    } else if (word == QLatin1String("type")) {
      params.type = pattern;
    } else if (word == QLatin1String("prop")) {
      params.prop = pattern;
      criteria.listsProperties = true;
    } else if (word == QLatin1String("formula") ||
               (word == QLatin1String("value") && pattern.contains(QLatin1String("@ELE")))) {
      params.formula = pattern.trimmed();
    } else if (word == QLatin1String("value")) {
      params.searchString = pattern;
    } else {
      *reason = tr("\"%1\" is no criterion of a search: name, regex, type, prop, value and formula are.").arg(word);
      return std::nullopt;
    }
  }
  if (!criteria.listsProperties && params.searchString.isEmpty())
    params.prop = QStringLiteral("^name$");
  return criteria;
}
