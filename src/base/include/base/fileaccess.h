#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <optional>

/// The one way by which the program opens files for reading. A workspace is not trusted: what it names may be a pipe or a
/// device that never ends, a link that leads to a stranger's file, or a file that no memory holds.
///
/// What holds after a file was opened: it is a regular file; if it belongs to the workspace it lies, with every link
/// followed, inside the folder of confineTo(); it is at most as large as the caller said.
namespace FileAccess {

/// Where a path comes from.
enum class Source {
  Workspace, ///< named by the workspace or lying in it
  Trusted    ///< chosen by the user on this very occasion, or part of the program or of the user's own settings
};

constexpr qint64 AnySize = -1;
constexpr qint64 LargestConfiguration = qint64(64) << 20;

/// From now on files of the workspace are read and written inside this folder only. An empty path lifts the rule.
void confineTo(const QString &folder);

/// The reason, for a person to read, why the workspace may not use this path; empty when it may. The file need not exist:
/// then the nearest folder that does decides.
QString confinementFault(const QString &path);

/// Opens the file (whose name is set) in binary mode; false with "path: why", here and below for whom it interests.
bool openForReading(QFile &file, Source source, qint64 largest, QString *reason);

/// The whole file; nothing with "path: why" when it cannot be opened or read to its end.
std::optional<QByteArray> readWhole(const QString &path, Source source, qint64 largest, QString *reason);

} // namespace FileAccess
