#pragma once

#include <QString>

#include <machines/machinedata.h>

/// Which functions of machines count in a workspace, as a person chose it there. Kept among the user's own settings.
namespace FunctionMemory {

/// Our own fits as long as nobody chose.
FunctionSource of(const QString &workspaceRoot);
/// False with the reason when it cannot be written.
bool keep(const QString &workspaceRoot, FunctionSource source, QString *reason);

} // namespace FunctionMemory
