#include <tools/plaintip.h>

#include <QTextDocument>

QString PlainTip::of(const QString &text) {
  constexpr int LongestTip = 2000; // characters
  const QString shown = text.size() > LongestTip ? text.left(LongestTip) + QStringLiteral(" …") : text;
  return Qt::mightBeRichText(shown) ? QStringLiteral("<qt>%1</qt>").arg(shown.toHtmlEscaped()) : shown;
}
