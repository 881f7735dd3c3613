#pragma once

#include <drawing/aspect.h>

#include <QToolBar>

class ElementField;
class NetVisControl;
class QMainWindow;
class QMenu;
class QToolButton;

/// The tool bar of a window with a drawing: the commands that one needs all day, a field that goes to an element by its
/// name, and what colours edges and nodes.
class ToolBar : public QToolBar {
  Q_OBJECT
public:
  /// \param print at the end, beside what saves and copies the drawing
  ToolBar(NetVisControl &control, QAction *print, QMainWindow &window);

  /// At the head of the bar of a window that opens cases: the way to one, with recent ones behind it, and to read it again.
  void addOpening(QAction *open, QMenu *recent, QAction *reload);

  /// Gives the keyboard to the field for names.
  void goToElement();

signals:
  void elementWanted(const QString &name);
  void told(const QString &text);

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;
  void actionEvent(QActionEvent *event) override;

private:
  void addField();
  void addChooser(Aspect aspect, const QString &title);
  void addStyleChooser();
  void showFunctions();
  void showStyle();

  NetVisControl &m_control;
  ElementField *m_field = nullptr;
  QToolButton *m_styles = nullptr;
  PerAspect<QToolButton *> m_choosers{};
};
