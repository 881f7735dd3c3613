#pragma once

#include <QIcon>

struct PlotSettings;

/// The colours of edges in a small picture: smooth, or one bar a class.
namespace RampSwatch {

QIcon icon(const PlotSettings &settings);

} // namespace RampSwatch
