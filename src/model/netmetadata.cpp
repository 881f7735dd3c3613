#include <model/elementtypes.h>
#include <model/netmetadata.h>
#include <model/quantities.h>
#include <model/units.h>

#include <QCoreApplication>
#include <QFile>

// A static library's resources register only when something asks for them; outside a namespace, as the macro wants.
static void initResources() {
  Q_INIT_RESOURCE(model);
}

namespace {

enum Field {
  Type,
  Name,
  LongName,
  Group,
  StoredUnit,
  DisplayUnit,
  Category,
  Favourite,
  Description,
  FieldCount,
  Values = FieldCount, // these may be left out
  Quantity,
  MostFields
};

const QString &everyType() {
  static const QString star = QStringLiteral("*");
  return star;
}

bool isGroup(const QString &group) {
  static const QSet<QString> groups{QStringLiteral("geometry"), QStringLiteral("scenario"), QStringLiteral("results"),
                                    QStringLiteral("gas"),      QStringLiteral("extra"),    QStringLiteral("hidden")};
  return groups.contains(group);
}

QString indexKey(const QString &type, const QString &property) {
  return type.toCaseFolded() + QLatin1Char('\n') + property.toCaseFolded();
}

/// Why a row cannot be taken; empty when it can.
QString fault(const NetMetaData::Attribute &row) {
  if (row.type != everyType() && ElementTypes::byCode(row.type) == nullptr)
    return QStringLiteral("unknown element type \"%1\"").arg(row.type);
  if (row.property.isEmpty())
    return QStringLiteral("no property name");
  if (!isGroup(row.group))
    return QStringLiteral("unknown group \"%1\"").arg(row.group);
  for (const QString &unit : {row.storedUnit, row.displayUnit}) {
    if (!unit.isEmpty() && !Units::isKnown(unit))
      return QStringLiteral("unknown unit \"%1\"").arg(unit);
  }
  if (!row.quantity.isEmpty() && Quantities::find(row.quantity) == nullptr)
    return QStringLiteral("unknown quantity \"%1\"").arg(row.quantity);
  return QString();
}

} // namespace

const NetMetaData &NetMetaData::instance() {
  static const NetMetaData metaData = [] {
    initResources();
    NetMetaData data;
    const QString own = QCoreApplication::applicationDirPath() + QStringLiteral("/Attribute.csv");
    QFile file(QFile::exists(own) ? own : QStringLiteral(":/model/Attribute.csv"));
    if (file.open(QIODevice::ReadOnly))
      data.m_findings = data.read(file, file.fileName());
    else
      data.m_findings.push_back({Finding::Severity::Warning, QString(), 0,
                                 QStringLiteral("Cannot read %1: %2").arg(file.fileName(), file.errorString()), QString()});
    return data;
  }();
  return metaData;
}

NetMetaData::NetMetaData() {
  for (const ElementType &type : ElementTypes::all()) {
    switch (type.kind) {
    case ElementKinds::Node:
      m_nodeTypes.insert(type.code);
      break;
    case ElementKinds::Edge:
      m_edgeTypes.insert(type.code);
      break;
    case ElementKinds::TextBox:
      m_textBoxTypes.insert(type.code);
      break;
    case ElementKinds::AssembledSubnet:
      m_subassemblyTypes.insert(type.code);
      break;
    case ElementKinds::Unknown:
      break;
    }
  }
}

Findings NetMetaData::read(QIODevice &device, const QString &fileName) {
  Findings findings;
  const auto found = [&](int line, const QString &text) {
    findings.push_back({Finding::Severity::Warning, fileName, line, text, QString()});
  };
  bool header = true;
  for (int number = 1; !device.atEnd(); ++number) {
    constexpr qint64 LongestLine = 1 << 16;
    const QString line = QString::fromUtf8(device.readLine(LongestLine)).trimmed();
    if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
      continue;
    QStringList fields = line.split(QLatin1Char(';'));
    for (QString &field : fields)
      field = field.trimmed();
    if (header) {
      header = false;
      if (fields.first() == QLatin1String("type"))
        continue;
    }
    if (fields.size() < FieldCount || fields.size() > MostFields) {
      found(number, QStringLiteral("%1 fields instead of %2, line left out").arg(fields.size()).arg(int(FieldCount)));
      continue;
    }
    const QStringList types = fields[Type].split(QLatin1Char(','));
    for (const QString &type : types) {
      const Attribute row{type.trimmed(),        fields[Name],
                          fields[LongName],      fields[Group],
                          fields[StoredUnit],    fields[DisplayUnit],
                          fields[Category],      fields[Favourite] == QLatin1String("1"),
                          fields[Description],   fields.value(Values).split(QLatin1Char(','), Qt::SkipEmptyParts),
                          fields.value(Quantity)};
      const QString reason = m_index.contains(indexKey(row.type, row.property)) ? QStringLiteral("given twice") : fault(row);
      if (reason.isEmpty())
        add(row);
      else
        found(number, QStringLiteral("property \"%1\" of type \"%2\": %3, left out").arg(row.property, row.type, reason));
    }
  }
  return findings;
}

void NetMetaData::add(const Attribute &row) {
  const Index index = toIndex(m_attributes.size());
  m_attributes.push_back(row);
  m_index.insert(indexKey(row.type, row.property), index);
  const QString property = row.property.toCaseFolded();
  const bool isNew = !m_propertyIndex.contains(property); // and so in none of the lists, which may be long
  if (isNew)
    m_propertyIndex.insert(property, index);
  if (row.category != QLatin1String("function"))
    return;
  const bool ofNodes = row.type == everyType() || kindOf(row.type) == ElementKinds::Node;
  // A name that nodes carry is a node function everywhere: an edge takes the mean of its ends.
  if (isNew) {
    (ofNodes ? m_nodeFunctions : m_edgeFunctions).append(row.property);
  } else if (ofNodes) {
    m_edgeFunctions.removeAll(row.property);
    if (!m_nodeFunctions.contains(row.property))
      m_nodeFunctions.append(row.property);
  } else if (!m_nodeFunctions.contains(row.property) && !m_edgeFunctions.contains(row.property)) {
    m_edgeFunctions.append(row.property);
  }
}

ElementKinds::EleType NetMetaData::kindOf(const QString &typeName) const {
  if (m_nodeTypes.contains(typeName))
    return ElementKinds::Node;
  if (m_edgeTypes.contains(typeName))
    return ElementKinds::Edge;
  if (m_textBoxTypes.contains(typeName))
    return ElementKinds::TextBox;
  if (m_subassemblyTypes.contains(typeName))
    return ElementKinds::AssembledSubnet;
  return ElementKinds::Unknown;
}

const NetMetaData::Attribute *NetMetaData::attribute(const QString &typeCode, const QString &property) const {
  for (const QString &type : {typeCode, everyType()}) {
    const auto found = m_index.find(indexKey(type, property));
    if (found != m_index.end())
      return &m_attributes[*found];
  }
  return nullptr;
}

const NetMetaData::Attribute *NetMetaData::anyAttribute(const QString &property) const {
  const auto found = m_propertyIndex.find(property.toCaseFolded());
  return found == m_propertyIndex.end() ? nullptr : &m_attributes[*found];
}
