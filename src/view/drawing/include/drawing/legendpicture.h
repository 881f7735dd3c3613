#pragma once

#include <drawing/legendcontents.h>

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QSizeF>

#include <functional>
#include <memory>
#include <vector>

class LegendBlock;

/// The legend as it is painted, on the screen or into a document: one block below the other on a ground that lets the
/// drawing shine through.
class LegendPicture {
public:
  /// Draws a symbol about a point of the painter, so many pixels across.
  using DrawSymbol =
      std::function<void(QPainter &painter, const LegendContents::Symbol &symbol, const QPointF &center, double size)>;

  /// How much it says; each leaves out what the former does, and more.
  enum class Brevity {
    Whole,
    NoSymbols,
    NoSizes, ///< of lines and nodes
    Narrow,
    OneScale
  };
  static constexpr std::size_t Brevities = 5;

  LegendPicture();
  ~LegendPicture();

  /// Of the texts, by the size of the labels: as large on every screen, picture and page as those are.
  static QFont fontOf(const PlotSettings &settings);

  /// \param ground of the drawing; \param font of the texts, of which the pixel size counts
  void setContents(const LegendContents &contents, const QColor &ground, const QFont &font, const DrawSymbol &drawSymbol);
  /// Takes the blocks that fit into the room, the former before the latter; none where nothing fits.
  void fitInto(const QSizeF &room, Brevity brevity = Brevity::Whole);
  /// Of what fits, px; empty when nothing does.
  QSizeF size() const { return m_size; }
  void draw(QPainter &painter, const QPointF &corner) const;

  /// One block after the other, none broader than this, for who puts them elsewhere. They live as long as the contents; then
  /// fitInto() is of no use.
  struct Part {
    double height = 0.0;                          ///< px
    std::function<void(QPainter &painter)> paint; ///< with the origin at its upper left corner
  };
  std::vector<Part> parts(double width) const;

private:
  struct Block {
    std::unique_ptr<LegendBlock> block;
    Brevity briefest; ///< that still has it
  };
  void add(std::unique_ptr<LegendBlock> block, Brevity briefest);

  std::vector<Block> m_blocks;
  bool m_hasCaption = false;                ///< as the first block
  std::vector<const LegendBlock *> m_shown; ///< blocks that fit
  QSizeF m_size;
  QColor m_ground;
};
