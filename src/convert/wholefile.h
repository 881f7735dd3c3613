#pragma once

#include <QByteArray>
#include <QString>

/// Files that are written whole or not at all; false with the reason.
namespace WholeFile {

bool write(const QString &path, const QByteArray &text, QString *reason);
bool copy(const QString &from, const QString &to, QString *reason);

} // namespace WholeFile
