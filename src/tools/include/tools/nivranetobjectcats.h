#pragma once

#include <tools/categorylist.h>

#include <QDockWidget>

#include <memory>

class CategoryModel;

namespace Ui {
class NivraNetObjectCats;
}

/// The panel "Element Categories" of a window. Its first row follows the window's search and is never saved; the others are
/// those of all windows.
class NivraNetObjectCats : public QDockWidget {
  Q_OBJECT
public:
  explicit NivraNetObjectCats(std::shared_ptr<CategoryList> list, QWidget *parent = nullptr);
  ~NivraNetObjectCats() override;

  /// All rows, that of the search first.
  std::vector<Category> categories() const;
  /// Before another file or the end of the program: asks whether changes are to be saved. False when the person wants to
  /// stay with them, or when saving failed.
  bool settleChanges();
  bool hasChanges(); ///< that are not saved, what is just being typed among them
  bool save();

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
  void showNewList();
  int currentRow() const; ///< -1 for none
  /// With the texts of a search.
  static Category defined(const Category &named, const QStringList &strList);

  std::unique_ptr<Ui::NivraNetObjectCats> m_ui;
  std::shared_ptr<CategoryList> m_list;
  CategoryModel *m_model;
};
