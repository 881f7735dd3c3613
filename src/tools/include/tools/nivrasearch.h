#pragma once

#include <base/finding.h>
#include <model/netdata.h>
#include <tools/searchhistory.h>
#include <tools/searchparams.h>

#include <QDockWidget>
#include <QModelIndex>

#include <memory>
#include <optional>

class FormulaMode;
class QLineEdit;
class QMenu;
class SearchResults;

namespace Ui {
class NivraSearch;
}

/// The panel that finds properties of elements by name, type, property, value or formula.
class NivraSearch : public QDockWidget {
  Q_OBJECT
public:
  explicit NivraSearch(NetData &net, Told told = {}, QWidget *parent = nullptr);
  ~NivraSearch() override;

  SearchParams searchParams() const;
  const SearchHistory &history() const { return m_history; }
  /// Makes the first row of the element the current one; false, and no current row, when there is none.
  bool select(const QString &elementName);
  /// After an element has changed: its rows are made anew. \param oldName empty when it still has its name
  void updateSearchItems(element &changed, const QString &oldName);
  /// After values have changed: the last search is to be done again, once somebody sees what it finds.
  void takeChanges(bool areResultsDrawn);
  /// Shows what the last search finds now, where values have changed since.
  void catchUp();
  /// After the network has changed altogether.
  void clearResults();
  /// Asks for the results to be selected in place of what is; the buttons of the panel offer more.
  void on_pushButton_select_clicked();
  void on_pushButton_select_and_closure_clicked();
  /// Searches for exactly these names, joined by ";".
  void searchNames(const QString &names);
  /// Writes the rows to a file, whole or not at all; false with the reason when it cannot be written.
  bool save(const QString &path, QString *reason) const;

signals:
  void elementMarked(const QString &elName);
  void markSearchResults(bool topoClosure, bool additive);
  void itemDoubleClicked(const QModelIndex &item, int column); ///< a name in the table, whatever of its row was clicked
  void showInTable();
  void searchCompleted();
  void definitionChanged(const QStringList &searchDef); ///< name, type, prop, formula or searchString
  void categoryWanted(const QStringList &searchDef);    ///< to be kept as a category
  void characteristicsWanted(const QStringList &names); ///< maps of machines

public slots:
  void defineSearch(const QStringList &searchDef, bool regex);
  void enterLastField();
  void searchWithFormula();
  void on_pushButton_search_clicked();
  void on_pushButton_regex_clicked();
  void on_lineEdit_name_returnPressed();
  void on_lineEdit_searchString_returnPressed();
  void on_lineEdit_type_returnPressed();
  void on_lineEdit_prop_returnPressed();
  void on_lineEdit_name_textChanged(const QString &arg1);
  void on_lineEdit_searchString_textChanged(const QString &arg1);
  void on_lineEdit_type_textChanged(const QString &arg1);
  void on_lineEdit_prop_textChanged(const QString &arg1);
  void on_pushButton_formula_clicked();
  void on_toolButton_clear_clicked();
  void on_pushButton_regex_toggled(bool checked);
  void on_pushButton_save_clicked();
  void on_pushButton_addCat_clicked();
  void on_pushButton_toTable_clicked();
  void on_treeWidget_searchResults_itemDoubleClicked(const QModelIndex &item, int column);
  void on_treeWidget_searchResults_currentItemChanged(const QModelIndex &current, const QModelIndex &previous);
  void updateLastSearchesMenu();
  void resetToSavedSearch(QAction *action);

protected:
  void showEvent(QShowEvent *event) override;
  /// Buttons for other tools are there once these are.
  void connectNotify(const QMetaMethod &signal) override;
  void dragEnterEvent(QDragEnterEvent *event) override;
  void dropEvent(QDropEvent *event) override;

private:
  void clearFormulas();
  void searchAnew();
  void searchFrom(QLineEdit *field);
  void showCount();
  /// \param error why the search stopped before its end; empty when it did not
  void tellOutcome(const QString &error);
  /// Below the rows; nothing for an empty text.
  void showHint(const QString &text);
  QStringList definition() const;

  std::unique_ptr<Ui::NivraSearch> m_ui;
  SearchResults *m_results = nullptr;
  FormulaMode *m_formulaMode = nullptr;
  NetData &m_net;
  Told m_told;
  std::optional<SearchParams> m_lastSearch; ///< whose results are shown
  bool m_isStale = false;                   ///< values have changed since
  SearchHistory m_history;
  QString m_name;
  QString m_searchString;
  QString m_type;
  QString m_prop;
  QString m_formula;         ///< being entered
  QString m_reportedFormula; ///< in exports and history
  QLineEdit *m_lastField;
  QMenu *m_historyMenu;
};
