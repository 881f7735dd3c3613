#pragma once

#include "profile/profilepanel.h"

#include <tools/symbolpainter.h>

#include <QPoint>
#include <QRectF>
#include <QWidget>
#include <qwt_interval.h>

#include <memory>
#include <optional>

class QRubberBand;
class StationAxis;

/// Quantities along a path, one panel above the other over one axis with the stations. The wheel and dragging zoom into the
/// length of the path; arrows walk from one element to the next.
class ProfileChart : public QWidget {
  Q_OBJECT
public:
  struct Content {
    std::shared_ptr<const PathProfile> profile; ///< null or empty for nothing
    QStringList wayPoints;
    std::vector<ProfileQuantity> quantities;
    bool hasBounds = true;
    QString title; ///< of the scenario that is shown
    std::vector<ProfileOverlay> overlays;
  };

  explicit ProfileChart(SymbolPainter symbols, QWidget *parent = nullptr);
  ~ProfileChart() override;

  void show(Content content);
  const Content &content() const { return m_content; }
  bool isEmpty() const { return m_panels.empty(); }
  QSize sizeHint() const override;
  /// Marks a place on the path, which is told nobody. \param share how far along an edge, from 0 to 1
  void setCursor(Index row, double share);
  void clearCursor();
  Index cursorRow() const { return m_cursorRow; }
  void showWhole();
  /// What is seen of the path, as shown.
  QwtInterval range() const { return m_range; }
  const std::vector<ProfilePanel *> &panels() const { return m_panels; }

  /// As documents have it, into an area in the dots of the painter's device.
  void paintOnWhite(QPainter &painter, const QRectF &area);

signals:
  void pointed(Index row, double share); ///< by mouse or keys; NoIndex for nothing
  void clicked(Index row);
  void activated(Index row);
  void copyWanted();
  void printWanted();

protected:
  bool event(QEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void changeEvent(QEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  void addPanel(std::size_t number);
  void addAxis();
  void alignPanels();
  void color(const ProfileColors &colors);
  void setRange(const QwtInterval &range);
  void zoom(double factor, double about);
  void point(const QPoint &onCanvas);
  void pointAt(Index row, double share);
  void step(int by);
  bool mouse(const QwtPlot &panel, const QMouseEvent &event);
  void dragTo(const QwtPlot &panel, int x);
  double lengthAt(int x) const;
  void paintCursor(QPainter &painter) const;
  std::vector<QwtPlot *> plots() const;

  SymbolPainter m_symbols;
  Content m_content;
  std::vector<ProfilePanel *> m_panels;
  QwtPlot *m_axisPlot = nullptr;
  StationAxis *m_axis = nullptr; ///< belongs to the plot
  QWidget *m_overlay;            ///< with the cursor, above all
  QRubberBand *m_band;
  QwtInterval m_range;
  Index m_cursorRow = NoIndex;
  double m_cursorShare = 0.0;
  std::optional<int> m_pressed; ///< px on a canvas
};
