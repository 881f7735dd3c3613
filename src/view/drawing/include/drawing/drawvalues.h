#pragma once

#include <drawing/drawfunctions.h>
#include <drawing/netgeometry.h>
#include <drawing/plotsettings.h>

#include <qwt_interval.h>

struct ElementValues;
struct ValueRequest;

/// What the draw functions say of the elements of a network.
class DrawValues {
public:
  struct Column {
    DrawFunction function;
    std::vector<double> ofElements; ///< one an element, NetData::NoValue where there is none
    QwtInterval data;               ///< of the values; invalid without any
    QwtInterval open;               ///< where open bounds lie: the data, or these without their outermost 2 %
    /// As drawn: fixed bounds where there are some. Values that differ by less than 0.1 % are one: then it has no width.
    QwtInterval range;

    bool isAny() const { return range.isValid(); }
  };

  /// Reads the values, and on rebuild the geometry as well.
  void read(const NetData &net, const PlotSettings &settings, NetGeometry &geometry, bool rebuild);

  /// What one function says of the elements of an aspect, with open bounds.
  /// \param settings that say which property is the flow
  static Column readOne(const NetData &net, const NetGeometry &geometry, PlotSettings settings, Aspect aspect,
                        const QString &function);

  const Column &of(Aspect aspect) const { return m_columns[aspect]; }
  const std::vector<double> &flow() const { return m_flow; } ///< of edges, positive from the first to the second node
  const std::vector<double> &flowSize() const { return m_flowSize; } ///< the same without sign

private:
  void findFunctions(const NetData &net, const PlotSettings &settings);
  void take(ElementValues values, const NetGeometry &geometry, const PlotSettings &settings);
  ValueRequest request(const PlotSettings &settings) const;
  void compute(const NetGeometry &geometry, const PlotSettings &settings, ElementValues &values) const;
  void setColumns(ElementValues &values, const PlotSettings &settings);

  PerAspect<Column> m_columns{};
  std::vector<double> m_flow;
  std::vector<double> m_flowSize;
};
