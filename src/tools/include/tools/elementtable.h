#pragma once

#include <model/selection.h>

#include <QDockWidget>

class ElementTablePage;
class NetData;
class QAction;

/// The dock "Table of Elements": elements of a type, one a row, with any of their properties. What it holds is made when
/// somebody first sees it, and follows only while somebody does.
class ElementTable : public QDockWidget {
  Q_OBJECT
public:
  explicit ElementTable(NetData &net, QWidget *parent = nullptr);
  ~ElementTable() override;

  /// Before the elements of the network go.
  void forget();
  /// After a network was read. \param directory of the case: while it is the same, columns, filters and so on are kept
  void refresh(const QString &directory);
  /// After values have changed.
  void showChanges();
  /// After something else was selected.
  void showSelection();
  /// Brings the table to the front with the keyboard in it, or hides it when it has the keyboard.
  QAction *openAction() const { return m_open; }

signals:
  void selected(const Selection &selection); ///< by a person, in the table
  void currentChanged(const QString &name);  ///< the row on which the cursor is
  void elementWanted(const QString &name);   ///< in the middle of the drawing

protected:
  void showEvent(QShowEvent *event) override;

private:
  void open();
  void catchUp();
  bool isFollowing() const { return isVisible() && m_hasNetwork && m_page != nullptr; }

  NetData &m_net;
  QAction *m_open;
  ElementTablePage *m_page = nullptr; ///< made with the first look
  QString m_directory;
  bool m_hasNetwork = false;
  bool m_isStale = false; ///< values or the selection have changed while nobody saw it
};
