#pragma once

#include "shared/tableexport.h"

#include <paper/pagecontent.h>

#include <QObject>

class ProfileChart;
class QAction;

/// What leaves the program of a profile: pictures, pages and tables, as files and on the clipboard.
class ProfileFiles : public QObject {
  Q_OBJECT
public:
  explicit ProfileFiles(ProfileChart &chart);

  void setFacts(const PageFacts &facts) { m_facts = facts; }
  /// Of the profile, for the heading of a page.
  void setTitle(const QString &title) { m_title = title; }
  /// For menus; greyed while nothing is shown.
  const QList<QAction *> &actions() const { return m_actions; }
  void refresh();

  // Without asking anything; false with the reason.
  bool saveTable(const QString &path, TableExport::Format format, QString *reason) const;
  bool savePicture(const QString &path, QString *reason);
  void copyPicture();
  void print();

private:
  void askForPicture();
  void copyTable();

  ProfileChart &m_chart;
  PageFacts m_facts;
  QString m_title;
  QList<QAction *> m_actions;
};
