#pragma once

#include <drawing/drawfunctions.h>

#include <QString>

/// Breaks between classes, joined by ";": settings have them in the display unit of the property table, a person reads and
/// types them in the unit of their own choice. What is no number stays as it is.
namespace BreakTexts {

QString shown(const QString &inTable, const DrawFunction &function);
/// \param sign of decimals when they were shown
QString inTable(const QString &shown, const DrawFunction &function, QChar sign);

} // namespace BreakTexts
