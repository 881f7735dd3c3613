#pragma once

#include <QByteArray>

#include <string_view>

/// The bytes without a copy; they have to outlive the view.
inline std::string_view viewOf(const QByteArray &bytes) {
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}
