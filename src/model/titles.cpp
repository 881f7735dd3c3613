#include <model/titles.h>

#include <QCoreApplication>

namespace {

// For the translator; the words themselves stand in the table of types. Those of properties are taken from "Attribute.csv".
[[maybe_unused]] constexpr const char *Words[] = {
    QT_TRANSLATE_NOOP("ElementType", "node"),       QT_TRANSLATE_NOOP("ElementType", "nodes"),
    QT_TRANSLATE_NOOP("ElementType", "drive"),      QT_TRANSLATE_NOOP("ElementType", "drives"),
    QT_TRANSLATE_NOOP("ElementType", "pipe"),       QT_TRANSLATE_NOOP("ElementType", "pipes"),
    QT_TRANSLATE_NOOP("ElementType", "compressor"), QT_TRANSLATE_NOOP("ElementType", "compressors"),
    QT_TRANSLATE_NOOP("ElementType", "regulator"),  QT_TRANSLATE_NOOP("ElementType", "regulators"),
    QT_TRANSLATE_NOOP("ElementType", "valve"),      QT_TRANSLATE_NOOP("ElementType", "valves"),
    QT_TRANSLATE_NOOP("ElementType", "flap trap"),  QT_TRANSLATE_NOOP("ElementType", "flap traps"),
    QT_TRANSLATE_NOOP("ElementType", "shortcut"),   QT_TRANSLATE_NOOP("ElementType", "shortcuts"),
    QT_TRANSLATE_NOOP("ElementType", "resistor"),   QT_TRANSLATE_NOOP("ElementType", "resistors"),
    QT_TRANSLATE_NOOP("ElementType", "cooler"),     QT_TRANSLATE_NOOP("ElementType", "coolers"),
    QT_TRANSLATE_NOOP("ElementType", "heater"),     QT_TRANSLATE_NOOP("ElementType", "heaters"),
    QT_TRANSLATE_NOOP("ElementType", "subnet"),     QT_TRANSLATE_NOOP("ElementType", "subnets"),
    QT_TRANSLATE_NOOP("ElementType", "tBox"),       QT_TRANSLATE_NOOP("ElementType", "tBoxes")};

QString translated(const char *context, const QString &text) {
  return text.isEmpty() ? text : QCoreApplication::translate(context, text.toUtf8().constData());
}

} // namespace

QString Titles::of(const ElementType &type) {
  return translated("ElementType", type.longName);
}

QString Titles::ofSeveral(const ElementType &type) {
  return translated("ElementType", type.plural);
}

QString Titles::of(const NetMetaData::Attribute &attribute) {
  return translated("Attribute", attribute.longName);
}

QString Titles::description(const NetMetaData::Attribute &attribute) {
  return translated("Attribute", attribute.description);
}
