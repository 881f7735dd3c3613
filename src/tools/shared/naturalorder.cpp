#include "shared/naturalorder.h"

#include <QCollator>
#include <QLocale>

#include <cmath>

QCollatorSortKey NaturalOrder::key(const QString &text) {
  static const QCollator collator = [] {
    QCollator made(QLocale(QLocale::English, QLocale::UnitedStates)); // that of the C locale knows no numbers
    made.setNumericMode(true);
    made.setCaseSensitivity(Qt::CaseInsensitive);
    return made;
  }();
  return collator.sortKey(text);
}

NaturalOrder::Rank::Rank(const QString &text) {
  bool isNumber = false;
  m_number = text.toDouble(&isNumber);
  if (!isNumber || std::isnan(m_number))
    m_key = key(text);
}

bool NaturalOrder::Rank::operator<(const Rank &other) const {
  if (m_key && other.m_key)
    return m_key->compare(*other.m_key) < 0;
  return !m_key && (other.m_key || m_number < other.m_number);
}
