#pragma once

#include <drawing/aspect.h>
#include <drawing/drawfunctions.h>

#include <qwt_interval.h>

#include <vector>

class NetGeometry;

/// How the values of a draw function are spread over the elements of a network, as they would be drawn without bounds.
struct FunctionFigures {
  static constexpr int Bins = 24;

  DrawFunction function;
  std::size_t count = 0; ///< of elements that have a number
  QwtInterval range;     ///< of the numbers, in the stored unit; invalid without any
  /// How many lie in each part of the range, whose outermost 2 % of values are in the first and the last; all in the middle
  /// where it has no width.
  std::vector<int> bins;

  /// A walk over all elements of the aspect.
  /// \param settings that say which property is the flow
  static FunctionFigures of(const QString &function, Aspect aspect, const NetData &net, const NetGeometry &geometry,
                            PlotSettings settings);
};
