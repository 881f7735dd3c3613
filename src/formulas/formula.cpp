#include "formulalexer.h"

#include <formulas/formula.h>
#include <formulas/parserfactory.h>

#include <QHash>

#include <deque>
#include <mpParser.h>

/// The parser and what it looks at, which must not move.
struct Formula::Engine {
  const NetData *net = nullptr;
  std::unique_ptr<mup::ParserX> parser;
  std::vector<FormulaReference> references;
  std::deque<mup::Value> values; ///< one a reference

  const PropertyText *resolve(const FormulaReference &reference, const element &current) const;
  /// Binds the values and lets take() have what the expression yields.
  template <typename Take>
  auto evaluate(const element &current, const Take &take);
};

namespace {

QString asResultText(const mup::IValue &value) {
  switch (value.GetType()) {
  case 'b':
    return value.GetBool() ? QStringLiteral("1") : QStringLiteral("0");
  case 's':
    return QString::fromStdString(value.GetString());
  case 'i':
  case 'f':
    return QString::fromStdString(formatNumber(value.GetFloat()));
  default:
    return QString::fromStdString(value.ToString());
  }
}

} // namespace

Formula::Formula(const QString &text, const NetData &net, Bare bare)
    : m_engine(std::make_unique<Engine>()) {
  m_engine->net = &net;
  try {
    m_engine->parser = ParserFactory::create(&net);
    const mup::ParserX &parser = *m_engine->parser;
    FormulaLexer lexer(text, bare, [&parser](const QString &name) {
      return parser.IsConstDefined(name.toStdString()) || parser.IsOprtDefined(name.toStdString()) ||
             name == QLatin1String("true") || name == QLatin1String("false");
    });
    m_engine->references = std::move(lexer.references);
    for (std::size_t i = 0; i < m_engine->references.size(); ++i) {
      m_engine->values.emplace_back(mup::float_type(0.0));
      m_engine->parser->DefineVar(FormulaLexer::variable(i).toStdString(), mup::Variable(&m_engine->values.back()));
    }
    m_engine->parser->SetExpr(lexer.expression.toStdString());
  } catch (const mup::ParserError &error) {
    throw FormulaError(QString::fromStdString(error.GetMsg()));
  }
}

Formula::~Formula() = default;
Formula::Formula(Formula &&other) noexcept = default;
Formula &Formula::operator=(Formula &&other) noexcept = default;

const std::vector<FormulaReference> &Formula::references() const {
  return m_engine->references;
}

const PropertyText *Formula::Engine::resolve(const FormulaReference &reference, const element &current) const {
  const element *at = reference.elementName.isEmpty() ? &current : net->element(reference.elementName);
  for (const PropertyKey step : reference.path) {
    const PropertyText *name = at == nullptr ? nullptr : at->find(step);
    at = name == nullptr ? nullptr : net->element(name->toString());
  }
  return at == nullptr ? nullptr : at->find(reference.property);
}

template <typename Take>
auto Formula::Engine::evaluate(const element &current, const Take &take) {
  bool lacksValue = false;
  for (std::size_t i = 0; i < references.size(); ++i) {
    const PropertyText *text = resolve(references[i], current);
    mup::Value &value = values[i];
    lacksValue = lacksValue || text == nullptr;
    if (text == nullptr)
      value = ParserFactory::nullText();
    else if (const std::optional<double> number = text->toDouble())
      value = static_cast<mup::float_type>(*number);
    else
      value = mup::string_type(text->utf8());
  }
  try {
    return take(parser->Eval());
  } catch (const mup::ParserError &error) {
    throw FormulaError(QString::fromStdString(error.GetMsg()), lacksValue);
  } catch (const std::exception &error) { // the library's matrices throw their own
    throw FormulaError(QString::fromUtf8(error.what()), lacksValue);
  }
}

Formula::Result Formula::evaluate(const element &current) const {
  return m_engine->evaluate(current, [](const mup::IValue &result) {
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
  return m_engine->evaluate(current, [](const mup::IValue &result) {
    return result.GetType() == 'b' ? result.GetBool() : asResultText(result) != QLatin1String("0");
  });
}

QString Formula::escaped(const QString &name) {
  static const QHash<QChar, QString> Escapes{
      {QLatin1Char('<'), QStringLiteral("&lt;")},  {QLatin1Char('>'), QStringLiteral("&gt;")},
      {QLatin1Char('*'), QStringLiteral("&#42;")}, {QLatin1Char('+'), QStringLiteral("&#43;")},
      {QLatin1Char('-'), QStringLiteral("&#45;")}, {QLatin1Char('.'), QStringLiteral("&#46;")},
      {QLatin1Char('/'), QStringLiteral("&#47;")}, {QLatin1Char('|'), QStringLiteral("&#124;")}};
  QString text;
  for (const QChar c : name) {
    const auto escape = Escapes.constFind(c);
    if (escape != Escapes.constEnd())
      text += *escape;
    else if (FormulaLexer::continuesName(c))
      text += c;
    else
      text += QStringLiteral("&#%1;").arg(c.unicode());
  }
  return text;
}

QString Formula::renamed(const QString &text, const QHash<QString, QString> &names) {
  QString renamed;
  bool isQuoted = false;
  for (int i = 0; i < text.size();) {
    const QChar c = text.at(i++);
    renamed += c;
    if (c == QLatin1Char('"'))
      isQuoted = !isQuoted;
    if (isQuoted || c != QLatin1Char('@') || i >= text.size() || !FormulaLexer::continuesName(text.at(i)))
      continue;
    const int begin = i;
    const auto other = names.constFind(FormulaLexer::takeName(text, i));
    renamed += other == names.constEnd() ? text.mid(begin, i - begin) : escaped(*other);
  }
  return renamed;
}
