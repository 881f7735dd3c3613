#pragma once

#include "styles/stylelistmodel.h"

#include <QDialog>

class QLabel;
class QListView;
class QPushButton;

/// "Manage Styles": renames, deletes, imports and exports a person's own styles. Everything holds at once.
class StyleDialog : public QDialog {
  Q_OBJECT
public:
  explicit StyleDialog(StyleStore &store, QWidget *parent = nullptr);

signals:
  void renamed(const QString &from, const QString &to); ///< to nothing: deleted
  void useWanted(const QString &name);

private:
  void arrange();
  void useStyle();
  void renameStyle();
  void deleteStyle();
  void importStyles();
  void exportStyle();
  void showStyles(const QString &current);
  void showButtons();
  QString current() const;

  StyleStore &m_store;
  StyleListModel m_model;
  QListView *m_list;
  QLabel *m_hint;
  QList<QPushButton *> m_ofOne; ///< that act on the style that is marked
};
