#pragma once

#include <tools/category.h>

#include <QDockWidget>

#include <memory>

namespace Ui {
class NivraNetObjectCats;
}

/// The panel "Element Categories". Its first row follows the search and is never saved. Changes of the others live in the
/// panel until they are saved; nothing drops them unasked, so its window does not close over them either.
class NivraNetObjectCats : public QDockWidget {
  Q_OBJECT
public:
  explicit NivraNetObjectCats(QWidget *parent = nullptr);
  ~NivraNetObjectCats() override;

  /// Reads the categories of a case and tells them.
  void setFile(const QString &path);
  /// All rows, that of the search first.
  std::vector<Category> categories() const;
  /// Before another file or the end of the program: asks whether changes are to be saved. False when the person wants to
  /// stay with them, or when saving failed.
  bool settleChanges();

signals:
  void toSearch(const QStringList &searchDef, bool nameRegex);
  void catChanged(const CatMap &catmap);
  void showInTable(const QString &cat);

public slots:
  void updateTempCategory(const QStringList &strList);
  void addCategory(const QStringList &strList, const QString &catName = QString());
  void addToCurrentCategory(const QStringList &strList);
  void on_toolButtonAdd_clicked();
  void on_toolButtonRemove_clicked();
  void on_pushButtonOK_clicked(); ///< "save to file"
  void on_pushButtonReload_clicked();
  void on_pushButtonUse_clicked(); ///< "apply"
  void on_toolButtonToSearch_clicked();
  void on_toolButtonShowInTable_clicked();
  void informOnNecessaryUpdate();
  void informOnPerformedUpdate();

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  void readFile();
  bool save();
  void setChanged();
  void appendRow(const Category &category);
  Category rowAt(int row) const;
  void setTexts(int row, const QStringList &strList);

  std::unique_ptr<Ui::NivraNetObjectCats> m_ui;
  QString m_path;
  bool m_isChanged = false; ///< against the file
};
