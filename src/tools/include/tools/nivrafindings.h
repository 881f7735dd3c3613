#pragma once

#include <tools/findinglist.h>

#include <QDockWidget>

class QLabel;
class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

/// The panel "Findings": what reading, checking, formulas and bounds found, by stage. A click asks to see the element.
class NivraFindings : public QDockWidget {
  Q_OBJECT
public:
  explicit NivraFindings(QWidget *parent = nullptr);

  void setFindings(std::vector<FindingList::Group> groups);
  int count() const { return m_list.count(); } ///< of all, whatever the filter

signals:
  void elementWanted(const QString &name);

public slots:
  /// Goes to the finding below the current one, from the last to the first.
  void showNext();

private:
  void fill();
  void goTo(QTreeWidgetItem *item);

  FindingList m_list;
  QLineEdit *m_filter;
  QTreeWidget *m_tree;
  QLabel *m_count;
};
