#include "metadata/metadatamodel.h"

#include <model/elementtypes.h>
#include <model/titles.h>
#include <tools/plaintip.h>

MetaDataModel::MetaDataModel(QObject *parent)
    : MetaDataGroups({tr("ShortNames"), tr("LongNames"), tr("Description (Attribute.csv)")}, parent) {}

void MetaDataModel::set(const NetMetaData &metaData) {
  beginResetModel();
  m_groups = {{tr("ElementTypes"), types()},
              {tr("NodeFunctions"), functions(metaData, metaData.nodeFunctions())},
              {tr("EdgeFunctions"), functions(metaData, metaData.edgeFunctions())},
              {tr("GeomParms"), properties(metaData, QStringLiteral("geometry"))},
              {tr("ScenParms"), properties(metaData, QStringLiteral("scenario"))},
              {tr("ResultParms"), properties(metaData, QStringLiteral("results"))},
              {tr("GasParms"), properties(metaData, QStringLiteral("gas"))},
              {tr("VisParms"), properties(metaData, QString())}};
  endResetModel();
}

QVariant MetaDataModel::groupData(int group, int column, int role) const {
  if (role != Qt::DisplayRole || column != ShortNameColumn)
    return QVariant();
  return QStringLiteral("%1 (%2)").arg(at(group).name).arg(entryCount(group));
}

QVariant MetaDataModel::entryData(int group, int entry, int column, int role) const {
  const Entry &shown = at(group, entry);
  if (role == Qt::ToolTipRole && column == DescriptionColumn)
    return PlainTip::of(shown.description);
  if (role != Qt::DisplayRole)
    return QVariant();
  return column == ShortNameColumn ? shown.shortName : column == LongNameColumn ? shown.longName : shown.description;
}

std::vector<MetaDataModel::Entry> MetaDataModel::types() {
  std::vector<Entry> entries;
  for (const ElementType &type : ElementTypes::all())
    entries.push_back({type.code, Titles::of(type), Titles::ofSeveral(type)});
  return entries;
}

std::vector<MetaDataModel::Entry> MetaDataModel::functions(const NetMetaData &metaData, const QStringList &names) {
  std::vector<Entry> entries;
  for (const QString &name : names) {
    const NetMetaData::Attribute *attribute = metaData.anyAttribute(name);
    entries.push_back({name, attribute == nullptr ? QString() : Titles::of(*attribute),
                       attribute == nullptr ? QString() : Titles::description(*attribute)});
  }
  return entries;
}

/// Those of a group, or without one those that say how an element is drawn; each name once.
std::vector<MetaDataModel::Entry> MetaDataModel::properties(const NetMetaData &metaData, const QString &group) {
  std::vector<Entry> entries;
  QSet<QString> known;
  for (const NetMetaData::Attribute &attribute : metaData.attributes()) {
    const bool isOfDrawing = attribute.category == QLatin1String("drawing") && attribute.group != QLatin1String("hidden");
    const bool isWanted = group.isEmpty() ? isOfDrawing : attribute.group == group && !isOfDrawing;
    if (!isWanted || known.contains(attribute.property))
      continue;
    known.insert(attribute.property);
    entries.push_back({attribute.property, Titles::of(attribute), Titles::description(attribute)});
  }
  return entries;
}
