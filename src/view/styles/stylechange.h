#pragma once

#include <QCoreApplication>

class NetData;
struct DrawnStyle;

/// Names a change of how a network is drawn in a few words, for a menu.
class StyleChange {
  Q_DECLARE_TR_FUNCTIONS(StyleChange)
public:
  /// \param net null for none
  static QString text(const DrawnStyle &before, const DrawnStyle &after, const NetData *net);
};
