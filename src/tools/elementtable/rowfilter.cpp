#include "elementtable/rowfilter.h"

#include "shared/naturalorder.h"

#include <model/displayformat.h>

#include <QRegularExpression>

#include <algorithm>
#include <limits>

namespace {

/// As people write it, with either decimal sign.
bool isNumber(QString text, double &number) {
  text = DisplayFormat::typed(text.trimmed());
  if (!text.contains(QLatin1Char('.')))
    text.replace(QLatin1Char(','), QLatin1Char('.'));
  bool isOne = false;
  number = text.toDouble(&isOne);
  return isOne && std::isfinite(number);
}

/// A person types what is seen, which is rounded.
bool readsAs(double number, double typed) {
  return number == typed || DisplayFormat::typed(DisplayFormat::number(number)).toDouble() == typed;
}

} // namespace

RowFilter::RowFilter(const QString &text, bool ofNumbers) {
  static const QRegularExpression either(QStringLiteral("\\s+\\|\\s+"));
  static const QRegularExpression both(QStringLiteral("\\s+&\\s+"));
  for (const QString &alternative : text.trimmed().split(either, Qt::SkipEmptyParts)) {
    std::vector<Condition> conditions;
    for (const QString &part : alternative.split(both, Qt::SkipEmptyParts))
      conditions.push_back(condition(part.trimmed(), ofNumbers));
    m_alternatives.push_back(std::move(conditions));
  }
  if (!m_fault.isEmpty())
    m_alternatives.clear();
}

RowFilter::Condition RowFilter::condition(const QString &text, bool ofNumbers) {
  static const QRegularExpression comparing(QStringLiteral("^(<=|>=|!=|<>|<|>|=)\\s*(.*)$"));
  const QRegularExpressionMatch match = comparing.match(text);
  if (match.hasMatch())
    return comparison(match.captured(1), match.captured(2), ofNumbers);
  Condition asked;
  if (range(text, ofNumbers, asked))
    return asked;
  m_needsTexts = true;
  asked.text = text;
  return asked;
}

RowFilter::Condition RowFilter::comparison(const QString &sign, const QString &operand, bool ofNumbers) {
  Condition asked;
  asked.asks = sign == QLatin1String("<")    ? Asks::Less
               : sign == QLatin1String("<=") ? Asks::LessOrEqual
               : sign == QLatin1String(">")  ? Asks::Greater
               : sign == QLatin1String(">=") ? Asks::GreaterOrEqual
               : sign == QLatin1String("=")  ? Asks::Equal
                                             : Asks::Unequal;
  const bool isOrder = asked.asks != Asks::Equal && asked.asks != Asks::Unequal;
  asked.text = operand;
  asked.isNumber = isNumber(operand, asked.low);
  if (operand.isEmpty() && isOrder)
    m_fault = tr("Behind %1 a value is missing, such as %1 10").arg(sign);
  else if (operand.isEmpty())
    asked.asks = asked.asks == Asks::Equal ? Asks::Empty : Asks::NotEmpty;
  else if (!asked.isNumber && ofNumbers && isOrder)
    m_fault = tr("\"%1\" is no number").arg(operand);
  m_needsTexts = m_needsTexts || (!asked.isNumber && !operand.isEmpty());
  return asked;
}

bool RowFilter::range(const QString &text, bool ofNumbers, Condition &range) {
  const int dots = text.indexOf(QLatin1String(".."));
  if (dots < 0)
    return false;
  const QString low = text.left(dots).trimmed();
  const QString high = text.mid(dots + 2).trimmed();
  range.asks = Asks::Range;
  range.low = -std::numeric_limits<double>::infinity();
  range.high = std::numeric_limits<double>::infinity();
  const bool isLow = low.isEmpty() || isNumber(low, range.low);
  const bool isHigh = high.isEmpty() || isNumber(high, range.high);
  if (!isLow || !isHigh || (low.isEmpty() && high.isEmpty())) {
    range = Condition(); // a text with dots in it
    if (ofNumbers)
      m_fault = tr("A range is written with two numbers, such as 5..20");
    return ofNumbers;
  }
  if (range.low > range.high)
    m_fault = tr("The range ends before it begins: %1..%2 would be one").arg(high, low);
  return true;
}

bool RowFilter::holds(double number, const QString &text) const {
  return std::any_of(m_alternatives.begin(), m_alternatives.end(), [&](const std::vector<Condition> &conditions) {
    return std::all_of(conditions.begin(), conditions.end(),
                       [&](const Condition &condition) { return holds(condition, number, text); });
  });
}

bool RowFilter::holds(const Condition &condition, double number, const QString &text) {
  const bool hasNumber = !std::isnan(number);
  const bool isEmpty = !hasNumber && text.isEmpty();
  switch (condition.asks) {
  case Asks::Part:
    return text.contains(condition.text, Qt::CaseInsensitive);
  case Asks::Empty:
    return isEmpty;
  case Asks::NotEmpty:
    return !isEmpty;
  case Asks::Range:
    return hasNumber && number >= condition.low && number <= condition.high;
  case Asks::Equal:
  case Asks::Unequal: {
    const bool isEqual = hasNumber && condition.isNumber ? readsAs(number, condition.low)
                                                         : text.compare(condition.text, Qt::CaseInsensitive) == 0;
    return isEqual == (condition.asks == Asks::Equal);
  }
  default:
    break;
  }
  if (isEmpty || hasNumber != condition.isNumber)
    return false; // a text is neither more nor less than a number
  int order = hasNumber ? (number < condition.low   ? -1
                           : number > condition.low ? 1
                                                    : 0)
                        : NaturalOrder::key(text).compare(NaturalOrder::key(condition.text));
  if (condition.asks == Asks::Less)
    return order < 0;
  if (condition.asks == Asks::LessOrEqual)
    return order <= 0;
  return condition.asks == Asks::Greater ? order > 0 : order >= 0;
}
