#pragma once

#include <QPalette>

/// The program's own colours of windows, for desktops that bring none of the wanted kind. Whatever is read stands out from
/// what it stands on by at least 4.5 to 1 (WCAG 2), also where it is greyed.
namespace ThemePalette {

QPalette light();
QPalette dark();
bool isDark(const QPalette &palette);
/// Letters that say that something is wrong, on the ground of fields.
QColor wrong(const QPalette &palette);

} // namespace ThemePalette
