#pragma once

#include <base/filestamp.h>

#include <QString>

#include <map>

/// Notes the files of the workspace that are opened for reading while it lives, by whatever thread, each with the stamp that
/// it has then. Only one at a time.
class ReadFiles {
public:
  using Stamps = std::map<QString, FileStamp>; ///< by path

  ReadFiles();
  ~ReadFiles();
  ReadFiles(const ReadFiles &) = delete;
  ReadFiles &operator=(const ReadFiles &) = delete;

  Stamps stamps() const;

  /// For FileAccess alone, which opens the files.
  static void note(const QString &path);

private:
  Stamps m_stamps;
};
