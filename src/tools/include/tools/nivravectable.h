#pragma once

#include <tools/category.h>
#include <tools/vectorrows.h>

#include <QModelIndex>
#include <QTabWidget>

#include <memory>

class TableMenu;
class VectorModel;
class VectorPlot;

namespace Ui {
class NivraVecTable;
}

/// The window "Table of Vector Values". What is copied, saved and plotted is what is shown: rows that pass the filters, in
/// their order, with the columns that are there. Filters go when something else is listed and when the window closes.
class NivraVecTable : public QTabWidget {
  Q_OBJECT
public:
  explicit NivraVecTable(NetData &net, Told told = {}, QWidget *parent = nullptr);
  ~NivraVecTable() override;

  /// Where tables are saved unless somebody says otherwise.
  void setDirectory(const QString &directory) { m_directory = directory; }
  /// After the network has changed: the properties that there are.
  void refresh();
  /// After values have changed: lists them anew as soon as somebody sees the table.
  void showValues();
  /// False with the reason.
  bool save(const QString &path, QString *reason) const;

signals:
  void elementMarked(const QString &elName);
  void characteristicsWanted(const QStringList &names);
  void netChanged();
  void helpWanted(const QString &page);

public slots:
  void on_updateCats(const CatMap &catDataInput);
  void on_useSearchConfig();
  void on_showCat(const QString &catToShow);
  void on_pushButtonUpdate_clicked();
  void on_pushButtonTryNumSort_clicked();
  void on_pushButtonSave_clicked();
  void on_pushButtonClose_clicked();
  void on_comboBoxCat_currentIndexChanged(const QString &qstr);
  void on_comboBoxProp_currentIndexChanged(const QString &qstr);
  void on_checkBoxProp_toggled(bool checked);
  void on_checkBoxNonZero_toggled(bool checked);
  void on_checkBoxUseSel_toggled(bool checked);
  void on_tableWidget_itemClicked(const QModelIndex &item);
  void on_actionCopy_selectedItems_triggered();
  void on_actionHelp_triggered();
  void on_closePlotButton_clicked();
  void on_NivraVecTable_currentChanged(int index);

protected:
  void showEvent(QShowEvent *event) override;
  void hideEvent(QHideEvent *event) override;

private:
  bool isPropertyMode() const;
  void listSomethingElse();
  QStringList headers() const;
  QStringList titles() const;
  QStringList withCategory(QStringList texts) const;
  void showRows(std::vector<VectorRows::Row> rows, int sortedBy);
  void sortNumerically(std::vector<VectorRows::Row> rows);
  void showCount();
  std::vector<int> shownRows() const;
  void showPlot();

  std::unique_ptr<Ui::NivraVecTable> m_ui;
  NetData &m_net;
  Told m_told;
  VectorRows m_rows;
  CatMap m_categories;
  QString m_chosenCategory;
  QString m_chosenProperty;
  QString m_directory;
  bool m_isUpdating = false;
  bool m_isStale = false; ///< the category or values have changed while nobody saw it
  VectorModel *m_model;
  VectorPlot *m_plot;
  TableMenu *m_menu = nullptr;
};
