#pragma once

#include <QCoreApplication>
#include <QMarginsF>
#include <QSizeF>
#include <QStringList>

/// How a page is set up: what a person chooses for it, and what is kept for the next page. Lengths in mm.
struct PageSetup {
  Q_DECLARE_TR_FUNCTIONS(PageSetup)
public:
  static constexpr double MillimetersPerInch = 25.4;
  static constexpr double SmallestSide = 50.0;
  static constexpr double LargestSide = 5000.0;
  static constexpr double LargestMargin = 200.0;
  static constexpr int SmallestDpi = 36;
  static constexpr int LargestDpi = 1200;
  static constexpr double SmallestScale = 0.25; ///< below it is 0, "as it suits the paper"
  static constexpr double LargestScale = 10.0;

  enum class Area {
    Window, ///< what the window shows
    Network ///< all of it
  };

  /// A page with the choices of the last one; those of a new user otherwise.
  static PageSetup remembered();
  /// Keeps the choices among the user's own settings; false with the reason.
  bool remember(QString *reason) const;

  /// "A5" to "A0", "Letter" and the paper of the user's own size.
  static const QStringList &papers();
  static QString ownPaper() { return QStringLiteral("own"); }

  QString paper = QStringLiteral("A4");
  bool isLandscape = true;      ///< of no effect on a paper of the user's own size
  QSizeF ownSize{297.0, 210.0}; ///< of ownPaper()
  QMarginsF margins{10.0, 10.0, 10.0, 10.0};
  int dpi = 300;      ///< of pages that are written as pixels
  double scale = 0.0; ///< of texts, lines and symbols against the screen's; 0 to follow the size of the paper
  Area area = Area::Window;
  bool hasHeading = true;
  bool hasLegend = true;
  bool hasScaleBar = true;
  bool hasFrame = true;
  bool hasLabels = true;
  bool marksSelection = true;

  /// Of the paper, the way it lies.
  QSizeF size() const;
  /// Of texts, lines and symbols as they are drawn: a large sheet is looked at from farther away.
  double drawnScale() const;
  /// What one pixel of the screen becomes on the paper.
  double unit() const;
  /// Why there can be no such page; empty when there can.
  QString fault() const;
};
