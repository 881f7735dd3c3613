#pragma once

#include <QHash>
#include <QString>

#include <map>

/// The bounds of one draw function as a person typed them, in the unit that was shown then. Empty: from the data.
struct TypedBounds {
  QString minimum;
  QString maximum;
  QString unit;

  bool isOpen() const { return minimum.isEmpty() && maximum.isEmpty(); }

  /// By the property behind the function, in lower case.
  using OfFunctions = QHash<QString, TypedBounds>;
  /// For each thing that a function decides (its key in the plot settings, such as "colorFunc"): a function keeps the
  /// bounds of edge colours apart from those of node colours.
  using OfSettings = std::map<QString, OfFunctions>;

  /// The key of a function, whether it goes by its name or by its property.
  static QString key(const QString &function);
  /// PlotSettings::typedBounds: entries joined by ";", in each key|property|minimum|maximum|unit, percent-encoded. What is
  /// no entry is passed over.
  static OfSettings read(const QString &text);
  static QString written(const OfSettings &bounds);
};
