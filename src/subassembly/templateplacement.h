#pragma once

#include <QPointF>
#include <QString>

#include <vector>

/// How a template is brought between the pins of a subnet: scaled, turned and moved.
class TemplatePlacement {
public:
  /// \param from where the pins of the template are
  /// \param width of the subnet, the distance of its first two pins; 0 when it has fewer
  /// \param rotation of the subnet in degrees, counterclockwise
  /// \param center of the subnet
  TemplatePlacement(const std::vector<QPointF> &from, double width, double rotation, const QPointF &center);

  /// From the template to the network.
  QPointF map(const QPointF &point) const;

  /// The mean of some points; the origin for none.
  static QPointF mean(const std::vector<QPointF> &points);
  /// The direction from one pin to another in degrees.
  static double rotation(const QPointF &first, const QPointF &second);

private:
  QPointF m_from;
  QPointF m_center;
  double m_scale = 1.0;
  double m_cosine = 1.0;
  double m_sine = 0.0;
};
