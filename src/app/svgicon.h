#pragma once

#include <QIcon>

/// One of the program's own icons, drawn in the colour of the text around it, so that it is legible on light and dark ground
/// and in any size. Read when it is first painted.
QIcon svgIcon(const QString &name);
