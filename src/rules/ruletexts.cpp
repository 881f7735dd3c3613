#include "ruletexts.h"

#include <model/displayformat.h>
#include <model/netdata.h>

namespace {

DisplayUnits::Shown shownOf(const NetData &net, const char *type, const char *property) {
  return DisplayUnits::of(net.metaData()->attribute(QLatin1String(type), QLatin1String(property)));
}

} // namespace

RuleTexts::RuleTexts(const NetData &net)
    : m_flow(shownOf(net, "n", "qset"))
    , m_pressure(shownOf(net, "n", "pset"))
    , m_length(shownOf(net, "p", "length"))
    , m_height(shownOf(net, "n", "height"))
    , m_diameter(shownOf(net, "p", "diameter")) {}

QString RuleTexts::number(double value) {
  constexpr int Digits = 4;
  return DisplayFormat::number(value, Digits);
}

/// A unit such as "1000 m³/h" must not look like more digits.
QString RuleTexts::written(const DisplayUnits::Shown &shown, double value) {
  QString text = DisplayFormat::number(shown.toDisplay(value));
  if (!shown.unit.isEmpty())
    text += (shown.unit.at(0).isDigit() ? QStringLiteral(" × ") : QStringLiteral(" ")) + Units::written(shown.unit);
  return text;
}
