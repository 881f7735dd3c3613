#pragma once

#include <drawing/legendpicture.h>

#include <QPixmap>
#include <QWidget>

/// The legend on the canvas: it can be dragged, and has a menu of its own. What happens beside it is not its matter.
class LegendView : public QWidget {
  Q_OBJECT
public:
  LegendView(const LegendPicture &picture, QWidget *canvas);

  /// After the picture has changed.
  void renew();
  /// Leaves it out of pictures of the canvas that are moved in its place.
  void setIsLeftOut(bool isLeftOut) { m_isLeftOut = isLeftOut; }

signals:
  void entered();                   ///< by the mouse
  void dropped(QPoint center);      ///< at this point of the canvas
  void menuWanted(QPoint position); ///< on the screen
  void configurationWanted();

protected:
  void paintEvent(QPaintEvent *event) override;
  void enterEvent(QEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;
  void mouseDoubleClickEvent(QMouseEvent *event) override;
  void contextMenuEvent(QContextMenuEvent *event) override;

private:
  const LegendPicture &m_picture;
  QPixmap m_pixels; ///< of the picture: it is painted with every frame of the drawing below
  QPoint m_grip;    ///< where it is held
  bool m_isDragged = false;
  bool m_isLeftOut = false;
};
