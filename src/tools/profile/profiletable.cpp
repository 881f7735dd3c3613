#include "profile/profiletable.h"

#include <model/elementtypes.h>
#include <model/propertytext.h>

namespace {

struct Column {
  ProfileQuantity quantity;
  PropertyKey property;
};

/// Sums and conversions add digits of their own.
double rounded(double value) {
  constexpr int Digits = 12;
  return parseNumber(formatNumber(value, Digits)).value_or(value);
}

QVariant cell(double value) {
  return value == NetData::NoValue ? QVariant() : QVariant(rounded(value));
}

} // namespace

TableExport profileTable(const PathProfile &profile, const std::vector<ProfileQuantity> &quantities) {
  TableExport table;
  const QString unit = QStringLiteral(" [") + profile.lengthUnit() + QLatin1Char(']');
  table.headers = QStringList{QStringLiteral("from") + unit, QStringLiteral("length") + unit, QStringLiteral("name"),
                              QStringLiteral("type")};
  const int fixed = table.headers.size();
  std::vector<Column> columns;
  for (const ProfileQuantity &quantity : quantities) {
    columns.push_back({quantity, quantity.property});
    table.headers.append(quantity.name);
    for (const PropertyKey bound : {quantity.lower, quantity.upper}) {
      if (!quantity.hasBounds || bound.isNull())
        continue;
      columns.push_back({quantity, bound});
      table.headers.append(bound.name() + quantity.name.mid(quantity.property.name().size()));
    }
  }
  table.rows = toQt(profile.rows().size());
  table.value = [&profile, columns, fixed](int row, int column) -> QVariant {
    const PathProfile::Row &at = profile.rows()[fromQt(row)];
    switch (column) {
    case 0:
      return rounded(at.from);
    case 1:
      return at.isNode ? QVariant() : QVariant(rounded(at.to - at.from));
    case 2:
      return at.name;
    case 3: {
      const ElementType *type = ElementTypes::byCode(at.type);
      return type == nullptr ? at.type : type->longName;
    }
    default: {
      const Column &wanted = columns[fromQt(column - fixed)];
      return cell(profile.value(at, wanted.quantity, wanted.property, PathProfile::stored));
    }
    }
  };
  return table;
}
