#pragma once

#include <drawing/label.h>
#include <drawing/netgeometry.h>

/// Something that wants a label.
struct LabelWish {
  LabelCandidate candidate;
  QLineF position;     ///< of the element, in plot coordinates; both ends are its middle unless it is a line
  int rank = 0;        ///< lower is more important
  double weight = 0.0; ///< larger is more important among those of one rank
  QString name;        ///< what it says in place of its contents
};

/// One placement of labels: the more important come before others, and a label that stood somewhere stays there while the
/// scale is the same.
class LabelPass {
public:
  struct Result {
    std::vector<Label> labels;
    std::vector<NetGeometry::Item> unplaced; ///< whose label found no room
  };

  /// \param canvas px
  /// \param margin between labels, px
  LabelPass(const NetGeometry &geometry, const LabelContents &contents, const QRectF &canvas, double margin);

  /// \param before the labels that stand, empty when the scale is another
  Result run(std::vector<LabelWish> wishes, const std::vector<Label> &before);
  /// What labels keep clear of, px.
  void addObstacle(const QRectF &area) { m_placement.addObstacle(area); }
  void addLine(const QLineF &line, double width) { m_placement.addLine(line, width); }

private:
  bool makeLabel(LabelWish &wish, Label &label, LabelText &text) const;
  static void layOut(Label &label, const LabelText &text);

  const NetGeometry &m_geometry;
  const LabelContents &m_contents;
  LabelPlacement m_placement;
};
