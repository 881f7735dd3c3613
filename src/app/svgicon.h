#pragma once

#include <QIcon>

/// One of the program's own icons of commands, in the colours of the palette.
QIcon svgIcon(const QString &name);
