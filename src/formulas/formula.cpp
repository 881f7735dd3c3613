#include "formulalexer.h"
#include "formulaparsers.h"

#include <formulas/formula.h>

#include <QCoreApplication>
#include <QRegularExpression>

#include <atomic>
#include <mpParser.h>

/// The expression, what it refers to, and the parsers that it may use.
struct Formula::Engine {
  const NetData *net = nullptr;
  QString original; ///< as it was written
  QString expression;
  std::vector<FormulaReference> references; ///< one a variable of the expression
  std::shared_ptr<FormulaParsers> parsers;
  quint64 id = 0;  ///< that no other formula has
  QString givenUp; ///< why it is not evaluated any more; empty while it is

  static quint64 nextId() {
    static std::atomic<quint64> last = 0;
    return ++last;
  }
  FormulaParsers::Slot &slot() { return parsers->slotFor(id, expression, references.size()); }
  const PropertyText *resolve(const FormulaReference &reference, const element &current, const FormulaNames *names) const;
  /// Returns whether all values are there.
  bool bind(FormulaParsers::Slot &slot, const element &current, const FormulaNames *names) const;
  /// Binds the values and lets take() have what the expression yields.
  template <typename Take>
  auto evaluate(const element &current, const FormulaNames *names, const Take &take);
  QString readable(const std::string &message) const;
  /// What the references that are no numbers stand for, to be put behind a message; empty when all are.
  QString odd(const element &current, const FormulaNames *names) const;
};

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(Formula)
};

QString asResultText(const mup::IValue &value) {
  switch (value.GetType()) {
  case 'b':
    return value.GetBool() ? QStringLiteral("1") : QStringLiteral("0");
  case 's':
    return QString::fromStdString(value.GetString());
  case 'i':
  case 'f':
    return QString::fromStdString(formatNumber(value.GetFloat()));
  case 'm':
    if (value.GetRows() * value.GetCols() > EvaluationBounds::MostPrinted)
      throw FormulaError(Texts::tr("its result is a matrix of more than %1 numbers").arg(EvaluationBounds::MostPrinted));
    return QString::fromStdString(value.ToString());
  default:
    return QString::fromStdString(value.ToString());
  }
}

} // namespace

Formula::Formula(const QString &text, const NetData &net, Bare bare, std::shared_ptr<FormulaParsers> parsers)
    : m_engine(std::make_unique<Engine>()) {
  m_engine->net = &net;
  m_engine->original = text;
  m_engine->id = Engine::nextId();
  m_engine->parsers = parsers != nullptr ? std::move(parsers) : std::make_shared<FormulaParsers>(net, 1);
  try {
    const mup::ParserX &parser = m_engine->parsers->any();
    FormulaLexer lexer(text, bare, [&parser](const QString &name) {
      return parser.IsConstDefined(name.toStdString()) || parser.IsOprtDefined(name.toStdString()) ||
             name == QLatin1String("true") || name == QLatin1String("false");
    });
    m_engine->references = std::move(lexer.references);
    m_engine->expression = lexer.expression;
    m_engine->slot().parser->GetExprVar(); // parses, so that what is no formula is told at once
  } catch (const mup::ParserError &error) {
    throw FormulaError(m_engine->readable(error.GetMsg()));
  }
}

Formula::~Formula() = default;
Formula::Formula(Formula &&other) noexcept = default;
Formula &Formula::operator=(Formula &&other) noexcept = default;

const std::vector<FormulaReference> &Formula::references() const {
  return m_engine->references;
}

const PropertyText *Formula::Engine::resolve(const FormulaReference &reference, const element &current,
                                             const FormulaNames *names) const {
  const element *at = reference.start(*net, &current, names);
  for (const PropertyKey step : reference.path) {
    const PropertyText *name = at == nullptr ? nullptr : at->find(step);
    at = name == nullptr ? nullptr : net->element(name->toString());
  }
  return at == nullptr ? nullptr : at->find(reference.property);
}

bool Formula::Engine::bind(FormulaParsers::Slot &slot, const element &current, const FormulaNames *names) const {
  bool hasAll = true;
  for (std::size_t i = 0; i < references.size(); ++i) {
    const PropertyText *text = resolve(references[i], current, names);
    mup::Value &value = slot.values[i];
    hasAll = hasAll && text != nullptr;
    const std::optional<double> number = text == nullptr || references[i].isText ? std::nullopt : text->toDouble();
    if (text == nullptr)
      value = mup::string_type(FormulaReference::Null);
    else if (number)
      value = static_cast<mup::float_type>(*number);
    else
      value = mup::string_type(text->utf8());
  }
  return hasAll;
}

/// With the references as they are written, in place of the variables that stand for them.
QString Formula::Engine::readable(const std::string &message) const {
  static const QRegularExpression variable(QStringLiteral("\\bv_(\\d+)\\b"));
  QString text = QString::fromStdString(message);
  for (QRegularExpressionMatch match = variable.match(text); match.hasMatch();) {
    const auto number = match.captured(1).toULongLong();
    const QString written = number < references.size() ? references[number].written() : match.captured();
    text.replace(match.capturedStart(), match.capturedLength(), written);
    match = variable.match(text, match.capturedStart() + written.size());
  }
  return text;
}

QString Formula::Engine::odd(const element &current, const FormulaNames *names) const {
  constexpr int MaximumParts = 3;
  constexpr int ShownCharacters = 30;
  QStringList parts;
  for (const FormulaReference &reference : references) {
    const PropertyText *value = resolve(reference, current, names);
    if (value == nullptr)
      parts.append(Texts::tr("%1 is missing").arg(reference.written()));
    else if (!value->toDouble())
      parts.append(Texts::tr("%1 is \"%2\"").arg(reference.written(), value->toString().left(ShownCharacters)));
  }
  return parts.isEmpty() ? QString()
                         : QStringLiteral(" (%1)").arg(QStringList(parts.mid(0, MaximumParts)).join(QStringLiteral(", ")));
}

template <typename Take>
auto Formula::Engine::evaluate(const element &current, const FormulaNames *names, const Take &take) {
  if (!givenUp.isEmpty())
    throw FormulaError(givenUp);
  bool hasAll = true;
  try {
    FormulaParsers::Slot &used = slot();
    hasAll = bind(used, current, names);
    used.parser->bounds().restart();
    return take(used.parser->Eval());
  } catch (const FormulaError &error) {
    constexpr int ShownCharacters = 80;
    const QString shown =
        original.size() > ShownCharacters ? original.left(ShownCharacters) + QStringLiteral("…") : original;
    const QString why = Texts::tr("The formula \"%1\" is stopped: %2").arg(shown, error.text());
    if (error.kind() == FormulaError::Kind::TooCostly)
      givenUp = why;
    throw FormulaError(why, error.kind());
  } catch (const mup::ParserError &error) {
    throw FormulaError(readable(error.GetMsg()) + odd(current, names),
                       hasAll ? FormulaError::Kind::Fault : FormulaError::Kind::MissingValue);
  } catch (const std::exception &error) { // the library's matrices throw their own
    throw FormulaError(QString::fromUtf8(error.what()),
                       hasAll ? FormulaError::Kind::Fault : FormulaError::Kind::MissingValue);
  }
}

Formula::Result Formula::evaluate(const element &current, const FormulaNames *names) const {
  return m_engine->evaluate(current, names, [](const mup::IValue &result) {
    Result found;
    found.text = asResultText(result);
    if (result.GetType() == 'b')
      found.number = result.GetBool() ? 1.0 : 0.0;
    else if (result.IsNonComplexScalar())
      found.number = result.GetFloat();
    return found;
  });
}

bool Formula::accepts(const element &current) const {
  return m_engine->evaluate(current, nullptr, [](const mup::IValue &result) {
    return result.GetType() == 'b' ? result.GetBool() : asResultText(result) != QLatin1String("0");
  });
}
