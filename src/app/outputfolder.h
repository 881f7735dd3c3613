#pragma once

#include <QCoreApplication>
#include <QSet>
#include <QString>
#include <QStringList>

/// The folder into which jobs write. A jobs file may come from anybody: what it names lies in the folder, nothing that a
/// network or the jobs themselves are read from is replaced, and no two results take one name.
class OutputFolder {
  Q_DECLARE_TR_FUNCTIONS(OutputFolder)
public:
  /// \param path of the folder, which is made where there is none; false with the reason
  bool open(const QString &path, QString *reason);
  /// \param name of a folder below the other one, by the rules for files; empty for that one itself
  bool openBelow(const QString &folder, const QString &name, QString *reason);
  /// Files that stay as they are, and folders of which nothing is written.
  void protect(const QString &path);

  /// The path for a file of this name, relative to the folder; folders on the way are made. Empty with the reason.
  /// \param suffixes of which the name has one; empty for any
  QString file(const QString &name, const QStringList &suffixes, QString *reason);

private:
  bool isProtected(const QString &path) const;
  QString enter(const QStringList &parts, QString *why) const;
  QString fault(const QString &name, const QStringList &suffixes) const;

  QString m_folder; ///< canonical
  QStringList m_protected;
  QSet<QString> m_given;
};
