#pragma once

#include <drawing/aspect.h>

#include <QHash>
#include <QString>

/// The bounds of one draw function as a person typed them, in the unit that was shown then. Empty: from the data.
struct TypedBounds {
  QString minimum;
  QString maximum;
  QString unit;

  bool isOpen() const { return minimum.isEmpty() && maximum.isEmpty(); }

  /// By the property behind the function, in lower case.
  using OfFunctions = QHash<QString, TypedBounds>;

  /// A function keeps the bounds of edge colours apart from those of node colours. In the text entries are joined by ";", in
  /// each aspect|property|minimum|maximum|unit, percent-encoded. What is no entry is passed over.
  static PerAspect<OfFunctions> read(const QString &text);
  static QString written(const PerAspect<OfFunctions> &bounds);

  /// The aspect as the plot settings write it: "colorFunc", "widthFunc", "nodeColorFunc", "nodeSizeFunc".
  static QString aspectKey(Aspect aspect);

  friend bool operator==(const TypedBounds &a, const TypedBounds &b) {
    return a.minimum == b.minimum && a.maximum == b.maximum && a.unit == b.unit;
  }
};
