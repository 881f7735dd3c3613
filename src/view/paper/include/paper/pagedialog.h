#pragma once

#include <paper/pagecontent.h>

#include <QDialog>

#include <memory>

namespace Ui {
class PageDialog;
}

/// Sets up a page beside a picture of it as it will be, and prints it, saves it or copies it. What is chosen is kept for the
/// next page.
class PageDialog : public QDialog {
  Q_OBJECT
public:
  /// What Enter does.
  enum class Purpose { Print, Save };

  /// \param content must outlive the dialog
  PageDialog(PageContent &content, Purpose purpose, QWidget *parent = nullptr);
  ~PageDialog() override;

  PageSetup setup() const;
  PageText text() const;
  /// Offers to make several pages of the kind. \param run asks for the rest
  void setSeries(std::function<void()> run);
  /// For a file of the page, without suffix.
  QString proposedName() const;

  /// Into the file, without asking anything; false, and said, when it could not be written.
  bool save(const QString &path);

public slots:
  void done(int result) override;

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  void fill(const PageSetup &setup);
  void connectChoices();
  void showChoices();
  void print();
  void saveAs();
  void copy();
  void remember() const;

  PageContent &m_content;
  std::unique_ptr<Ui::PageDialog> m_ui;
  QString m_facts;
};
