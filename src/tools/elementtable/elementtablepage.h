#pragma once

#include "elementtable/elementtablefile.h"
#include "elementtable/elementtablemodel.h"
#include "elementtable/propertycensus.h"

#include <model/selection.h>

#include <QMap>
#include <QWidget>

class ColumnChooser;
class ElementTableView;
class NetData;
class QAction;
class QCheckBox;
class QComboBox;
class QMenu;
class QPushButton;
class QToolBar;
class QToolButton;
class SelectionLink;
class TableSummary;
class TypeBox;

/// What is in the dock of the element table: choices above, rows, and what they sum up to below.
class ElementTablePage : public QWidget {
  Q_OBJECT
public:
  explicit ElementTablePage(NetData &net, QWidget *parent = nullptr);
  ~ElementTablePage() override;

  void setDirectory(const QString &directory) { m_directory = directory; }
  /// Before the elements of the network go.
  void forget();
  /// Columns, filters and so on of the case before.
  void forgetChoices();
  /// Shows the network that was read.
  void refresh();
  /// After values have changed.
  void follow();
  void showSelection();

signals:
  void selected(const Selection &selection);
  void currentChanged(const QString &name);
  void elementWanted(const QString &name);

protected:
  bool event(QEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;

private:
  /// What a person has chosen for elements of some types.
  struct Choices {
    std::vector<PropertyKey> columns;
    QMap<QString, QString> filters;
    QString sorted = QStringLiteral("name");
    Qt::SortOrder order = Qt::AscendingOrder;
    ElementTableModel::Grouping grouping = ElementTableModel::Grouping::None;
    QString groupedBy;
    QSet<QString> collapsed;
  };

  void makeBar();
  void makeGroupMenu(QMenu &menu);
  void makeActions();
  QAction *addAction(const QString &text, const QKeySequence &key, void (ElementTablePage::*slot)());
  QAction *actionFor(const QKeyEvent &event) const;
  void fillGroups();
  void keepChoices();
  void showType();
  std::vector<PropertyKey> usualColumns() const;
  void setColumns(const std::vector<PropertyKey> &columns);
  void chooseColumns();
  void fillChooser();
  void chooseGroup(int index);
  void showOnlySelected(bool isOnly);
  void showHeader();
  void fitColumns();
  void showHint();
  void showColumnMenu(const QPoint &position);
  void moveColumn(int column, int by);
  void hideColumn(int column);
  void enterFilter();
  void endFilters();
  void sortUp() { sortBy(Qt::AscendingOrder); }
  void sortDown() { sortBy(Qt::DescendingOrder); }
  void sortBy(Qt::SortOrder order);
  void groupByColumn();
  void orderByHeader();
  void copyRows() { copy(false); }
  void copyWithHeader() { copy(true); }
  void copyCell();
  void copy(bool withHeader);
  void saveAs();

  NetData &m_net;
  PropertyCensus m_census;
  ElementTableModel m_model;
  QMap<QString, Choices> m_choices; ///< by scope
  QString m_scope;                  ///< that is shown
  QMap<QString, int> m_widths;      ///< of columns, by property
  QString m_directory;
  QToolBar *m_bar;
  TypeBox *m_types;
  QComboBox *m_groups;
  QCheckBox *m_onlySelected;
  QPushButton *m_endFilters;
  ElementTableView *m_view;
  ElementTableFile m_file;
  TableSummary *m_summary;
  SelectionLink *m_link;
  ColumnChooser *m_chooser = nullptr; ///< made when it is asked for
  QToolButton *m_groupMenu = nullptr;
  bool m_isFitting = false; ///< the columns get their widths
};
