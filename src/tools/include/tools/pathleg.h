#pragma once

#include <QString>

/// A piece of a path as somebody else marks it: an edge, and whether it is passed from its first node to its second.
struct PathLeg {
  QString edge;
  bool isForward = true;
};
