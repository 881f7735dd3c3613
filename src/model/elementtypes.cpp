#include <model/elementtypes.h>

#include <algorithm>

namespace {

ElementType row(const char *code, const char *word, const char *longName, ElementKinds::EleType kind) {
  const QString name = QString::fromLatin1(longName);
  return {QString::fromLatin1(code), QString::fromLatin1(word), name, ElementTypes::pluralised(name), kind};
}

} // namespace

const std::vector<ElementType> &ElementTypes::all() {
  static const std::vector<ElementType> rows{
      row("n", "node", "node", ElementKinds::Node),
      row("d", "drive", "drive", ElementKinds::Node),
      row("p", "pipe", "pipe", ElementKinds::Edge),
      row("c", "compressor", "compressor", ElementKinds::Edge),
      row("r", "regulator", "regulator", ElementKinds::Edge),
      row("v", "valve", "valve", ElementKinds::Edge),
      row("f", "flaptrap", "flap trap", ElementKinds::Edge),
      row("s", "shortcut", "shortcut", ElementKinds::Edge),
      row("g", "resistor", "resistor", ElementKinds::Edge),
      row("k", "cooler", "cooler", ElementKinds::Edge),
      row("w", "heater", "heater", ElementKinds::Edge),
      row("sub", "subnet", "subnet", ElementKinds::AssembledSubnet),
      row("SUB", "", "subnet", ElementKinds::AssembledSubnet), // as subnet templates spell it
      row("t", "tbox", "tBox", ElementKinds::TextBox),
  };
  return rows;
}

const ElementType *ElementTypes::byWord(const QString &word) {
  const auto &rows = all();
  const auto found = std::find_if(rows.begin(), rows.end(), [&](const ElementType &type) { return type.word == word; });
  return found == rows.end() || word.isEmpty() ? nullptr : &*found;
}

const ElementType *ElementTypes::byCode(const QString &code) {
  const auto &rows = all();
  const auto found = std::find_if(rows.begin(), rows.end(), [&](const ElementType &type) { return type.code == code; });
  return found == rows.end() ? nullptr : &*found;
}

bool ElementTypes::hasCharacteristics(const QString &code) {
  return code == QLatin1String("c") || code == QLatin1String("d");
}

QString ElementTypes::pluralised(const QString &typeName) {
  QString name = typeName;
  if (name.endsWith(QLatin1Char('y'))) {
    name.chop(1);
    name += QStringLiteral("ie");
  }
  if (name.endsWith(QLatin1Char('x')))
    name += QLatin1Char('e');
  return name + QLatin1Char('s');
}
