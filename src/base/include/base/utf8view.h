#pragma once

#include <QByteArray>
#include <QString>

#include <string_view>

/// The bytes without a copy; they have to outlive the view.
inline std::string_view viewOf(const QByteArray &bytes) {
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

inline QString textOfUtf8(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}
