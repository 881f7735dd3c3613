#include "styles/builtinstyles.h"

#include <drawing/functionchange.h>
#include <model/netmetadata.h>

#include <algorithm>

namespace {

bool hasNumbers(const QString &property, const DrawFunction::OfNetwork &has) {
  const PropertyKey key = PropertyKey::find(property);
  return !key.isNull() && has.hasNumbers(key);
}

/// The first of these that some element has a number of.
QString firstOf(const std::vector<const char *> &properties, const DrawFunction::OfNetwork &has) {
  const auto found = std::find_if(properties.begin(), properties.end(),
                                  [&has](const char *property) { return hasNumbers(QLatin1String(property), has); });
  return found == properties.end() ? QString() : QString::fromLatin1(*found);
}

/// What the vocabulary of the case calls a result of the quantity.
QString resultOf(const QString &quantity, const NetData &net, const DrawFunction::OfNetwork &has) {
  if (quantity.isEmpty())
    return QString();
  const auto &rows = net.metaData()->attributes();
  const auto found = std::find_if(rows.begin(), rows.end(), [&](const NetMetaData::Attribute &row) {
    return row.quantity == quantity && row.group == QLatin1String("results") && hasNumbers(row.property, has);
  });
  return found == rows.end() ? QString() : found->property;
}

/// Of open bounds: from nothing to somewhat beyond the last break, so that the legend has every class, also where no value
/// comes near the last ones.
void showAllClasses(PlotSettings::Function &function, const DrawFunction &shown, double lastBreak) {
  constexpr double Beyond = 1.1;
  if (function.minimum != PlotSettings::OpenMinimum || function.maximum != PlotSettings::OpenMaximum)
    return;
  function.minimum = shown.toTable.inverse(0.0);
  function.maximum = shown.toTable.inverse(lastBreak * Beyond);
}

} // namespace

const std::vector<BuiltInStyles::Style> &BuiltInStyles::all() {
  static const std::vector<const char *> ByDiameter{"diameter"};
  static constexpr const char *LoadColors = "#7db3d3;#2f6fb5;#e9a93a;#dd5f1c;#c4143c"; // calm up to where it becomes tight
  static const std::vector<Style> styles{
      {"pressure", QT_TR_NOOP("Pressure"), "plasma", "pressure", {"p", "pin", "pout"}, ByDiameter, "", "", false},
      {"flow", QT_TR_NOOP("Flow"), "viridis", "norm volume flow", {"q", "m"}, {"q", "m"}, "", "", true},
      {"velocity", QT_TR_NOOP("Velocity"), "viridis", "velocity", {"v"}, ByDiameter, "", "", true},
      {"load", QT_TR_NOOP("Load"), "plasma", "", {"load"}, ByDiameter, "50;75;90;100", LoadColors, true},
      {"diameter", QT_TR_NOOP("Diameter"), "cividis", "diameter", {"diameter"}, ByDiameter, "", "", true},
      {"temperature", QT_TR_NOOP("Temperature"), "plasma", "temperature", {"t", "tin", "tout"}, ByDiameter, "", "", false},
      {"height", QT_TR_NOOP("Height"), "batlow", "height", {"height"}, ByDiameter, "", "", false},
      {"power", QT_TR_NOOP("Machine power"), "plasma", "", {"power"}, ByDiameter, "", "", true}};
  return styles;
}

const BuiltInStyles::Style *BuiltInStyles::find(const QString &name) {
  const auto found = std::find_if(all().begin(), all().end(), [&name](const Style &style) {
    return name.compare(QLatin1String(style.id), Qt::CaseInsensitive) == 0 ||
           name.compare(titleOf(style), Qt::CaseInsensitive) == 0;
  });
  return found == all().end() ? nullptr : &*found;
}

QString BuiltInStyles::propertyOf(const Style &style, const NetData &net, const DrawFunction::OfNetwork &has) {
  QString named = firstOf(style.properties, has);
  if (!named.isEmpty())
    return named;
  QString load = DrawFunction::load();
  if (load == QLatin1String(style.id) && (has.ofEdges.contains(load) || has.ofNodes.contains(load)))
    return load; // which is computed
  return resultOf(QLatin1String(style.quantity), net, has);
}

QString BuiltInStyles::reasonAgainst(const Style &style) {
  if (DrawFunction::load() == QLatin1String(style.id))
    return tr("No element has a flow or a pressure with bounds.");
  QStringList names;
  for (const char *property : style.properties)
    names.append(QLatin1Char('"') + QLatin1String(property) + QLatin1Char('"'));
  return tr("No element has a number in %1.").arg(names.join(tr(" or ")));
}

std::optional<PlotSettings> BuiltInStyles::laidOver(const PlotSettings &settings, const Style &style, const NetData &net,
                                                    const DrawFunction::OfNetwork &has) {
  const QString property = propertyOf(style, net, has);
  if (property.isEmpty())
    return std::nullopt;
  PlotSettings changed = settings;
  const auto show = [&](Aspect aspect, const QString &name, bool isAbsolute) {
    PlotSettings::Function &function = changed.functions[aspect];
    if (name.isEmpty())
      return;
    changeFunction(changed, aspect, name, net);
    function.isAbsolute = isAbsolute;
    function.isLogarithmic = false;
  };
  show(Aspect::EdgeColor, property, style.isAbsolute);
  show(Aspect::NodeColor, property, style.isAbsolute);
  show(Aspect::EdgeWidth, firstOf(style.widths, has), true);
  show(Aspect::NodeSize, PlotSettings::fixedSize(), changed.functions[Aspect::NodeSize].isAbsolute);
  changed.colorRamp = QLatin1String(style.ramp);
  const QStringList breaks = QString::fromLatin1(style.breaks).split(QLatin1Char(';'), Qt::SkipEmptyParts);
  changed.colorClasses = breaks.isEmpty() ? 0 : breaks.size() + 1;
  if (!breaks.isEmpty()) {
    changed.classMethod = PlotSettings::ownClasses();
    changed.classBreaks = breaks.join(QLatin1Char(';'));
    changed.classColors = QLatin1String(style.colors);
    changed.classLabels.clear();
    for (const Aspect aspect : {Aspect::EdgeColor, Aspect::NodeColor})
      showAllClasses(changed.functions[aspect], DrawFunction::find(property, net), breaks.last().toDouble());
  }
  return changed;
}
