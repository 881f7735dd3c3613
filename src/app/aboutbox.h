#pragma once

#include <QString>

class QWidget;

namespace AboutBox {

QString version(); ///< of this build, such as "1.0.0"
/// Rich text: program and library versions as compiled against and linked, and where the build comes from.
QString contents();
void show(QWidget *parent);

} // namespace AboutBox
