#include "aboutbox.h"

#include "buildinfo.h"
#include "logo.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QIcon>
#include <QLocale>
#include <QMessageBox>
#include <qwt_global.h>

#include <mpParser.h>

namespace {

/// "MMM d yyyy hh:mm:ss" of this file's compilation, which follows every change of what git knows.
QString buildTime() {
  const QDateTime time =
      QLocale::c().toDateTime(QStringLiteral(__DATE__ " " __TIME__).simplified(), QStringLiteral("MMM d yyyy hh:mm:ss"));
  return QLocale::c().toString(time, QStringLiteral("MMM d yyyy hh:mm:ss"));
}

} // namespace

QString AboutBox::version() {
  return QStringLiteral(NIVRA_VERSION);
}

QString AboutBox::contents() {
  const QString libraries =
      tr("<b>NIVRA Reader %1</b><br>Built with Qt %2 (runtime: Qt %3)<br>muParserX %4<br>Qwt %5<br>")
          .arg(version(), QStringLiteral(QT_VERSION_STR), QString::fromLatin1(qVersion()),
               QString::fromStdString(mup::ParserXBase::GetVersion()).toHtmlEscaped(), QStringLiteral(QWT_VERSION_STR));
  const QString build = tr("Build on %1\nFrom revision %2\nGit tag: %3\nGit refspec: %4\nGit local changes: %5")
                            .arg(buildTime(), QStringLiteral(NIVRA_GIT_REVISION), QStringLiteral(NIVRA_GIT_TAG),
                                 QStringLiteral(NIVRA_GIT_REFSPEC), QStringLiteral(NIVRA_GIT_CHANGES));
  return libraries + QStringLiteral("<p style=\"white-space:pre-wrap\">") + build.toHtmlEscaped() + QStringLiteral("</p>");
}

void AboutBox::show(QWidget *parent) {
  QMessageBox box(QMessageBox::NoIcon, tr("About Nivra Reader"), contents(), QMessageBox::Ok, parent);
  box.setTextFormat(Qt::RichText);
  box.setTextInteractionFlags(Qt::TextBrowserInteraction);
  constexpr int LogoSize = 64;
  box.setIconPixmap(productLogo().pixmap(LogoSize, LogoSize));
  box.exec();
}
