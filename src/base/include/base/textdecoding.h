#pragma once

#include <base/finding.h>

#include <QByteArray>
#include <QString>

#include <optional>
#include <string_view>

/// Texts from elsewhere: mostly UTF-8, else from a spreadsheet of a Western machine.
namespace TextDecoding {

/// Every character: a byte-order mark in front, which QString::fromUtf8() drops, is part of a name.
QString decoded(std::string_view utf8);
/// Nothing when the bytes are no UTF-8.
std::optional<QString> fromUtf8(const QByteArray &bytes);
/// Takes any bytes.
QString fromWindows1252(const QByteArray &bytes);
/// The text of a file in whichever it is written; \p told when that is not UTF-8.
QString decoded(const QByteArray &content, const QString &path, const Told &told);

} // namespace TextDecoding
