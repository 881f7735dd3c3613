#pragma once

#include "settingsdraft.h"

#include <QDialog>

class QAbstractButton;
class QCheckBox;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabWidget;
class QTreeView;
class SettingsFilter;
class SettingsModel;

/// The general settings for a person: all of them with a search, and a page of units and numbers. Changes are the user's own
/// and lie under those of the workspace.
class SettingsDialog : public QDialog {
  Q_OBJECT
public:
  /// \param workspaceDir of the workspace that is open; empty for none
  explicit SettingsDialog(const QString &workspaceDir, QWidget *parent = nullptr);
  ~SettingsDialog() override;

  SettingsModel &model() const { return *m_model; }
  /// Saves and tells; false when the file cannot be written, which is shown.
  bool apply();

signals:
  void applied(); ///< the user's file has other values now

public slots:
  void accept() override;

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  QWidget *makeAllPage();
  QWidget *makeDetails();
  void makeTree();
  void showFindings();
  void showAbout();
  void showDirty();
  void filter();
  void enterTree();
  void editCurrent();
  void resetCurrent();
  void resetAll();
  QString currentKey() const;

  SettingsDraft m_draft;
  SettingsModel *m_model;
  SettingsFilter *m_filter;
  QTabWidget *m_pages;
  QLineEdit *m_search = nullptr;
  QCheckBox *m_changedOnly = nullptr;
  QLabel *m_nothing = nullptr;
  QTreeView *m_tree = nullptr;
  QLabel *m_about = nullptr;
  QPushButton *m_reset = nullptr;
  QLabel *m_findings;
  QDialogButtonBox *m_buttons;
};
