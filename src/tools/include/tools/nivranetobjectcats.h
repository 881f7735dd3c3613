#pragma once

#include <tools/category.h>

#include <QDockWidget>

#include <memory>

namespace Ui {
class NivraNetObjectCats;
}

/// The panel "Element Categories". Its first row follows the search and is never saved.
class NivraNetObjectCats : public QDockWidget {
  Q_OBJECT
public:
  explicit NivraNetObjectCats(QWidget *parent = nullptr);
  ~NivraNetObjectCats() override;

  /// Reads the categories of a case and tells them.
  void setFile(const QString &path);
  /// All rows, that of the search first.
  std::vector<Category> categories() const;

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

private:
  void appendRow(const Category &category);
  Category rowAt(int row) const;
  void setTexts(int row, const QStringList &strList);

  std::unique_ptr<Ui::NivraNetObjectCats> m_ui;
  QString m_path;
};
