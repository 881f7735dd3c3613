#pragma once

#include <tools/findinglist.h>

#include <QDockWidget>

class FindingFilter;
class FindingModel;
class QLabel;
class QLineEdit;
class QModelIndex;
class QTreeView;

/// The panel "Findings": what reading, checking, formulas and bounds found, by stage. A click asks to see the element.
class NivraFindings : public QDockWidget {
  Q_OBJECT
public:
  explicit NivraFindings(QWidget *parent = nullptr);

  void setFindings(std::vector<FindingList::Group> groups);
  int count() const; ///< of all, whatever the filter

signals:
  void elementWanted(const QString &name);

public slots:
  /// Goes to the finding below the current one, from the last to the first.
  void showNext();

private:
  void showFiltered();
  void goTo(const QModelIndex &index);

  FindingModel *m_findings;
  FindingFilter *m_shown;
  QLineEdit *m_filter;
  QTreeView *m_tree;
  QLabel *m_nothing; ///< where the first row would be
  QLabel *m_count;
};
