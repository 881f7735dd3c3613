#include <tools/naturalorder.h>

#include <QCollator>
#include <QLocale>

QCollatorSortKey NaturalOrder::key(const QString &text) {
  static const QCollator collator = [] {
    QCollator made(QLocale(QLocale::English, QLocale::UnitedStates)); // that of the C locale knows no numbers
    made.setNumericMode(true);
    made.setCaseSensitivity(Qt::CaseInsensitive);
    return made;
  }();
  return collator.sortKey(text);
}
