#include <drawing/labelcontents.h>
#include <drawing/layergeometry.h>
#include <model/displayformat.h>
#include <model/displayunits.h>
#include <model/elementtypes.h>
#include <model/netmetadata.h>
#include <model/subnetstate.h>

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTextDocumentFragment>

#include <algorithm>
#include <cmath>

namespace {

constexpr int LongestLine = 200;      // characters
constexpr int LongestContents = 8000; // characters of the table: room for a long formula
constexpr int MostLines = 20;

struct StyleKeys {
  PropertyKey font = PropertyKey::find("vis.font");
  PropertyKey color = PropertyKey::find("vis.color");
  PropertyKey background = PropertyKey::find("vis.bgr-color");
  PropertyKey backgroundAlpha = PropertyKey::find("vis.bgr-alpha");
  PropertyKey border = PropertyKey::find("vis.bord-color");
  PropertyKey borderAlpha = PropertyKey::find("vis.bord-alpha");

  bool areUsed() const {
    return !(font.isNull() && color.isNull() && background.isNull() && backgroundAlpha.isNull() && border.isNull() &&
             borderAlpha.isNull());
  }
};

void readColor(const QString &name, const QString &alpha, QColor &color) {
  constexpr int Opaque = 255;
  const QColor named(name.trimmed());
  if (named.isValid()) {
    const int before = color.alpha();
    color = named;
    color.setAlpha(before > 0 ? before : Opaque);
  }
  bool isNumber = false;
  const int number = alpha.trimmed().toInt(&isNumber);
  if (isNumber && (named.isValid() || color.alpha() > 0)) // an opacity alone makes nothing visible
    color.setAlpha(qBound(0, number, Opaque));
}

void readFont(const QString &text, QFont &font) {
  constexpr int LargestFont = 200; // px: letters beyond it are no label, and cost memory
  QFont named;
  if (text.trimmed().isEmpty() || !named.fromString(text.trimmed()))
    return;
  if (named.pointSizeF() > LargestFont)
    named.setPointSize(LargestFont);
  font = screenFont(named);
  font.setPixelSize(std::min(font.pixelSize(), LargestFont));
}

/// The name of the property behind an "@" at the position, as long as it goes; it does not end with a dot.
QString propertyAt(const QString &text, int position) {
  static const QRegularExpression Name(QStringLiteral("[A-Za-z_][A-Za-z0-9_]*(?:[.\\-][A-Za-z0-9_]+)*"));
  const QRegularExpressionMatch match =
      Name.match(text, position, QRegularExpression::NormalMatch, QRegularExpression::AnchoredMatchOption);
  return match.captured();
}

} // namespace

LabelContents::LabelContents(const LabelTable &table, const PlotSettings &settings, const NetData &net, Told told)
    : m_net(net)
    , m_told(std::move(told))
    , m_theme(settings.bgrColor)
    , m_hasOwnStyles(StyleKeys().areUsed()) {
  if (settings.label_mode == QLatin1String("name only"))
    m_mode = Mode::Name;
  else if (settings.label_mode == QLatin1String("selected properties"))
    m_mode = Mode::Selected;
  m_nodeStyle.font = screenFont(QFont(QStringLiteral("Arial"), std::max(settings.labelMag, 1)));
  m_nodeStyle.background = settings.bgrColor;
  m_edgeStyle = m_nodeStyle;
  m_nodeStyle.text = settings.nodeLabelsColor;
  m_boxStyle = m_nodeStyle;
  m_boxStyle.background = Qt::transparent;
  m_edgeStyle.text = settings.edgeLabelsColor;
  for (const LabelRow &row : table.types)
    m_types.insert(row[LabelRow::Short].toLower(), typeOf(row));
}

const LabelStyle &LabelContents::styleOf(NetData::EleType kind) const {
  return kind == NetData::Edge ? m_edgeStyle : kind == NetData::TextBox ? m_boxStyle : m_nodeStyle;
}

LabelContents::Type LabelContents::typeOf(const LabelRow &row) const {
  static const QRegularExpression Break(QStringLiteral("<br\\s?/>"));
  static const QRegularExpression Marks(
      QStringLiteral("<(?!br />)[A-Za-z/]|&(?:#\\d+|#x[0-9a-fA-F]+|[A-Za-z][A-Za-z0-9]*);"));
  Type type;
  QString contents = row[LabelRow::Contents];
  if (contents.size() > LongestContents) {
    tell(m_told, Finding::Severity::Warning,
         QCoreApplication::translate(
             "LabelContents", "The label contents of \"%1\" have %2 characters; those beyond the first %3 are left out")
             .arg(row[LabelRow::Short])
             .arg(contents.size())
             .arg(LongestContents));
    contents.truncate(LongestContents);
  }
  contents.replace(QStringLiteral("&#44;"), QStringLiteral(",")).replace(Break, QStringLiteral("<br />"));
  type.isHtml = contents.contains(Marks);
  for (const QString &line : contents.split(QStringLiteral("<br />")).mid(0, MostLines))
    type.lines.push_back(lineOf(line, row[LabelRow::Short]));
  const ElementType *known = ElementTypes::byCode(row[LabelRow::Short]);
  type.style = styleOf(known == nullptr ? NetData::Node : known->kind);
  readFont(row[LabelRow::Font], type.style.font);
  readColor(row[LabelRow::Color], QString(), type.style.text);
  readColor(row[LabelRow::BgrColor], row[LabelRow::BgrAlpha], type.style.background);
  readColor(row[LabelRow::BordColor], row[LabelRow::BordAlpha], type.style.border);
  return type;
}

LabelContents::Part LabelContents::valueOf(const QString &property, const QString &type) const {
  Part part;
  part.value = PropertyKey::intern(property);
  if (const NetMetaData::Attribute *attribute = m_net.metaData()->attribute(type, property)) {
    const DisplayUnits::Shown display = DisplayUnits::of(*attribute);
    part.unit = display.unit;
    part.toDisplay = display.toDisplay;
  }
  return part;
}

std::shared_ptr<Formula> LabelContents::formulaOf(const QString &text) const {
  try {
    return std::make_shared<Formula>(text, m_net, Formula::Bare::OfCurrent);
  } catch (const FormulaError &error) {
    tell(
        m_told, Finding::Severity::Warning,
        QCoreApplication::translate("LabelContents", "The label formula \"%1\" cannot be used: %2").arg(text, error.text()));
    return nullptr;
  }
}

LabelContents::Line LabelContents::lineOf(const QString &text, const QString &type) const {
  Line line;
  QString before;
  for (int i = 0; i < text.size(); ++i) {
    const bool isMark = text.at(i) == QLatin1Char('@');
    const int end = isMark && text.midRef(i + 1, 1) == QLatin1String("{") ? text.indexOf(QLatin1Char('}'), i) : -1;
    const QString name = isMark && end < 0 ? propertyAt(text, i + 1) : QString();
    if (end < 0 && name.isEmpty()) {
      before += text.at(i);
      continue;
    }
    Part part;
    if (end < 0)
      part = valueOf(name, type);
    else
      part.formula = formulaOf(text.mid(i + 2, end - i - 2));
    part.isPlaceHolder = true;
    part.text = std::exchange(before, QString());
    line.push_back(part);
    i = end < 0 ? i + name.size() : end;
  }
  if (!before.isEmpty()) {
    Part rest;
    rest.text = before;
    line.push_back(rest);
  }
  return line;
}

namespace {

/// Units of thousands are spelled out: nobody reads "0.02 1000 m³/h". Large quantities are rounded, but a number alone may
/// be a name.
double spelledOut(double value, QString &unit) {
  if (unit.isEmpty())
    return value;
  for (const char *many : {"1000 ", "1000000 "}) {
    if (!unit.startsWith(QLatin1String(many)))
      continue;
    value *= QString::fromLatin1(many).toDouble();
    unit.remove(QLatin1String(many));
  }
  constexpr double Large = 1e4; // smaller ones are rounded when they are written
  return std::abs(value) < Large ? value : QString::number(value, 'g', DisplayFormat::digitsOfLabels()).toDouble();
}

} // namespace

QString LabelContents::formatted(double value, const QString &unit, int decimals) {
  QString shownUnit = unit;
  const double shown = spelledOut(value, shownUnit);
  const QString number = DisplayFormat::inLabel(shown, decimals);
  return shownUnit.isEmpty() ? number : number + QLatin1Char(' ') + Units::written(shownUnit);
}

/// As many as the values of the first elements of the type need: then 79.70 stands beside 79.84, and 20 beside 30.
int LabelContents::decimalsOf(const Part &part, const element &like) const {
  static const PropertyKey key = PropertyKey::intern("type");
  constexpr int EnoughValues = 300;
  constexpr int MostElements = 5000; // to look at
  if (part.decimals)
    return *part.decimals;
  part.decimals = 0;
  const QString type = like.value(key);
  const auto collection = m_net.typeMap().find(m_net.metaData()->kindOf(type));
  if (collection == m_net.typeMap().end())
    return 0;
  const std::string word = type.toLower().toStdString(); // rows are found whatever the case
  int needed = 0;
  int looked = 0;
  int found = 0;
  for (const elements::Entry &entry : *collection->second) {
    if (++looked > MostElements || found >= EnoughValues)
      break;
    const PropertyText *own = entry.value.find(key);
    const double value = NetData::number(entry.value.find(part.value));
    if (value == NetData::NoValue || own == nullptr || !sameWord(own->utf8(), word))
      continue;
    ++found;
    QString unit = part.unit;
    const double shown = spelledOut(part.toDisplay(value), unit);
    needed = std::max(needed, DisplayFormat::decimalsNeeded(shown, DisplayFormat::digitsOfLabels()));
  }
  part.decimals = needed;
  return needed;
}

QString LabelContents::shownValue(const Part &part, const element &source) const {
  if (part.formula != nullptr) {
    try {
      const Formula::Result result = part.formula->evaluate(source);
      if (result.number != NetData::NoValue)
        return formatted(result.number, QString());
      return result.text == QLatin1String(FormulaReference::Null) ? QString() : result.text;
    } catch (const FormulaError &error) {
      if (error.kind() == FormulaError::Kind::TooCostly)
        tell(m_told, Finding::Severity::Warning, error.text()); // once: the formula is given up
      return QString();                                         // for this element the label says nothing
    }
  }
  const PropertyText *value = source.find(part.value);
  if (value == nullptr)
    return part.value == SubnetState::key() ? SubnetState::of(m_net, source) : QString();
  const double number = NetData::number(value);
  return number == NetData::NoValue ? value->toString()
                                    : formatted(part.toDisplay(number), part.unit, decimalsOf(part, source));
}

QString LabelContents::filled(const Line &line, const element &source, bool isHtml) const {
  QString text;
  bool hasPlaceHolder = false;
  bool hasValue = false;
  for (const Part &part : line) {
    if (hasValue && text.size() >= LongestLine && text.simplified().size() >= LongestLine)
      break; // nobody sees more of it
    text += part.text;
    if (!part.isPlaceHolder)
      continue;
    hasPlaceHolder = true;
    const QString shown = shownValue(part, source);
    hasValue = hasValue || !shown.isEmpty();
    text += isHtml ? shown.toHtmlEscaped() : shown;
  }
  return hasPlaceHolder && !hasValue ? QString() : text.simplified().left(LongestLine);
}

const LabelContents::Type *LabelContents::find(const element &source) const {
  static const PropertyKey key = PropertyKey::intern("type");
  const auto found = m_types.constFind(source.value(key).toLower());
  return found == m_types.constEnd() ? nullptr : &*found;
}

LabelText LabelContents::text(const element &source) const {
  static const PropertyKey name = PropertyKey::intern("name");
  LabelText label;
  if (m_mode == Mode::Name)
    label.lines.append(source.value(name).left(LongestLine));
  const Type *type = m_mode == Mode::Selected ? find(source) : nullptr;
  if (type == nullptr)
    return label;
  for (const Line &line : type->lines) {
    const QString text = filled(line, source, type->isHtml);
    if (!text.isEmpty())
      label.lines.append(text);
  }
  if (type->isHtml && !label.lines.isEmpty()) {
    label.html = label.lines.join(QStringLiteral("<br />"));
    label.lines.clear();
  }
  return label;
}

QStringList LabelContents::textOfBox(const element &box) const {
  static const PropertyKey text = PropertyKey::intern("text");
  static const QRegularExpression Mark(QStringLiteral("<[A-Za-z/][^<>]*>"));
  constexpr int LongestText = 500; // nobody reads more on a drawing
  QStringList lines;
  if (const Type *type = find(box)) {
    for (const Line &line : type->lines) {
      QString said = filled(line, box, type->isHtml).remove(Mark);
      if (type->isHtml) // entities are left
        said = QTextDocumentFragment::fromHtml(said).toPlainText().simplified();
      if (!said.isEmpty())
        lines.append(said);
    }
  }
  const QString own = box.value(text).simplified().left(LongestText);
  return lines.isEmpty() && !own.isEmpty() ? QStringList{own} : lines;
}

LabelStyle LabelContents::nameStyle(NetData::EleType kind) const {
  constexpr int HaloAlpha = 215;
  constexpr double TextShare = 0.75; // names step back behind what they name
  LabelStyle style = styleOf(kind);
  style.text = m_theme.text(style.text, style.background);
  style.halo = style.background;
  style.halo.setAlpha(std::min(HaloAlpha, style.text.alpha()));
  style.background = Qt::transparent;
  style.text.setAlphaF(style.text.alphaF() * TextShare);
  return style;
}

LabelStyle LabelContents::style(const element &source, NetData::EleType kind) const {
  const Type *type = find(source);
  LabelStyle style = type != nullptr ? type->style : styleOf(kind);
  if (m_hasOwnStyles) {
    const StyleKeys keys;
    readFont(source.value(keys.font), style.font);
    readColor(source.value(keys.color), QString(), style.text);
    readColor(source.value(keys.background), source.value(keys.backgroundAlpha), style.background);
    readColor(source.value(keys.border), source.value(keys.borderAlpha), style.border);
  }
  style.text = m_theme.text(style.text, style.background);
  return style;
}
