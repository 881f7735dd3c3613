#pragma once

#include <QDateTime>
#include <QObject>

#include <vector>

/// A workspace that was opened, by the file that was chosen for it.
struct RecentFile {
  QString path; ///< absolute
  QDateTime opened;

  QString name() const;   ///< of case and scenario, for a person
  QString folder() const; ///< of the workspace, as the system writes it
  bool isScenario() const;
  friend bool operator==(const RecentFile &a, const RecentFile &b) { return a.path == b.path && a.opened == b.opened; }
};

/// The workspaces that were opened, the latest first. They are kept in the data folder of the user ("recentfiles.json"),
/// which other windows change as well: every change starts from what the file says by then.
class RecentFiles : public QObject {
  Q_OBJECT
public:
  static constexpr int Most = 24;

  explicit RecentFiles(QObject *parent = nullptr)
      : QObject(parent) {}

  static QString file();

  const std::vector<RecentFile> &all() const { return m_all; }
  QStringList paths() const;
  /// The folders of their cases, each once, that are still there: all folders of scenarios are called alike.
  QStringList folders() const;
  void read();
  /// Puts the file in front; of many those that were opened longest ago are forgotten.
  void add(const QString &path);
  void remove(const QString &path);
  /// Forgets those that are no longer there.
  void removeMissing();
  void clear();
  /// After a question, where there is a person to be asked.
  void clearAsked();

signals:
  void changed();

private:
  void keep(std::vector<RecentFile> files);

  std::vector<RecentFile> m_all;
};
