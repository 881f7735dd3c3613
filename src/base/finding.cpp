#include <base/finding.h>
#include <base/nivramsg.h>

#include <QCoreApplication>

QString Finding::logText() const {
  if (file.isEmpty())
    return text;
  return line > 0 ? QStringLiteral("%1 (%2:%3)").arg(text, file).arg(line) : QStringLiteral("%1 (%2)").arg(text, file);
}

void report(const Findings &findings) {
  const Finding *first = nullptr;
  int boxes = 0;
  for (const Finding &finding : findings) {
    switch (finding.severity) {
    case Finding::Severity::Information:
      NivraMsg::log(finding.logText());
      break;
    case Finding::Severity::Warning:
      NivraMsg::logWarning(finding.logText());
      break;
    case Finding::Severity::Critical:
      NivraMsg::logCritical(finding.logText());
      break;
    }
    if (!finding.box.isEmpty() && ++boxes == 1)
      first = &finding;
  }
  if (first == nullptr)
    return;
  const QString more = boxes > 1
                           ? QCoreApplication::translate("Findings", "\n\n... and %1 more, see the messages.").arg(boxes - 1)
                           : QString();
  NivraMsg::message(first->severity == Finding::Severity::Information ? NivraMsg::Kind::Information
                                                                      : NivraMsg::Kind::Warning,
                    first->box + more);
}
