#include "formulalexer.h"

#include <formulas/formulaerror.h>

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(Formula)
};

bool startsName(QChar c) {
  return c.isLetter() || c == QLatin1Char('_');
}

/// In the name of a property; a dot only between other characters.
bool continuesProperty(const QString &text, int i) {
  const QChar c = text.at(i);
  return c.isLetterOrNumber() || c == QLatin1Char('_') ||
         (c == QLatin1Char('.') && i + 1 < text.size() && startsName(text.at(i + 1)));
}

/// The character that an escape at the position stands for, whose length is told; null when there is none.
QChar escapedAt(const QString &text, int position, int &length) {
  const int end = text.indexOf(QLatin1Char(';'), position);
  constexpr int LongestEscape = 8;
  if (text.at(position) != QLatin1Char('&') || end < 0 || end - position > LongestEscape)
    return QChar();
  const QString inner = text.mid(position + 1, end - position - 1);
  length = end - position + 1;
  if (inner == QLatin1String("lt"))
    return QLatin1Char('<');
  if (inner == QLatin1String("gt"))
    return QLatin1Char('>');
  if (!inner.startsWith(QLatin1Char('#')))
    return QChar();
  bool isNumber = false;
  const ushort code = inner.mid(1).toUShort(&isNumber);
  return isNumber ? QChar(code) : QChar();
}

/// Whether a reference is all that isnull(), isnotnull() or nonull() are asked for, perhaps in brackets of its own.
/// \param before the formula up to the reference \param end the position behind it in the text
bool isAskedAsText(const QString &before, const QString &text, int end) {
  static const QRegularExpression call(
      QStringLiteral("(?<![\\p{L}\\p{N}_])(?:isnull|isnotnull|nonull)\\s*\\((\\s*\\()*\\s*$"));
  while (end < text.size() && text.at(end).isSpace())
    ++end;
  return end < text.size() && text.at(end) == QLatin1Char(')') && call.match(before).hasMatch();
}

} // namespace

bool FormulaLexer::continuesName(QChar c) {
  static const QString Ends = QStringLiteral(" \t\r\n()[]{}<>=!+-*/^|&?:,;\"'%@~");
  return !Ends.contains(c);
}

FormulaLexer::FormulaLexer(const QString &text, FormulaReference::Bare bare,
                           const std::function<bool(const QString &)> &isKnown) {
  checkLimits(text);
  for (int i = 0; i < text.size();) {
    const QChar c = text.at(i);
    if (c == QLatin1Char('"')) { // a text stays as it is
      int end = i + 1;
      while (end < text.size() && text.at(end) != QLatin1Char('"'))
        end += text.at(end) == QLatin1Char('\\') ? 2 : 1;
      expression += text.midRef(i, std::min(end, text.size() - 1) - i + 1);
      i = end + 1;
      continue;
    }
    if (c.isDigit() || (c == QLatin1Char('.') && i + 1 < text.size() && text.at(i + 1).isDigit())) { // a number and its unit
      while (i < text.size() &&
             (text.at(i).isLetterOrNumber() || text.at(i) == QLatin1Char('.') ||
              ((text.at(i) == QLatin1Char('+') || text.at(i) == QLatin1Char('-')) && i > 0 &&
               text.at(i - 1).toLower() == QLatin1Char('e') && i + 1 < text.size() && text.at(i + 1).isDigit())))
        expression += text.at(i++);
      continue;
    }
    if (!startsName(c)) {
      expression += c;
      ++i;
      continue;
    }
    QStringList parts;
    int end = i;
    while (end < text.size() && continuesProperty(text, end))
      ++end;
    parts.append(text.mid(i, end - i));
    i = end;
    while (i < text.size() && text.at(i) == QLatin1Char('@'))
      parts.append(takeName(text, ++i));
    int next = i;
    while (next < text.size() && text.at(next).isSpace())
      ++next;
    const bool isFunction = next < text.size() && text.at(next) == QLatin1Char('(');
    if (parts.size() == 1 && (isFunction || bare == FormulaReference::Bare::Refused || isKnown(parts.first())))
      expression += parts.first();
    else
      addReference(parts.size() == 1 ? parts << QStringLiteral("ELE") : parts, isAskedAsText(expression, text, i));
  }
}

void FormulaLexer::checkLimits(const QString &text) const {
  constexpr int LongestText = 4000;
  constexpr int DeepestNesting = 100;
  constexpr int MostCommas = 300;
  if (text.trimmed().isEmpty())
    throw FormulaError(Texts::tr("The formula is empty."));
  if (text.size() > LongestText)
    throw FormulaError(Texts::tr("The formula is longer than %1 characters.").arg(LongestText));
  int depth = 0;
  for (const QChar c : text) {
    if (c == QLatin1Char('(') || c == QLatin1Char('{') || c == QLatin1Char('['))
      ++depth;
    else if (c == QLatin1Char(')') || c == QLatin1Char('}') || c == QLatin1Char(']'))
      --depth;
    if (depth > DeepestNesting)
      throw FormulaError(Texts::tr("The formula is nested more deeply than %1 brackets.").arg(DeepestNesting));
  }
  if (text.count(QLatin1Char(',')) > MostCommas)
    throw FormulaError(Texts::tr("The formula has more than %1 commas.").arg(MostCommas));
}

QString FormulaLexer::takeName(const QString &text, int &i) {
  QString name;
  while (i < text.size()) {
    int length = 0;
    const QChar escaped = escapedAt(text, i, length);
    if (!escaped.isNull()) {
      name += escaped;
      i += length;
    } else if (continuesName(text.at(i))) {
      name += text.at(i++);
    } else {
      break;
    }
  }
  if (name.isEmpty())
    throw FormulaError(Texts::tr("A name is missing after \"@\" at character %1.").arg(i));
  return name;
}

void FormulaLexer::addReference(const QStringList &parts, bool isText) {
  FormulaReference reference;
  reference.isText = isText;
  reference.property = PropertyKey::intern(parts.first());
  reference.elementName = parts.last() == QLatin1String("ELE") ? QString() : parts.last();
  for (int i = parts.size() - 2; i > 0; --i)
    reference.path.push_back(PropertyKey::intern(parts.at(i)));
  const auto known = std::find_if(references.begin(), references.end(), [&reference](const FormulaReference &other) {
    return other.property == reference.property && other.path == reference.path &&
           other.elementName == reference.elementName && other.isText == reference.isText;
  });
  expression += variable(static_cast<std::size_t>(known - references.begin()));
  if (known == references.end())
    references.push_back(reference);
}
