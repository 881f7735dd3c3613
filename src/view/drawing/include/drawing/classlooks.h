#pragma once

#include <QColor>
#include <QString>
#include <QStringList>

#include <vector>

/// Colours and names that a person gave classes, from the lowest on, as the plot settings keep them: joined by ";".
namespace ClassLooks {

constexpr int Most = 51; ///< one more than breaks

/// Invalid for that of the ramp.
std::vector<QColor> colors(const QString &text);
QString text(const std::vector<QColor> &colors);
/// Empty for none; percent-encoded in the text.
QStringList labels(const QString &text);
QString text(const QStringList &labels);

} // namespace ClassLooks
