#pragma once

#include <QColor>

/// How one edge is drawn.
struct EdgeLook {
  QRgb color = 0;
  double width = 1.0;        ///< px
  bool isBackground = false; ///< drawn below the others: carries no value, no flow or is out of use
  bool isHidden = false;     ///< not drawn at all
  int flow = 0;              ///< 1 from the first to the second node, -1 against it, 0 none or unknown
};

/// How one node is drawn.
struct NodeLook {
  QRgb color = 0;
  double size = 4.0;         ///< px, across
  bool isHidden = false;     ///< not drawn at all
  bool isEmphasised = false; ///< to be seen from however far, above the others
};
