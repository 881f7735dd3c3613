#pragma once

#include <QStringList>

class QWidget;

/// The dialog that opens a workspace.
namespace OpenDialog {

/// The chosen file; empty when none was.
/// \param start the folder or file at which it begins
/// \param folders for the side bar
QString ask(QWidget *parent, const QString &start, const QStringList &folders);

} // namespace OpenDialog
