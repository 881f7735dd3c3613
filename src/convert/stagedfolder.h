#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

/// A folder that is written beside its target and takes its place when it is complete: a conversion that fails leaves
/// nothing behind. Where the target is there already its files stay, and new ones come in among them, all or none.
class StagedFolder {
  Q_DECLARE_TR_FUNCTIONS(StagedFolder)
public:
  explicit StagedFolder(const QString &target);

  bool open(QString *reason);
  /// Where a file is to be written for now; its folder is made. Names are relative to the folder.
  QString path(const QString &name) const;
  bool isThere(const QString &name) const;

  /// \param overwrites whether files that are there and differ may be replaced; otherwise they make it fail
  /// \param kept names of files that are never replaced \return the reason in case of false
  bool commit(bool overwrites, const QStringList &kept, QString *reason);

private:
  struct Move {
    QString name;
    bool replaces = false;
  };

  QStringList files() const;
  bool moveWhole(QString *reason) const;
  bool moveAll(const QStringList &names, QString *reason) const;
  void takeBack(const QList<Move> &moves, QString *reason) const;
  void putBack(const QString &name, QString *reason) const;

  QString m_target;                      ///< absolute, links followed where it is there
  std::unique_ptr<QTemporaryDir> m_room; ///< on the disk of the target
};
