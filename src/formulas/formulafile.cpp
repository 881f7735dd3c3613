#include <formulas/formulaerror.h>
#include <formulas/formulafile.h>
#include <model/elementtypes.h>
#include <model/units.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(FormulaFile)
};

/// The position of the first character outside of quotes for which the test holds; the length of the text when none does.
template <typename Test>
int findOutsideQuotes(const QString &text, int from, const Test &test) {
  bool isQuoted = false;
  for (int i = from; i < text.size(); ++i) {
    if (text.at(i) == QLatin1Char('"'))
      isQuoted = !isQuoted;
    else if (!isQuoted && test(i))
      return i;
  }
  return text.size();
}

/// Cuts one line up; every step throws FormulaError with the reason why it cannot be read.
class LineParser {
public:
  explicit LineParser(const QString &line)
      : m_text(line) {}

  FormulaDefinition parse() {
    takeComment();
    takeProperty();
    if (next() == QLatin1Char('('))
      takeElements();
    if (next() == QLatin1Char('['))
      takeUnit();
    if (next() == QLatin1Char('=')) {
      m_definition.expression = m_text.mid(m_at + 1).trimmed();
      if (m_definition.expression.isEmpty())
        throw FormulaError(Texts::tr("there is no expression after \"=\""));
    } else if (m_text.midRef(m_at).startsWith(QLatin1String("in "))) {
      m_at += 3;
      takeBounds();
    } else {
      throw FormulaError(Texts::tr("\"=\" or \"in\" expected at character %1").arg(m_at + 1));
    }
    return m_definition;
  }

private:
  QChar next() {
    while (m_at < m_text.size() && m_text.at(m_at).isSpace())
      ++m_at;
    return m_at < m_text.size() ? m_text.at(m_at) : QChar();
  }

  /// A "#" after a blank, for escapes have one inside.
  void takeComment() {
    const int at = findOutsideQuotes(
        m_text, 1, [this](int i) { return m_text.at(i) == QLatin1Char('#') && m_text.at(i - 1).isSpace(); });
    m_definition.comment = m_text.mid(at + 1).trimmed();
    m_text.truncate(at);
    m_text = m_text.trimmed();
  }

  void takeProperty() {
    static const QRegularExpression name(QStringLiteral("^[\\p{L}_][\\p{L}\\p{N}_.]*"));
    m_definition.property = name.match(m_text).captured();
    if (m_definition.property.isEmpty())
      throw FormulaError(Texts::tr("the line does not begin with the name of a property"));
    m_at = m_definition.property.size();
  }

  void takeElements() {
    int depth = 0;
    int end = m_at;
    for (; end < m_text.size(); ++end) {
      const QChar c = m_text.at(end);
      if (c == QLatin1Char('\\'))
        ++end;
      else if (c == QLatin1Char('('))
        ++depth;
      else if (c == QLatin1Char(')') && --depth == 0)
        break;
    }
    if (end >= m_text.size())
      throw FormulaError(Texts::tr("a closing bracket is missing after the elements"));
    const QString inner = m_text.mid(m_at + 1, end - m_at - 1);
    m_at = end + 1;
    const int colon = inner.indexOf(QLatin1Char(':'));
    takeTypes(inner.left(colon < 0 ? inner.size() : colon));
    if (colon < 0)
      return;
    m_definition.namePattern = inner.mid(colon + 1).trimmed();
    const QRegularExpression pattern(m_definition.namePattern);
    if (!pattern.isValid())
      throw FormulaError(Texts::tr("the pattern \"%1\" is none: %2").arg(m_definition.namePattern, pattern.errorString()));
  }

  void takeTypes(const QString &list) {
    for (const QString &part : list.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
      const QString type = part.trimmed();
      if (type.isEmpty() || type == QLatin1String("*"))
        continue;
      const ElementType *known = ElementTypes::byCode(type);
      if (known == nullptr)
        known = ElementTypes::byWord(type);
      if (known == nullptr)
        throw FormulaError(Texts::tr("there is no element type \"%1\"").arg(type));
      m_definition.types.append(known->code);
    }
  }

  void takeUnit() {
    const int end = m_text.indexOf(QLatin1Char(']'), m_at);
    if (end < 0)
      throw FormulaError(Texts::tr("a closing bracket is missing after the unit"));
    m_definition.unit = m_text.mid(m_at + 1, end - m_at - 1).trimmed();
    m_at = end + 1;
    if (!m_definition.unit.isEmpty() && !Units::isKnown(m_definition.unit))
      throw FormulaError(Texts::tr("the unit \"%1\" is not known").arg(m_definition.unit));
  }

  void takeBounds() {
    m_definition.isConstraint = true;
    QString bounds = m_text.mid(m_at);
    static const QRegularExpression message(QStringLiteral("(?:^|\\s)\"([^\"]*)\"$"));
    const QRegularExpressionMatch match = message.match(bounds);
    if (match.hasMatch()) {
      m_definition.message = match.captured(1);
      bounds.truncate(match.capturedStart());
    }
    bounds = QLatin1Char(' ') + bounds + QLatin1Char(' ');
    const QLatin1String between(" .. ");
    const int at = findOutsideQuotes(bounds, 0, [&](int i) { return bounds.midRef(i).startsWith(between); });
    if (at == bounds.size())
      throw FormulaError(Texts::tr("the bounds are not parted by \"..\" between blanks"));
    m_definition.lower = bounds.left(at).trimmed();
    m_definition.upper = bounds.mid(at + between.size()).trimmed();
    if (m_definition.lower.isEmpty() && m_definition.upper.isEmpty())
      throw FormulaError(Texts::tr("there is no bound"));
  }

  QString m_text;
  int m_at = 0;
  FormulaDefinition m_definition;
};

} // namespace

QString FormulaDefinition::origin() const {
  return QStringLiteral("%1(%2), %3:%4")
      .arg(property, types.isEmpty() ? QStringLiteral("*") : types.join(QLatin1Char(',')), QFileInfo(file).fileName())
      .arg(line);
}

FormulaFile::Contents FormulaFile::parse(const QByteArray &text, const QString &fileName, const QString &category) {
  constexpr int LongestLine = 1 << 16;
  Contents contents;
  QString current = category;
  const QList<QByteArray> lines = text.split('\n');
  for (int i = 0; i < lines.size(); ++i) {
    const QString line = QString::fromUtf8(lines.at(i)).trimmed();
    if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
      continue;
    if (line.startsWith(QLatin1Char('[')) && line.endsWith(QLatin1Char(']'))) {
      current = line.mid(1, line.size() - 2).trimmed();
      continue;
    }
    try {
      if (line.size() > LongestLine)
        throw FormulaError(Texts::tr("it is longer than %1 characters").arg(LongestLine));
      FormulaDefinition definition = LineParser(line).parse();
      definition.category = current;
      definition.file = fileName;
      definition.line = i + 1;
      contents.definitions.push_back(definition);
    } catch (const FormulaError &error) {
      contents.findings.push_back(
          {Finding::Severity::Warning, fileName, i + 1, Texts::tr("The line is left out: %1").arg(error.text()), QString()});
    }
  }
  return contents;
}

FormulaFile::Contents FormulaFile::read(const QString &path, const QString &category, FileAccess::Source source) {
  QString reason;
  if (const auto text = FileAccess::readWhole(path, source, FileAccess::LargestConfiguration, &reason))
    return parse(*text, path, category);
  Contents contents;
  contents.findings.push_back(
      {Finding::Severity::Warning, path, 0, Texts::tr("The formulas cannot be read: %1").arg(reason), QString()});
  return contents;
}
