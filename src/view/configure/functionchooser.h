#pragma once

#include "configure/functionmodel.h"

#include <QDialog>
#include <QSortFilterProxyModel>

class QLineEdit;
class QPushButton;
class QTableView;

/// Lets a person choose a draw function among all that a network has: name, unit, number of elements and a histogram, with
/// a field that leaves those whose words have what is typed.
class FunctionChooser : public QDialog {
  Q_OBJECT
public:
  /// \param title of what the function is for, such as "Edge colour"
  FunctionChooser(const QString &title, const NetUpdate &drawing, const PlotSettings &settings, Aspect aspect,
                  QWidget *parent = nullptr);

  /// \param current the one that is marked
  void setFunctions(const QStringList &names, const QString &current);
  /// The one that is marked; empty for none.
  QString chosen() const;

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  void arrange();
  int bestRow(const QString &words) const;
  void filter(const QString &words);

  FunctionModel m_model;
  QSortFilterProxyModel m_filtered;
  QLineEdit *m_words;
  QTableView *m_table;
  QPushButton *m_accept = nullptr;
};
