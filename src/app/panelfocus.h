#pragma once

class QWidget;

/// Where the keyboard goes in a panel that somebody brings by a key.
namespace PanelFocus {

/// To the list that the panel is for where something stands in it, else to its first field.
void give(QWidget &panel);

} // namespace PanelFocus
