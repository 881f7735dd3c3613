#include <drawing/drawfunctions.h>
#include <drawing/functionchange.h>

#include <QLocale>

namespace {

QString keyOf(const QString &function) {
  return DrawFunction::propertyName(function.trimmed()).toLower();
}

QString written(double bound, double open, const DrawFunction &function) {
  return bound == open ? QString() : QString::number(function.toDisplay(bound), 'g', QLocale::FloatingPointShortest);
}

double stored(const QString &text, double open, const Units::Linear &toShown, const DrawFunction &function) {
  bool isOne = false;
  const double number = text.trimmed().toDouble(&isOne);
  return isOne ? function.toDisplay.inverse(toShown(number)) : open;
}

} // namespace

void changeFunction(PlotSettings &settings, Aspect aspect, const QString &name, const NetData &net) {
  using S = PlotSettings;
  S::Function &function = settings.functions[aspect];
  if (aspect == Aspect::EdgeColor && function.name != name && settings.classMethod == S::ownClasses())
    settings.colorClasses = 0;
  const DrawFunction before = DrawFunction::find(function.name, net);
  const bool isOpen = function.minimum == S::OpenMinimum && function.maximum == S::OpenMaximum;
  if (isOpen)
    function.typed.remove(keyOf(function.name));
  else if (!function.typed.contains(keyOf(function.name))) // bounds out of a file
    function.typed.insert(keyOf(function.name), {written(function.minimum, S::OpenMinimum, before),
                                                 written(function.maximum, S::OpenMaximum, before), before.unit});
  const DrawFunction after = DrawFunction::find(name, net);
  const TypedBounds typed = function.typed.value(keyOf(name));
  const auto conversion =
      typed.unit == after.unit ? std::make_optional(Units::Linear()) : Units::conversion(typed.unit, after.unit);
  function.name = name;
  function.minimum = conversion ? stored(typed.minimum, S::OpenMinimum, *conversion, after) : S::OpenMinimum;
  function.maximum = conversion ? stored(typed.maximum, S::OpenMaximum, *conversion, after) : S::OpenMaximum;
}
