#pragma once

#include <QDialog>

class CommandModel;
class QLabel;
class QLineEdit;
class QTreeView;

/// Every command of a window in one list: parts of words find it, arrows choose, Return does it. It goes when something else
/// is clicked.
class CommandPalette : public QDialog {
  Q_OBJECT
public:
  /// \param window whose menu bar and actions are listed
  explicit CommandPalette(QWidget &window);

  /// Lists the commands as they are now.
  void open() override;
  void reject() override;

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;
  bool event(QEvent *event) override;

private:
  void find(const QString &query);
  void move(int rows);
  void run(int row);
  void place();

  QWidget &m_window;
  CommandModel *m_model;
  QLineEdit *m_query;
  QTreeView *m_list;
  QLabel *m_nothing;
};
