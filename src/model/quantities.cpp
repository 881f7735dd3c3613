#include <base/settingstable.h>
#include <model/quantities.h>

#include <algorithm>

const std::vector<Quantities::Quantity> &Quantities::all() {
  static const std::vector<Quantity> known = [] {
    const QLatin1String KeyBegin("unit: ");
    std::vector<Quantity> found;
    for (const SettingsTable::Row &row : SettingsTable::Rows) {
      const QString key = QString::fromLatin1(row.key);
      if (key.startsWith(KeyBegin))
        found.push_back(
            {key.mid(KeyBegin.size()), key, QString::fromLatin1(row.options).split(QLatin1Char(','), Qt::SkipEmptyParts)});
    }
    return found;
  }();
  return known;
}

const Quantities::Quantity *Quantities::find(const QString &name) {
  const auto found = std::find_if(all().begin(), all().end(), [&name](const Quantity &one) { return one.name == name; });
  return found == all().end() ? nullptr : &*found;
}

bool Quantities::isDifference(const QString &name) {
  return name.endsWith(QLatin1String("difference"));
}
