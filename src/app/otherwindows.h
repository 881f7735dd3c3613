#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

/// Tables and the guide: windows without a parent, beside the one of the program.
namespace OtherWindows {

QList<QPointer<QWidget>> beside(const QWidget &window);
/// They would keep the program alive. False when one of them refuses.
bool close(const QWidget &window);

} // namespace OtherWindows
