#pragma once

#include <paper/pagesetup.h>

#include <QFont>
#include <QPainter>

#include <functional>
#include <optional>
#include <vector>

/// The font of all texts of a page.
inline QFont pageFont(int units, bool isBold = false) {
  QFont font;
  font.setPixelSize(units);
  font.setBold(isBold);
  return font;
}

/// Where the drawing comes from.
struct PageFacts {
  Q_DECLARE_TR_FUNCTIONS(PageFacts)
public:
  QString caseName;
  QString scenario;  ///< empty for none
  QString subject{}; ///< what the page is about, where it is not the whole case

  /// Case, scenario and the date of today.
  QString line() const;
};

/// What stands above and below the drawing of a page; plain texts.
struct PageText {
  QString title;
  QString facts; ///< case, scenario, date
  QString comment;
};

/// A part of the legend, so many units high and PageContent::LegendWidth wide.
struct PaperLegendPart {
  double height = 0.0;
  std::function<void(QPainter &painter)> paint; ///< with the origin at its upper left corner
};

/// What the lengths of a drawing mean.
struct PaperScale {
  double lengthOfUnit = 0.0;     ///< what one unit of the page shows: in metres, or in units of the drawing
  bool isMetres = false;         ///< otherwise nothing is known but the drawing's own units
  std::optional<double> north{}; ///< its direction, degrees clockwise from upwards; nothing where it is not known
};

/// What a page shows. Everything is measured in units: what is a pixel on the screen, PageSetup::unit() wide on the paper.
class PageContent {
public:
  static constexpr double LegendWidth = 190.0;

  PageContent() = default;
  virtual ~PageContent() = default;
  PageContent(const PageContent &) = delete;
  PageContent &operator=(const PageContent &) = delete;

  /// What the page says unless a person says otherwise.
  virtual PageText text() const = 0;
  /// Whether there are an area, labels and a selection to choose.
  virtual bool isMap() const { return false; }

  enum class Detail {
    Draft, ///< enough for legend() and scale()
    Whole
  };
  /// Makes ready the drawing for a frame of this size; the rest is asked for afterwards.
  virtual void layOut(const QSizeF &frame, const PageSetup &setup, Detail detail) = 0;
  virtual std::vector<PaperLegendPart> legend() const { return {}; }
  virtual std::optional<PaperScale> scale() const { return std::nullopt; }
  /// With the origin at the upper left corner of the frame. It may paint a little beyond the frame.
  virtual void paint(QPainter &painter) const = 0;
};
