#pragma once

#include <drawing/labelcontents.h>
#include <drawing/labelplacement.h>

#include <QStaticText>

#include <memory>
#include <vector>

class QTextDocument;

/// A label as it is drawn: what it says and where it stands.
struct Label {
  LabelCandidate candidate; ///< as of the view in which it was placed
  LabelSpot spot;
  QLineF position; ///< of the element, in plot coordinates; both ends are its middle unless it is a line
  LabelStyle style;
  std::vector<QStaticText> lines;
  std::shared_ptr<QTextDocument> document; ///< in place of the lines

  /// Space within a label's box around its text, px.
  static QSizeF padding() { return {2.0, 1.0}; }
};
