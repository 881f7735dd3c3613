#pragma once

#include "profile/pathprofile.h"
#include "profile/profilecolors.h"

#include <qwt_plot.h>

#include <functional>
#include <vector>

/// Another scenario's values on the same path.
struct ProfileOverlay {
  QString title;
  PathProfile::ValueOf valueOf;
};

/// One quantity over the length of a path: its curve, its bounds, what lies beyond them, and the same of other scenarios.
class ProfilePanel : public QwtPlot {
  Q_OBJECT
public:
  struct Content {
    const PathProfile &profile;
    ProfileQuantity quantity;
    bool hasBounds;
    QString title; ///< of the scenario that is shown, among the names of others; empty to name none
    const std::vector<ProfileOverlay> &overlays;
  };

  ProfilePanel(const Content &content, QWidget *parent = nullptr);

  void setColors(const ProfileColors &colors);
  const ProfileQuantity &quantity() const { return m_quantity; }

private:
  using ColorOf = std::function<QColor(const ProfileColors &)>;

  void addCurve(const PathProfile::Curve &curve, double width, Qt::PenStyle style, const ColorOf &color);
  void addDots(const QVector<QPointF> &points, const ColorOf &color);
  void scale();

  ProfileQuantity m_quantity;
  std::vector<std::function<void(const ProfileColors &)>> m_coloring; ///< of the items
  double m_lowest = 0.0;
  double m_highest = 0.0;
  bool m_hasPoints = false;
};
