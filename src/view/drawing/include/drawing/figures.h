#pragma once

#include <base/finding.h>
#include <drawing/drawingtheme.h>
#include <drawing/netgeometry.h>

#include <QFont>
#include <QHash>
#include <QImage>
#include <QPainter>

#include <map>

/// Pictures and characters that elements bring to be drawn in place of their symbol: their properties "figure.file",
/// "figure.char", "figure.width" and "figure.height".
class Figures {
public:
  /// What characters are drawn on; pictures stay as they are.
  void setGround(const QColor &ground) { m_theme = DrawingTheme(ground); }
  /// Where relative file names begin.
  void setFolder(const QString &folder) { m_folder = folder; }
  /// Looks up which elements have figures. In place of a file that cannot be read the character is drawn, if there is one,
  /// or the symbol.
  Findings read(const NetGeometry &geometry);
  void clear();

  /// Index of the item's figure, NoIndex when it has none.
  Index find(NetGeometry::Item item) const;
  /// The items with figures among which the records have none.
  template <typename Records>
  std::vector<NetGeometry::Item> itemsBesides(const Records &records) const {
    std::map<NetGeometry::Item, Index> rest = m_indices;
    for (const auto &record : records)
      rest.erase(record.item);
    std::vector<NetGeometry::Item> items;
    items.reserve(rest.size());
    for (const auto &[item, figure] : rest)
      items.push_back(item);
    return items;
  }

  /// What the figure covers about its middle, px.
  /// \param size px, where the figure does not say its own
  QSizeF extent(Index index, double size) const;
  /// The longest side of all figures that say their own size, px.
  double longest() const { return m_longest; }
  void draw(QPainter &painter, Index index, const QPointF &center, double size) const;

private:
  struct Figure {
    QImage picture;
    QString character;
    double width = 0.0; ///< px, 0 when it says nothing
    double height = 0.0;

    bool hasOwnSize() const { return width > 0.0 || height > 0.0; }
    QFont font(double size) const; ///< of the character
  };

  void add(NetGeometry::Item item, const element &source, Findings &findings);
  QImage load(const QString &file, Findings &findings);

  QString m_folder;
  DrawingTheme m_theme;
  std::vector<Figure> m_figures;
  std::map<NetGeometry::Item, Index> m_indices;
  QHash<QString, QImage> m_pictures; ///< by path
  double m_longest = 0.0;
};
