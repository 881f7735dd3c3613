#include "elementtable/columnfigures.h"

#include <limits>

const std::vector<ColumnFigures::Kind> &ColumnFigures::kinds() {
  static const std::vector<Kind> all{Count, Sum, Mean, Smallest, Largest};
  return all;
}

QString ColumnFigures::title(Kind kind) {
  switch (kind) {
  case Count:
    return tr("count");
  case Sum:
    return tr("sum");
  case Mean:
    return tr("mean");
  case Smallest:
    return tr("min");
  case Largest:
    return tr("max");
  }
  return QString();
}

double ColumnFigures::value(Kind kind) const {
  if (kind == Count)
    return static_cast<double>(m_count);
  if (kind == Sum)
    return static_cast<double>(m_sum);
  if (m_count == 0)
    return std::numeric_limits<double>::quiet_NaN();
  if (kind == Mean)
    return static_cast<double>(m_sum / static_cast<long double>(m_count));
  return kind == Smallest ? m_smallest : m_largest;
}
