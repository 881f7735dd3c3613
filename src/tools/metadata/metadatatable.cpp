#include <model/elementtypes.h>
#include <tools/metadatatable.h>
#include <tools/plaintip.h>
#include <tools/tablemenu.h>

#include <QSet>

#include <algorithm>

MetaDataTable::MetaDataTable(const NetData &net, QWidget *parent)
    : QTreeWidget(parent)
    , m_net(net) {
  constexpr QSize Size(800, 600);
  setWindowTitle(QStringLiteral("MetaData"));
  setHeaderLabels(
      {QStringLiteral("ShortNames"), QStringLiteral("LongNames"), QStringLiteral("Description (Attribute.csv)")});
  setColumnWidth(0, 160);
  setColumnWidth(1, 180);
  setColumnWidth(2, 200);
  setAlternatingRowColors(true);
  resize(Size);
  setSelectionMode(ExtendedSelection);
  TableMenu::offerCopy(*this);
  fill();
}

MetaDataTable::~MetaDataTable() = default;

void MetaDataTable::fill() {
  clear();
  addGroup(QStringLiteral("ElementTypes"), types());
  addGroup(QStringLiteral("NodeFunctions"), functions(m_net.metaData()->nodeFunctions()));
  addGroup(QStringLiteral("EdgeFunctions"), functions(m_net.metaData()->edgeFunctions()));
  addGroup(QStringLiteral("GeomParms"), properties(QStringLiteral("geometry")));
  addGroup(QStringLiteral("ScenParms"), properties(QStringLiteral("scenario")));
  addGroup(QStringLiteral("ResultParms"), properties(QStringLiteral("results")));
  addGroup(QStringLiteral("GasParms"), properties(QStringLiteral("gas")));
  addGroup(QStringLiteral("VisParms"), properties(QString()));
  setColumnWidth(0, std::max(columnWidth(0), sizeHintForColumn(0))); // of a large font
}

void MetaDataTable::addGroup(const QString &name, const std::vector<Entry> &entries) {
  auto *group = new QTreeWidgetItem(this, {QStringLiteral("%1 (%2)").arg(name).arg(entries.size())});
  for (const Entry &entry : entries) {
    auto *row = new QTreeWidgetItem(group, {entry.shortName, entry.longName, entry.description});
    row->setToolTip(2, PlainTip::of(entry.description));
  }
}

std::vector<MetaDataTable::Entry> MetaDataTable::types() const {
  std::vector<Entry> entries;
  for (const ElementType &type : ElementTypes::all())
    entries.push_back({type.code, type.longName, type.plural});
  return entries;
}

std::vector<MetaDataTable::Entry> MetaDataTable::functions(const QStringList &names) const {
  std::vector<Entry> entries;
  for (const QString &name : names) {
    const NetMetaData::Attribute *attribute = m_net.metaData()->anyAttribute(name);
    entries.push_back({name, attribute == nullptr ? QString() : attribute->longName,
                       attribute == nullptr ? QString() : attribute->description});
  }
  return entries;
}

/// Those of a group, or without one those that say how an element is drawn; each name once.
std::vector<MetaDataTable::Entry> MetaDataTable::properties(const QString &group) const {
  std::vector<Entry> entries;
  QSet<QString> known;
  for (const NetMetaData::Attribute &attribute : m_net.metaData()->attributes()) {
    const bool isOfDrawing = attribute.category == QLatin1String("drawing") && attribute.group != QLatin1String("hidden");
    const bool isWanted = group.isEmpty() ? isOfDrawing : attribute.group == group && !isOfDrawing;
    if (!isWanted || known.contains(attribute.property))
      continue;
    known.insert(attribute.property);
    entries.push_back({attribute.property, attribute.longName, attribute.description});
  }
  return entries;
}
