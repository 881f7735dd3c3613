#include "gasmodel.h"

#include "scenariomodel.h"

#include <base/index.h>
#include <model/names.h>
#include <model/titles.h>
#include <tools/displayvalue.h>
#include <tools/plaintip.h>

namespace {

/// The vocabulary tells of the properties of gases as of those of nodes, which carry them.
const QString VocabularyType = QStringLiteral("n");

bool isNameOrType(PropertyKey key) {
  static const PropertyKey typeWord = PropertyKey::intern("obj_type");
  return key == Names::all().name || key == Names::all().type || key == typeWord;
}

} // namespace

GasModel::GasModel(QObject *parent)
    : QAbstractTableModel(parent) {}

void GasModel::set(const GasTable &gases, const NetMetaData &metaData) {
  beginResetModel();
  m_gases.clear();
  m_rows.clear();
  std::map<QString, PropertyKey> properties; // by folded name
  for (const auto &[name, gas] : gases) {
    m_gases.append(ScenarioModel::shortened(name));
    for (const Property &property : gas) {
      if (!isNameOrType(property.key))
        properties.try_emplace(property.key.name().toCaseFolded(), property.key);
    }
  }
  DisplayValue display(metaData);
  for (const auto &[folded, key] : properties) {
    const NetMetaData::Attribute *attribute = metaData.attribute(VocabularyType, key.name());
    Row row{attribute == nullptr ? QString() : Titles::of(*attribute), {key.name(), QString()}};
    row.texts[UnitColumn] = Units::written(display.unit(VocabularyType, key));
    for (const auto &[name, gas] : gases) {
      const PropertyText *value = gas.find(key);
      row.texts.append(value == nullptr ? QString()
                                        : ScenarioModel::shortened(display.of(VocabularyType, key, *value).value));
    }
    m_rows.push_back(std::move(row));
  }
  endResetModel();
}

int GasModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : toQt(m_rows.size());
}

int GasModel::columnCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : FirstGasColumn + m_gases.size();
}

QVariant GasModel::data(const QModelIndex &index, int role) const {
  if (!index.isValid())
    return QVariant();
  const Row &row = m_rows[fromQt(index.row())];
  switch (role) {
  case Qt::DisplayRole:
    return row.texts[index.column()];
  case Qt::ToolTipRole:
    return PlainTip::of(index.column() == PropertyColumn ? row.longName : row.texts[index.column()]);
  case FilterRole:
    return (row.texts + m_gases + QStringList{row.longName}).join(QLatin1Char('\n'));
  default:
    return QVariant();
  }
}

QVariant GasModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
    return QVariant();
  if (section < FirstGasColumn)
    return role == Qt::ToolTipRole ? QString() : section == PropertyColumn ? tr("gas property") : tr("unit");
  const QString gas = m_gases.value(section - FirstGasColumn);
  return role == Qt::ToolTipRole ? PlainTip::of(gas) : gas;
}
