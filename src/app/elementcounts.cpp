#include "elementcounts.h"

#include <model/elementtypes.h>
#include <model/names.h>
#include <model/netdata.h>
#include <model/titles.h>

#include <QHash>
#include <QStringList>

QString ElementCounts::of(NetData &net) {
  QHash<QString, int> byTitle; // subnets have two codes
  net.forEach(NetData::AllTypes, [&byTitle](const element &e) {
    const ElementType *type = ElementTypes::byCode(e.value(Names::all().type));
    if (type != nullptr)
      ++byTitle[type->plural];
  });
  QStringList counts;
  for (const ElementType &type : ElementTypes::all()) {
    const int count = byTitle.take(type.plural);
    if (count > 0)
      counts.append(QStringLiteral("%1 %2").arg(count).arg(count == 1 ? Titles::of(type) : Titles::ofSeveral(type)));
  }
  return counts.join(QStringLiteral(", "));
}
