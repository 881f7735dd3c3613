#include "svgicon.h"

#include <tools/paletteicon.h>

QIcon svgIcon(const QString &name) {
  return paletteIcon(QStringLiteral(":/icons/commands/%1.svg").arg(name));
}
