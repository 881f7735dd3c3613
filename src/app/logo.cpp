#include "logo.h"

// Q_INIT_RESOURCE must stand outside of any namespace, and a static library loses its resources without it.
static void initLogoResource() {
  Q_INIT_RESOURCE(app);
}

QIcon productLogo() {
  initLogoResource();
  return QIcon(QStringLiteral(":/icons/nivra.svg"));
}
