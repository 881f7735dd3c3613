#pragma once

#include <QObject>

class CommandPalette;
class NetVisControl;
class QAction;
class QMainWindow;
class QMenu;
class QMenuBar;
class ToolBar;

/// The commands of a window with a drawing: puts those of the drawing into menus and the tool bar, gives all of them icons,
/// and brings the list in which all can be found.
class Commands : public QObject {
  Q_OBJECT
public:
  /// Where the window keeps what stands in its form.
  struct Form {
    QMenuBar *bar;
    QMenu *file;
    QMenu *info; ///< the new menus stand before it
    QAction *print;
    QAction *savePage; ///< in the menu file; what saves pictures stands before it
  };

  Commands(QMainWindow &window, NetVisControl &control, const Form &form);
  ~Commands() override;

  ToolBar *toolBar() const { return m_toolBar; }
  QMenu *goMenu() const { return m_go; }

signals:
  void elementChosen(const QString &name); ///< by its name; it is shown after this

private:
  QAction *add(QMenu &menu, const QString &text, const QString &key, const QString &tip);
  QMenu *addMenu(const QString &title);
  void fillFileMenu();
  void addEditMenu();
  void addGoMenu();
  void addDrawingMenu();
  void fillInfoMenu();
  void setIcons();
  void fillBookmarks(QMenu &menu);
  void showPalette();
  void showElement(const QString &name);
  void goToElement();
  void goToPanel(int step);
  void showMenuOfFocus();

  QMainWindow &m_window;
  NetVisControl &m_control;
  Form m_form;
  ToolBar *m_toolBar = nullptr;
  QMenu *m_go = nullptr;
  CommandPalette *m_palette = nullptr; ///< made when it is first asked for
};
