#pragma once

#include <QIcon>

/// An icon out of a file of vectors, drawn in the colour of the text around it, so that it is legible on light and dark
/// ground, and in any size. Read when it is first painted.
QIcon paletteIcon(const QString &path);
