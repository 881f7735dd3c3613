#pragma once

#include <base/onceperturn.h>
#include <model/selection.h>

#include <QModelIndex>
#include <QObject>

#include <vector>

class ElementTableModel;
class ElementTableView;
class NetData;

/// Keeps the rows of the element table and what is selected in the drawing alike.
///
/// 1. What is selected belongs to the network. Rows that a person selects are told once a turn, and come back as marks.
/// 2. Marks that come from elsewhere become selected rows, unless they lie scattered over so many places that the view would
///    be slow: then they are marked alone, which looks the same.
/// 3. The head of a group stands for its elements.
class SelectionLink : public QObject {
  Q_OBJECT
public:
  SelectionLink(NetData &net, ElementTableView &view, ElementTableModel &model);

  /// Marks the selection of the network. True when it was not the table that selected it.
  bool show();
  /// The lines that are copied: those that are selected or marked.
  std::vector<int> lines() const;

signals:
  void selected(const Selection &selection); ///< by a person, in the table
  void currentChanged(const QString &name);

private:
  void mirror();
  void tell();
  std::vector<int> selectedLines() const;

  NetData &m_net;
  ElementTableView &m_view;
  ElementTableModel &m_model;
  OncePerTurn m_telling;
  Selection m_told;  ///< by the table, last
  QString m_current; ///< the element of the current row
  int m_currentColumn = 0;
  bool m_isMirroring = false;
};
