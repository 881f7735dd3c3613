#pragma once

#include <QByteArray>
#include <QString>

/// Judges SVG documents that somebody else wrote before anything is drawn of them. One that passes refers to nothing outside
/// of itself, and drawing it takes bounded time and memory.
namespace SvgGuard {

/// Why the document may not be drawn, for a person to read; empty when it may.
QString fault(const QByteArray &svg);

} // namespace SvgGuard
