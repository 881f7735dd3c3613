#pragma once

#include <tools/findinglist.h>

#include <QDockWidget>

class FindingFilter;
class FindingModel;
class QComboBox;
class QLabel;
class QLineEdit;
class QModelIndex;
class QPushButton;
class QTreeView;
class QVBoxLayout;

/// The panel "Findings": what reading, checking, formulas and bounds found, by stage, and the rules that the check of the
/// network found broken. A click asks to see the elements.
class NivraFindings : public QDockWidget {
  Q_OBJECT
public:
  explicit NivraFindings(QWidget *parent = nullptr);

  void setFindings(std::vector<FindingList::Group> groups);
  int count() const; ///< of all, whatever the filter

signals:
  void elementWanted(const QString &name);
  void elementsWanted(const QStringList &names); ///< at least two

public slots:
  /// Goes to the finding below the current one, from the last to the first.
  void showNext();

private:
  void makeRow(QVBoxLayout &column);
  void connectAll();
  void listKinds();
  void saveAs();
  void showFiltered();
  void goTo(const QModelIndex &index);

  FindingModel *m_findings;
  FindingFilter *m_shown;
  QLineEdit *m_filter;
  QComboBox *m_kinds; ///< stages and rules
  QPushButton *m_next;
  QPushButton *m_save;
  QTreeView *m_tree;
  QLabel *m_nothing; ///< where the first row would be
  QLabel *m_count;
};
