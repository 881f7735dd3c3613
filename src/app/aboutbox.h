#pragma once

#include <QCoreApplication>
#include <QString>

class QWidget;

class AboutBox {
  Q_DECLARE_TR_FUNCTIONS(AboutBox)
public:
  static QString version(); ///< of this build, such as "1.0.0"
  /// Rich text: program and library versions as compiled against and linked, and where the build comes from.
  static QString contents();
  static void show(QWidget *parent);
};
