#include <tools/plaintip.h>

#include <QTextDocument>

QString PlainTip::of(const QString &text) {
  constexpr int Longest = 2000;
  const QString shown = text.size() > Longest ? text.left(Longest) + QStringLiteral(" …") : text;
  return Qt::mightBeRichText(shown) ? QStringLiteral("<qt>%1</qt>").arg(shown.toHtmlEscaped()) : shown;
}
