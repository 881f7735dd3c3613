#include <base/finding.h>
#include <base/nivramsg.h>

#include <QCoreApplication>

#include <iterator>

namespace {

NivraMsg::Kind boxKind(const Finding &finding) {
  if (finding.isForInformation)
    return NivraMsg::Kind::Information;
  switch (finding.severity) {
  case Finding::Severity::Debug:
  case Finding::Severity::Information:
    return NivraMsg::Kind::Information;
  case Finding::Severity::Warning:
    break;
  case Finding::Severity::Critical:
    return NivraMsg::Kind::Critical;
  }
  return NivraMsg::Kind::Warning;
}

} // namespace

QString Finding::logText() const {
  QString said = text.isEmpty() ? box : text;
  if (said.isEmpty() || (file.isEmpty() && line <= 0))
    return said;
  QString where = file;
  if (line > 0)
    where += file.isEmpty() ? QCoreApplication::translate("Finding", "line %1").arg(line)
                            : QLatin1Char(':') + QString::number(line);
  return said + QStringLiteral(" (") + where + QLatin1Char(')');
}

void append(Findings &findings, Findings more) {
  std::move(more.begin(), more.end(), std::back_inserter(findings));
}

void tell(const Told &told, Finding::Severity severity, const QString &text) {
  if (told)
    told({severity, {}, 0, text});
}

void logFinding(const Finding &finding) {
  const QString text = finding.logText();
  if (text.isEmpty())
    return;
  switch (finding.severity) {
  case Finding::Severity::Debug:
    NivraMsg::debug(text);
    break;
  case Finding::Severity::Information:
    NivraMsg::log(text);
    break;
  case Finding::Severity::Warning:
    NivraMsg::logWarning(text);
    break;
  case Finding::Severity::Critical:
    NivraMsg::logCritical(text);
    break;
  }
}

void showFinding(const Finding &finding) {
  if (!finding.text.isEmpty())
    logFinding(finding);
  if (!finding.box.isEmpty())
    NivraMsg::message(boxKind(finding), finding.box);
}

void report(const Findings &findings) {
  const Finding *shown = nullptr;
  int further = 0;
  for (const Finding &finding : findings) {
    logFinding(finding);
    if (finding.box.isEmpty())
      continue;
    if (shown)
      ++further;
    else
      shown = &finding;
  }
  if (!shown || !NivraMsg::showsBoxes())
    return;
  QString text = shown->box;
  if (further > 0)
    text += QStringLiteral("\n\n") +
            (further == 1 ? QCoreApplication::translate("Finding", "(and 1 further message, see the log)")
                          : QCoreApplication::translate("Finding", "(and %1 further messages, see the log)").arg(further));
  NivraMsg::message(boxKind(*shown), text);
}
