#pragma once

#include "balance/balancemodel.h"
#include "balance/groupingchoice.h"

#include <QWidget>

#include <memory>
#include <vector>

class CategoryList;
class ItemTable;
class NetData;
class QComboBox;
class QLabel;
class QPushButton;
class QVBoxLayout;

/// What the dock "Balance" shows: how nodes are grouped, and a table of the groups. A click on a figure asks for the
/// elements behind it.
class BalancePage : public QWidget {
  Q_OBJECT
public:
  BalancePage(NetData &net, const CategoryList &categories, QWidget *parent = nullptr);

  void forget();
  /// Reads the network anew.
  void refresh();

signals:
  void elementsWanted(const QStringList &names);

private:
  void makeRow(QVBoxLayout &column);
  void makeTable();
  void listChoices();
  void showGroups();
  void showHint();
  void saveAs();

  NetData &m_net;
  const CategoryList &m_categories;
  std::shared_ptr<const NetworkFacts> m_facts; ///< null without a network
  std::vector<GroupingChoice> m_choices;
  BalanceModel m_model;
  QComboBox *m_grouping;
  QPushButton *m_save;
  QLabel *m_hint;
  ItemTable *m_table;
};
