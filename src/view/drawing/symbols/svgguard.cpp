#include "symbols/svgguard.h"

#include "symbols/picturebounds.h"

#include <base/xmlbounds.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QSet>
#include <QXmlStreamReader>

#include <algorithm>
#include <charconv>
#include <limits>

namespace {

constexpr XmlBounds::Limits Bounds{100, 100, 50, true};

/// Whether marks are ASCII in it, as the first look at the text takes for granted.
bool isPlainEncoding(const QStringRef &encoding) {
  static const QStringList plain{QString(),
                                 QStringLiteral("utf-8"),
                                 QStringLiteral("us-ascii"),
                                 QStringLiteral("ascii"),
                                 QStringLiteral("iso-8859-1"),
                                 QStringLiteral("windows-1252")};
  return plain.contains(encoding.toString(), Qt::CaseInsensitive);
}

bool isGap(char c) {
  return c == ' ' || c == '\n' || c == '\t' || c == '\r';
}

/// Only pixels in formats whose reader does not read SVG in turn, and not too many.
bool isBoundedPixels(const QStringRef &url) {
  const int comma = url.indexOf(QLatin1Char(','));
  QByteArray content = comma < 0 || !url.left(comma).endsWith(QLatin1String(";base64"))
                           ? QByteArray()
                           : QByteArray::fromBase64(url.mid(comma + 1).toLatin1());
  QBuffer buffer(&content);
  QString unasked;
  return !PictureBounds::format(buffer, &unasked).isEmpty();
}

bool isInside(const QStringRef &reference) {
  const QStringRef target = reference.trimmed();
  return target.isEmpty() || target.startsWith(QLatin1Char('#'));
}

bool namesOutside(const QStringRef &text) {
  for (int i = text.indexOf(QLatin1String("url("), 0, Qt::CaseInsensitive); i >= 0;
       i = text.indexOf(QLatin1String("url("), i + 1, Qt::CaseInsensitive)) {
    QStringRef target = text.mid(i + 4).trimmed();
    if (target.startsWith(QLatin1Char('\'')) || target.startsWith(QLatin1Char('"')))
      target = target.mid(1);
    if (!isInside(target))
      return true;
  }
  return text.contains(QLatin1String("@import"), Qt::CaseInsensitive);
}

/// What a text of numbers holds: coordinates, lengths, a path.
struct Numbers {
  int count = 0;
  double largest = 0.0; ///< magnitude
  double sum = 0.0;
};

bool isOfName(char c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '-' || c == '_' || c == '.';
}

/// Digits behind a "#" are those of a colour or of another element's name. A path has neither: its reader passes over the
/// "#" and draws what follows.
Numbers numbersIn(const QStringRef &text, bool isPath = false) {
  Numbers numbers;
  const QByteArray bytes = text.toLatin1();
  const char *at = bytes.constData();
  const char *end = at + bytes.size();
  while (at < end) {
    if (*at == '#' && !isPath) {
      at = std::find_if_not(at + 1, end, isOfName);
      continue;
    }
    double number = 0.0;
    const bool mayBegin = (*at >= '0' && *at <= '9') || *at == '.'; // signs do not matter, and "inf" is a word
    const auto [behind, error] = std::from_chars(mayBegin ? at : end, end, number);
    if (!mayBegin || behind == at) {
      ++at;
      continue;
    }
    if (error == std::errc::result_out_of_range)
      number = std::numeric_limits<double>::infinity();
    at = behind;
    ++numbers.count;
    numbers.largest = std::max(numbers.largest, number);
    numbers.sum += number;
  }
  return numbers;
}

/// The numbers of a dash pattern as far as its reader goes: to the first that is neither a number nor a gap between two.
QStringRef dashesOf(const QStringRef &pattern) {
  static const QString Known = QStringLiteral("0123456789.+-eE, \t\r\n");
  const auto end = std::find_if_not(pattern.begin(), pattern.end(), [](QChar c) { return Known.contains(c); });
  return pattern.left(static_cast<int>(end - pattern.begin()));
}

/// Walks through the document once and adds up what drawing it would ask for.
class Walk {
  Q_DECLARE_TR_FUNCTIONS(SvgGuard)
public:
  explicit Walk(const QByteArray &svg)
      : m_reader(svg) {}

  QString fault() {
    while (!m_reader.atEnd()) {
      QString found = judge(m_reader.readNext());
      if (!found.isEmpty())
        return found;
    }
    if (m_reader.hasError())
      return tr("line %1: %2").arg(m_reader.lineNumber()).arg(m_reader.errorString());
    return faultOfTheWhole();
  }

private:
  QString judge(QXmlStreamReader::TokenType token) {
    switch (token) {
    case QXmlStreamReader::StartDocument:
      return isPlainEncoding(m_reader.documentEncoding()) ? QString() : tr("it is not written in UTF-8");
    case QXmlStreamReader::DTD:
      return m_reader.entityDeclarations().isEmpty() ? QString() : tr("it declares entities");
    case QXmlStreamReader::ProcessingInstruction: // the renderer reads the style sheet from wherever it lies
      return m_reader.processingInstructionTarget().contains(QLatin1String("stylesheet"), Qt::CaseInsensitive)
                 ? tr("its style refers to other files")
                 : QString();
    case QXmlStreamReader::StartElement:
      m_holders.push_back(m_reader.attributes().value(QLatin1String("id")).toString());
      m_isStyleSheet = m_isStyleSheet || m_reader.name() == QLatin1String("style");
      return attributesFault();
    case QXmlStreamReader::EndElement:
      m_holders.removeLast();
      m_isStyleSheet = m_isStyleSheet && m_reader.name() != QLatin1String("style");
      return QString();
    case QXmlStreamReader::Characters:
      if (m_reader.text().contains(QLatin1String("stroke-dasharray")))
        return tr("its style sheet has dashed lines");
      if (m_reader.text().contains(QLatin1Char('\\')) && m_isStyleSheet)
        return hidden();
      return namesOutside(m_reader.text()) ? tr("its style refers to other files") : QString();
    default:
      return QString();
    }
  }

  QString attributesFault() {
    const bool isImage = m_reader.name() == QLatin1String("image");
    const bool isUse = m_reader.name() == QLatin1String("use");
    const QXmlStreamAttributes attributes = m_reader.attributes(); // lives as long as what is read of it
    for (const QXmlStreamAttribute &attribute : attributes) {
      const QStringRef value = attribute.value();
      if (attribute.name() == QLatin1String("href")) {
        const QStringRef url = value.trimmed();
        const bool isPixels = isImage && url.startsWith(QLatin1String("data:")) && isBoundedPixels(url);
        if (!isPixels && !isInside(value))
          return tr("it refers to %1").arg(value.left(100).toString());
        if (isUse)
          noteUse(value.trimmed().mid(1).toString());
        continue;
      }
      if (namesOutside(value))
        return tr("it refers to %1").arg(value.left(100).toString());
      QString found = numbersFault(attribute);
      if (!found.isEmpty())
        return found;
    }
    return QString();
  }

  QString numbersFault(const QXmlStreamAttribute &attribute) {
    constexpr double LargestNumber = 1e6;
    const QStringRef name = attribute.name();
    if (name == QLatin1String("id") || name == QLatin1String("class") || !attribute.namespaceUri().isEmpty())
      return QString();
    const Numbers numbers = numbersIn(attribute.value(), name == QLatin1String("d"));
    if (numbers.largest > LargestNumber)
      return tr("it has a number beyond %1: %2").arg(LargestNumber).arg(attribute.value().left(100).toString());
    m_count += numbers.count;
    m_largest = std::max(m_largest, numbers.largest);
    if (name == QLatin1String("stroke-dasharray"))
      noteDashes(attribute.value());
    else if (name == QLatin1String("style"))
      return styleFault(attribute.value());
    return QString();
  }

  QString styleFault(const QStringRef &style) {
    static const QString Dashes = QStringLiteral("stroke-dasharray");
    if (style.contains(QLatin1Char('\\')) || style.contains(QLatin1String("/*")))
      return hidden();
    for (const QStringRef &rule : style.split(QLatin1Char(';'))) {
      const int at = rule.indexOf(Dashes);
      if (at >= 0)
        noteDashes(rule.mid(rule.indexOf(QLatin1Char(':'), at) + 1));
    }
    return QString();
  }

  /// In a style with escapes or comments a search may find nothing.
  static QString hidden() { return tr("its style has escapes or comments"); }

  void noteDashes(const QStringRef &pattern) {
    const Numbers numbers = numbersIn(dashesOf(pattern.trimmed()));
    if (numbers.count > 0)
      m_shortestDash = std::min(m_shortestDash, numbers.sum / numbers.count);
  }

  void noteUse(const QString &used) {
    m_used.insert(used);
    ++m_uses;
    for (const QString &holder : m_holders)
      if (!holder.isEmpty())
        m_using.insert(holder);
  }

  QString faultOfTheWhole() const {
    constexpr int MostUses = 1000;
    constexpr double MostDashes = 1e6;
    // Any two numbers may be a line from side to side, which takes a third of a millisecond a number.
    constexpr int MostNumbers = 20000;
    if (m_uses > MostUses || m_used.intersects(m_using))
      return tr("it repeats parts within parts");
    if (m_count > MostNumbers)
      return tr("it has more than %1 numbers").arg(MostNumbers);
    if (m_count * m_largest > MostDashes * m_shortestDash)
      return tr("its lines have too many dashes");
    return QString();
  }

  QXmlStreamReader m_reader;
  QStringList m_holders;       ///< ids of the elements around the present one, it included
  bool m_isStyleSheet = false; ///< the text is one
  QSet<QString> m_used;        ///< ids of elements that a "use" repeats
  QSet<QString> m_using;       ///< ids of elements that hold a "use"
  int m_uses = 0;
  double m_count = 0.0; ///< numbers in all
  double m_largest = 0.0;
  double m_shortestDash = std::numeric_limits<double>::infinity();
};

} // namespace

QString SvgGuard::fault(const QByteArray &svg) {
  const auto begin = std::find_if_not(svg.begin(), svg.end(), isGap);
  if (begin == svg.end() || svg.contains('\0') || (*begin != '<' && !svg.startsWith("\xEF\xBB\xBF")))
    return QCoreApplication::translate(
        "SvgGuard", "it is no SVG text"); // among others a compressed one, which may be any size once it is unpacked
  // Marks are plain ASCII in the encodings that the reader takes.
  if (QString fault = XmlBounds::check(QString::fromLatin1(svg), Bounds).reason; !fault.isEmpty())
    return fault;
  return Walk(svg).fault();
}
