#pragma once

#include <QString>

class NetPlot;

/// Writes the drawing with its colour scale and legend; the suffix gives the format: png, jpg, bmp and tif as pixels, svg,
/// pdf and ps as documents (ps by a tool for it that is installed). The height follows the shape of the plot, which is
/// brought to the width for the picture and back afterwards. The file is written whole or stays as it was; false with the
/// reason when it could not be written. \param width px
bool exportPlot(NetPlot &plot, const QString &path, int width, QString *error = nullptr);
