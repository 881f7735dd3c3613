#pragma once

#include <model/netdata.h>
#include <view/netplot.h>

#include <QCursor>
#include <qwt_plot_picker.h>

class QAction;

/// Turns clicks, drags and keys on the plot into the selection of the network, which nobody else changes.
class NetPicker : public QwtPlotPicker {
  Q_OBJECT
public:
  /// What the press of a button began.
  enum class Mode { Pick = 0, PickMore = 1, Rectangle = 2, RectangleMore = 3, None = 99 };

  /// What is to be done with an element.
  enum class EleAction { ShowInfo = 0, Mark = 1, EditProperties = 2, OpenCharacteristics = 3 };
  Q_ENUM(EleAction)

  NetPicker(NetPlot &plot, NetData &net);

  Mode mode() const { return m_mode; }
  QAction *selectAllAction() const { return m_selectAll; }
  /// Whether the left button, dragged, selects what lies wholly in the rectangle; with Shift in addition to what is
  /// selected. A click selects as ever.
  void setSelectsArea(bool selects) { m_selectsArea = selects; }

  void selectAll();
  /// Selects one element by name; false when there is none.
  bool markElement(const QString &name);
  /// \param more in addition to what is selected already
  void select(const std::vector<NetGeometry::Item> &items, bool more);
  void clearSelection();
  /// Selects the element as a click on it does.
  void choose(NetGeometry::Item item);
  /// Selects what the names say, and shows it.
  void setSelection(const Selection &selection);
  /// What lay under the cursor when a button was pressed, the nearest first, for the menu that this asked for.
  std::vector<NetGeometry::Item> pressedItems() const;
  /// Forgets what lay under the cursor, for another network.
  void reset() override;

signals:
  void selectionChanged();
  void picked(const QString &name);    ///< by a click; the current element
  void activated(const QString &name); ///< by a double click
  void hovered(const QString &name);   ///< came under the cursor; empty when nothing is

protected:
  void widgetMousePressEvent(QMouseEvent *event) override;
  void widgetMouseReleaseEvent(QMouseEvent *event) override;
  void widgetMouseDoubleClickEvent(QMouseEvent *event) override;
  void widgetMouseMoveEvent(QMouseEvent *event) override;
  void widgetLeaveEvent(QEvent *event) override;
  void widgetKeyPressEvent(QKeyEvent *event) override;
  void widgetKeyReleaseEvent(QKeyEvent *event) override;
  bool end(bool ok) override;
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  Mode modeFor(Qt::MouseButton button, Qt::KeyboardModifiers keys) const;
  void pick(Qt::MouseButton button);
  /// The selection after a pick of the hit.
  Selection selectionWith(NetGeometry::Item item, bool isMenu) const;
  /// Which of the hits the button means.
  std::optional<NetGeometry::Item> target(Qt::MouseButton button) const;
  bool isSelected(NetGeometry::Item item) const;
  void deselect(NetGeometry::Item item, Selection &selection) const;
  std::vector<Hit> hitsAt(const QPoint &position) const;
  void pickRectangle(const QRectF &area);
  void showSelection();
  QString nameOf(NetGeometry::Item item) const;
  QString toolTipFor(NetGeometry::Item item) const;
  void hover(const QPoint &position);
  bool isRectangle() const { return m_mode == Mode::Rectangle || m_mode == Mode::RectangleMore; }
  void startRectangleZoom(int key);
  void endRectangleZoom();

  NetPlot &m_plot;
  NetData &m_net;
  QAction *m_selectAll;
  Mode m_mode = Mode::None;
  QPoint m_pressed;
  std::vector<Hit> m_hits; ///< at the position that was pressed
  bool m_picksOnRelease = false;
  bool m_selectsArea = false;
  bool m_zoomsRectangle = false; ///< with the next drag
  QCursor m_cursor;              ///< before it
};
