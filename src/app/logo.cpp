#include "logo.h"

QIcon productLogo() {
  Q_INIT_RESOURCE(app); // a static library loses its resources without it
  return QIcon(QStringLiteral(":/icons/nivra.svg"));
}
