#pragma once

#include <drawing/drawfunctions.h>

#include <QIcon>
#include <QObject>

#include <functional>
#include <memory>

class NetPlot;
class QAction;
class QMenu;
class StyleHistory;
class StyleStore;

/// The named styles of a drawing, those of the program and those that a person saved, and the way back from every change of
/// how it is drawn: a menu that choosers and menu bars share, and what its entries do.
class StyleActions : public QObject {
  Q_OBJECT
public:
  using OfNetwork = std::function<const DrawFunction::OfNetwork &()>;

  /// \param ofNetwork what the network that is shown has, asked when it is needed
  StyleActions(NetPlot &plot, OfNetwork ofNetwork);
  ~StyleActions() override;

  /// All styles, the one in use checked; those that would show nothing are greyed. Filled when it is about to be shown.
  QMenu *menu() const { return m_menu.get(); }
  QAction *undoAction() const { return m_undo; }
  QAction *redoAction() const { return m_redo; }
  /// The style that is in use; empty when there is none, or it was changed since.
  QString inUse() const;
  /// The colours that are in use now.
  QIcon swatch() const;

  /// Draws in the style of this name, of the program (by its id or title) or a person's own. False with the reason.
  bool use(const QString &name, QString *reason);
  /// Lays the text of a file of plot settings over how it is drawn.
  /// \param path for what is told
  void layOver(const QByteArray &settings, const QString &path);

  /// After somebody else, asked by a person, drew it otherwise: a step to come back from.
  void record();
  /// As it is drawn now is the beginning, unless the steps are held.
  void reset();
  /// Keeps the steps while the same network is read anew, until release().
  void hold();
  void release();
  /// The style that the network was left in.
  void nameBeginning(const QString &style);

signals:
  void changed(); ///< how it is drawn, by one of these actions
  void inUseChanged();

private:
  QAction *addAction(const QString &text, const QKeySequence &key, void (StyleActions::*done)());
  void fill();
  void addBuiltIns();
  void addOwn();
  QAction *addStyle(const QString &title, const QIcon &icon, const QString &name);
  void choose(const QString &name);
  void saveAs();
  void manage();
  void undo();
  void redo();
  void refresh();

  NetPlot &m_plot;
  OfNetwork m_ofNetwork;
  std::unique_ptr<StyleStore> m_store;
  std::unique_ptr<StyleHistory> m_history;
  std::unique_ptr<QMenu> m_menu;
  QAction *m_undo;
  QAction *m_redo;
  QAction *m_saveAs;
  QAction *m_manage;
};
