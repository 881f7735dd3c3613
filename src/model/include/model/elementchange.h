#pragma once

#include <model/propertykey.h>

#include <QMetaType>
#include <QStringList>

/// Elements of a network have another value of a property, or none any more.
struct ElementChange {
  QStringList elements; ///< their names; the network may lack some
  PropertyKey property;
};

Q_DECLARE_METATYPE(ElementChange)
