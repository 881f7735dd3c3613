#pragma once

#include <QString>

/// Texts of a workspace as tool tips, which would be taken for markup where they look like it. Very long ones are cut.
namespace PlainTip {

QString of(const QString &text);

} // namespace PlainTip
