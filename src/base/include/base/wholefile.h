#pragma once

#include <base/fileaccess.h>

#include <QByteArray>
#include <QIODevice>
#include <QString>

#include <functional>

/// The one way by which the program writes files: whole or not at all. The present file stays until the new one is complete
/// on the disk; a disk that fills on the way leaves it as it was. Pipes and devices are not replaced by files.
namespace WholeFile {

/// Writes into the device; false when it cannot, with its reason where the device's own error does not say it. It need not
/// look at what the device returns: a file of which a block could not be written is not kept, whatever the writer says.
using Writer = std::function<bool(QIODevice &device, QString *reason)>;

/// False with "Could not write path: why". A file of the workspace is written inside the workspace only
/// (FileAccess::confineTo); a trusted path is one that the user chose for this very file.
bool write(const QString &path, FileAccess::Source source, const Writer &writer, QString *reason);
bool write(const QString &path, FileAccess::Source source, const QByteArray &content, QString *reason);

/// Copies a file of a workspace to a path that the user chose; false with the reason.
bool copy(const QString &from, const QString &to, QString *reason);

} // namespace WholeFile
