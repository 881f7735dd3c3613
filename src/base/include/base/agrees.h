#pragma once

#include <QString>

namespace NivraMsg {

/// Asks a question to which the careful answer is no; also that of a run in which nobody is asked.
bool agrees(const QString &question);

} // namespace NivraMsg
