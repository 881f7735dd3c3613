#pragma once

#include <model/netdata.h>

#include <initializer_list>

/// An element drawn as text: pairs of property name and value.
inline element makeElement(std::initializer_list<std::pair<const char *, const char *>> properties) {
  element e;
  for (const auto &[name, value] : properties)
    e.set(QString::fromUtf8(name), QString::fromUtf8(value));
  return e;
}

inline element makeNode(const char *name, const char *x = "0", const char *y = "0") {
  return makeElement({{"name", name}, {"type", "n"}, {"x", x}, {"y", y}});
}

inline element makeEdge(const char *name, const char *node1, const char *node2, const char *type = "p") {
  return makeElement({{"name", name}, {"type", type}, {"node1", node1}, {"node2", node2}});
}
