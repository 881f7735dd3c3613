#pragma once

#include <model/propertykey.h>
#include <model/propertytext.h>

#include <QString>

#include <vector>

/// An element as a network file describes it, to be written.
struct NetworkRecord {
  struct Value {
    PropertyKey key;
    PropertyText text;
    bool isNumber = false; ///< then the text is a number as JSON writes them
  };

  QString name;
  QString type; ///< word, empty for values of elements that are described elsewhere
  std::vector<Value> values;

  const Value *find(PropertyKey key) const; ///< the first of it, null when there is none
};

/// A value that a scenario gives to an element, to be written.
struct NetworkSetPoint {
  QString name;
  NetworkRecord::Value value;
  QString unit; ///< empty for the stored one
};
