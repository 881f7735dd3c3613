#include <formulas/formulareference.h>
#include <model/netdata.h>

const element *FormulaReference::start(const NetData &net, const element *current, const FormulaNames *names) const {
  if (elementName.isEmpty())
    return current;
  return net.element(names == nullptr ? elementName : names->element(elementName));
}

QString FormulaReference::written() const {
  QString text = property.name();
  for (auto step = path.rbegin(); step != path.rend(); ++step)
    text += QLatin1Char('@') + step->name();
  return text + QLatin1Char('@') + (elementName.isEmpty() ? QStringLiteral("ELE") : elementName);
}
