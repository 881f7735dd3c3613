#include "shared/naturalorder.h"
#include "shared/tableexport.h"

#include <base/index.h>
#include <model/names.h>
#include <tools/vectorrows.h>

#include <QTextStream>

#include <algorithm>

QString VectorRows::padded(int number) {
  constexpr int Width = 9;
  return QString::number(number).rightJustified(Width);
}

std::vector<VectorRows::Row> VectorRows::build(const Request &request) {
  m_formula.reset();
  m_display.emplace(*m_net.metaData());
  const CategoryRecord category = request.usesProperty ? CategoryRecord() : request.category;
  const QString value = category.formula.isEmpty() ? category.value : category.formula;
  const bool isFormula = value.contains(QLatin1Char('@'));
  m_name = Pattern(category.name);
  m_type = SearchedTypes(category.type);
  m_properties = SearchedProperties(category.prop);
  m_value = SearchedValues(isFormula ? QString() : value);
  m_allHaveUnits = true;
  std::vector<Row> rows;
  try {
    if (isFormula)
      m_formula.emplace(value, m_net);
  } catch (const FormulaError &) {
    return rows; // it fails for every element
  }
  if (request.onlySelection) {
    QStringList names = m_net.selection().names().values();
    names.sort(Qt::CaseInsensitive);
    for (const QString &name : names) {
      if (const element *e = m_net.element(name))
        addRows(*e, request, rows);
    }
  } else {
    m_net.forEach(NetData::AllTypes, [&](const element &e) { addRows(e, request, rows); });
  }
  return rows;
}

bool VectorRows::result(const element &e, const Property &property, const Request &request, QString &text) {
  text = property.value.toString();
  if (request.usesProperty)
    return true;
  if (!m_formula)
    return m_value.matches(property.value.utf8()) ||
           (m_value.compares() && m_value.holdsFor(m_display->of(e.value(Names::all().type), property.key, property.value)));
  try {
    text = m_formula->evaluate(e).text;
    return true;
  } catch (const FormulaError &error) {
    if (error.kind() == FormulaError::Kind::TooCostly)
      tell(m_told, Finding::Severity::Warning, error.text());
    return false;
  }
}

void VectorRows::addRows(const element &e, const Request &request, std::vector<Row> &rows) {
  const PropertyKey chosen = PropertyKey::find(request.property);
  const QString name = e.value(Names::all().name);
  const QString type = e.value(Names::all().type);
  if (!m_name.matches(name) || !m_type.matches(type))
    return;
  for (const Property &property : e) {
    if (!m_properties.contains(property.key))
      continue;
    if (request.usesProperty && (property.key != chosen || property.key.name() != request.property))
      continue;
    QString text;
    if (!result(e, property, request, text) || (request.onlyNonZero && text.toDouble() == 0.0))
      continue;
    const DisplayValue::Shown shown = m_display->of(type, property.key, property.value);
    m_allHaveUnits = m_allHaveUnits && !shown.unit.isEmpty();
    rows.push_back({name, type, property.key.name(), shown.value, shown.unit, text, padded(toQt(rows.size()) + 1)});
  }
}

void VectorRows::sortByName(std::vector<Row> &rows) {
  std::vector<std::pair<QCollatorSortKey, Row>> keyed;
  keyed.reserve(rows.size());
  for (Row &row : rows) {
    QCollatorSortKey key = NaturalOrder::key(row.name);
    keyed.emplace_back(std::move(key), std::move(row));
  }
  std::stable_sort(keyed.begin(), keyed.end(), [](const auto &a, const auto &b) { return a.first.compare(b.first) < 0; });
  std::transform(keyed.begin(), keyed.end(), rows.begin(), [](auto &entry) { return std::move(entry.second); });
}

void VectorRows::sortNumerically(std::vector<Row> &rows) {
  std::vector<std::pair<double, Row *>> numbers;
  for (Row &row : rows) {
    bool isNumber = false;
    const double number = row.value.toDouble(&isNumber);
    row.numsort = QStringLiteral("x");
    if (isNumber)
      numbers.emplace_back(number, &row);
  }
  std::stable_sort(numbers.begin(), numbers.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
  for (std::size_t i = 0; i < numbers.size(); ++i)
    numbers[i].second->numsort = padded(toQt(i) + 1);
  std::stable_sort(rows.begin(), rows.end(), [](const Row &a, const Row &b) { return a.numsort < b.numsort; });
}

bool VectorRows::write(QIODevice &device, const Exported &table) {
  TableExport written;
  written.headers = table.headers;
  written.headers.replaceInStrings(QStringLiteral("\n"), QStringLiteral(" "));
  written.rows = toQt(table.rows.size());
  written.valueColumns = table.valueColumns;
  written.value = [&table](int row, int column) {
    return QVariant(table.rows[fromQt(row)].at(column));
  };
  QTextStream stream(&device);
  stream.setCodec("UTF-8");
  written.writeRows(stream, TableExport::Format::Quoted, TableExport::Header::Written);
  stream.flush();
  return stream.status() == QTextStream::Ok;
}
