#include <model/netmetadata.h>
#include <view/drawfunctions.h>

#include <QHash>

#include <algorithm>

namespace {

/// Whether the property tells elements of the collection apart, judged by the first ones that have it.
bool varies(const NetData &net, const elements &collection, const QString &property) {
  constexpr int Enough = 2000;
  const PropertyKey key = PropertyKey::find(property);
  if (key.isNull())
    return false;
  double first = NetData::NoValue;
  int asked = 0;
  for (const elements::Entry &entry : collection) {
    const double value = net.value(entry.value, key);
    if (value == NetData::NoValue)
      continue;
    if (first == NetData::NoValue)
      first = value;
    else if (value != first)
      return true;
    if (++asked > Enough)
      break;
  }
  return false;
}

QString firstThatVaries(const NetData &net, const elements &collection, std::initializer_list<const char *> properties) {
  for (const char *property : properties) {
    QString name = QString::fromLatin1(property);
    if (varies(net, collection, name))
      return name;
  }
  return QString();
}

} // namespace

QString DrawFunction::propertyName(const QString &function) {
  static const QHash<QString, QString> properties{
      {QStringLiteral("connectivity"), QStringLiteral("connectivity")},
      {QStringLiteral("accum. length"), QStringLiteral("acclength")},
      {QStringLiteral("mass flow"), QStringLiteral("m")},
      {QStringLiteral("roughness"), QStringLiteral("roughness")},
      {QStringLiteral("demand"), QStringLiteral("qset")},
      {QStringLiteral("volume flow"), QStringLiteral("q")},
      {QStringLiteral("height"), QStringLiteral("height")},
      {QStringLiteral("input temperature"), QStringLiteral("tin")},
      {QStringLiteral("temperature"), QStringLiteral("t")},
      {QStringLiteral("input pressure"), QStringLiteral("pin")},
      {QStringLiteral("pressure"), QStringLiteral("p")},
      {QStringLiteral("temperature diff"), QStringLiteral("dt")},
      {QStringLiteral("pressure diff"), QStringLiteral("dp")},
      {QStringLiteral("pipe length"), QStringLiteral("length")},
      {QStringLiteral("pipe diameter"), QStringLiteral("diameter")},
  };
  return properties.value(function, function);
}

DrawFunction DrawFunction::find(const QString &function, const NetData &net) {
  const QString name = propertyName(function);
  DrawFunction found;
  found.property = PropertyKey::find(name);
  found.title = function;
  if (name.compare(QLatin1String("connectivity"), Qt::CaseInsensitive) == 0)
    found.computed = Computed::Connectivity;
  else if (name.compare(QLatin1String("acclength"), Qt::CaseInsensitive) == 0)
    found.computed = Computed::AccumulatedLength;
  const NetMetaData *metaData = net.metaData();
  found.isOfNodes = metaData->nodeFunctions().contains(name, Qt::CaseInsensitive);
  const NetMetaData::Attribute *attribute = metaData->anyAttribute(name);
  if (attribute == nullptr)
    return found;
  found.title = attribute->longName;
  const auto conversion = Units::conversion(attribute->storedUnit, attribute->displayUnit);
  if (conversion)
    found.toDisplay = *conversion;
  const QString unit = conversion ? attribute->displayUnit : attribute->storedUnit;
  if (!unit.isEmpty())
    found.title += QStringLiteral(" [") + Units::written(unit) + QLatin1Char(']');
  return found;
}

void chooseDefaults(PlotSettings &settings, const NetData &net) {
  const QString ofNodes = firstThatVaries(net, net.nodes(), {"p", "height"});
  const QString ofEdges = firstThatVaries(net, net.edges(), {"q", "m", "diameter", "length"});
  const QString width = firstThatVaries(net, net.edges(), {"diameter", "q", "m"});
  settings.colorFunc = ofNodes == QLatin1String("p") || ofEdges.isEmpty() ? ofNodes : ofEdges;
  settings.nodeColorFunc = ofNodes;
  settings.widthFunc = width;
  constexpr int BottomLeft = 2;
  settings.legendPos = settings.colorFunc.isEmpty() ? 0 : BottomLeft;
  // High values warm, as people expect of pressures; a darker ramp keeps yellow and cyan readable on white.
  constexpr int Blue = 240;
  constexpr int Darker = 215;
  settings.firstColor = Blue;
  settings.lastColor = 0;
  settings.lightness = Darker;
  constexpr int Dense = 4; // px: people want to see many labels, and these have a ground of their own
  settings.labelMargin = Dense;
}
