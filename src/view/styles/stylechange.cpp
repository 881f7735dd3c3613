#include "styles/stylechange.h"

#include <drawing/drawfunctions.h>
#include <drawing/drawnstyle.h>

#include <QStringList>

#include <tuple>

namespace {

using S = PlotSettings;

QString titleOf(Aspect aspect) {
  switch (aspect) {
  case Aspect::EdgeColor:
    return StyleChange::tr("edge colour");
  case Aspect::EdgeWidth:
    return StyleChange::tr("edge width");
  case Aspect::NodeColor:
    return StyleChange::tr("node colour");
  case Aspect::NodeSize:
    break;
  }
  return StyleChange::tr("node size");
}

QString functionText(Aspect aspect, const S::Function &before, const S::Function &after, const NetData *net) {
  if (before.name != after.name) {
    const bool isPlain = net == nullptr || after.name == S::fixedSize();
    const QString title = isPlain ? after.name : DrawFunction::find(after.name, *net).title;
    return StyleChange::tr("%1 %2").arg(titleOf(aspect), title.section(QStringLiteral(" ["), 0, 0));
  }
  if (before.minimum != after.minimum || before.maximum != after.maximum)
    return StyleChange::tr("bounds of %1").arg(titleOf(aspect));
  return titleOf(aspect);
}

auto classes(const S &s) {
  return std::tie(s.colorClasses, s.classMethod, s.classBreaks, s.classColors, s.classLabels);
}

auto ramp(const S &s) {
  return std::tie(s.colorRamp, s.firstColor, s.lastColor, s.saturation, s.lightness, s.logFactor);
}

auto sizes(const S &s) {
  return std::tie(s.nodeMag, s.edgeMag, s.edgeConst, s.labelMargin, s.labelMag, s.arrowMag, s.symMag);
}

auto legend(const S &s) {
  return std::tie(s.showsLegend, s.legendCorner, s.colorScalePos, s.legendPos);
}

/// The parts of the settings that differ, each by a word.
QStringList parts(const S &before, const S &after, const NetData *net) {
  QStringList found;
  for (const Aspect aspect : AllAspects) {
    if (!(before.functions[aspect] == after.functions[aspect]))
      found.append(functionText(aspect, before.functions[aspect], after.functions[aspect], net));
  }
  const auto add = [&](bool isSame, const QString &text) {
    if (!isSame)
      found.append(text);
  };
  add(ramp(before) == ramp(after), StyleChange::tr("colours"));
  add(classes(before) == classes(after), StyleChange::tr("classes"));
  add(sizes(before) == sizes(after), StyleChange::tr("sizes"));
  add(before.label_mode == after.label_mode, StyleChange::tr("labels"));
  add(legend(before) == legend(after), StyleChange::tr("legend"));
  add(before.quantileBounds == after.quantileBounds, StyleChange::tr("open bounds"));
  return found;
}

} // namespace

QString StyleChange::text(const DrawnStyle &before, const DrawnStyle &after, const NetData *net) {
  constexpr int Most = 2; // that a menu has room for
  QStringList found = parts(before.settings, after.settings, net);
  if (before.labels != after.labels)
    found.append(tr("label table"));
  if (found.isEmpty() || found.size() > Most)
    return tr("drawing settings");
  return found.join(tr(", "));
}
