#include <base/nivramsg.h>
#include <formulas/parserfactory.h>
#include <model/elementtypes.h>
#include <model/netmetadata.h>
#include <view/labelcontents.h>
#include <view/layergeometry.h>

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

constexpr int LongestLine = 200; // characters

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

void takeColor(const QString &name, const QString &alpha, QColor &color) {
  constexpr int Opaque = 255;
  const QColor named(name.trimmed());
  if (named.isValid()) {
    const int before = color.alpha();
    color = named;
    color.setAlpha(before > 0 ? before : Opaque);
  }
  bool isNumber = false;
  const int number = alpha.trimmed().toInt(&isNumber);
  if (isNumber)
    color.setAlpha(qBound(0, number, Opaque));
}

void takeFont(const QString &text, QFont &font) {
  QFont named;
  if (!text.trimmed().isEmpty() && named.fromString(text.trimmed()))
    font = screenFont(named);
}

/// The name of the property behind an "@" at the position, as long as it goes; it does not end with a dot.
QString propertyAt(const QString &text, int position) {
  static const QRegularExpression Name(QStringLiteral("[A-Za-z_][A-Za-z0-9_]*(?:[.\\-][A-Za-z0-9_]+)*"));
  const QRegularExpressionMatch match =
      Name.match(text, position, QRegularExpression::NormalMatch, QRegularExpression::AnchoredMatchOption);
  return match.captured();
}

} // namespace

LabelContents::LabelContents(const LabelTable &table, const PlotSettings &settings, const NetData &net)
    : m_net(net)
    , m_hasOwnStyles(StyleKeys().areUsed()) {
  if (settings.label_mode == QLatin1String("name only"))
    m_mode = Mode::Name;
  else if (settings.label_mode == QLatin1String("selected properties"))
    m_mode = Mode::Selected;
  m_nodeStyle.font = screenFont(QFont(QStringLiteral("Arial"), std::max(settings.labelMag, 1)));
  m_nodeStyle.background = settings.bgrColor;
  m_edgeStyle = m_nodeStyle;
  m_nodeStyle.text = settings.nodeLabelsColor;
  m_edgeStyle.text = settings.edgeLabelsColor;
  for (const LabelRow &row : table.types)
    m_types.insert(row[LabelRow::Short].toLower(), typeOf(row));
}

LabelContents::Type LabelContents::typeOf(const LabelRow &row) const {
  static const QRegularExpression Break(QStringLiteral("<br\\s?/>"));
  static const QRegularExpression Marks(QStringLiteral("<(?!br />)[A-Za-z/]"));
  Type type;
  QString contents = row[LabelRow::Contents];
  contents.replace(QStringLiteral("&#44;"), QStringLiteral(",")).replace(Break, QStringLiteral("<br />"));
  type.isHtml = contents.contains(Marks);
  for (const QString &line : contents.split(QStringLiteral("<br />")))
    type.lines.push_back(lineOf(line, row[LabelRow::Short]));
  const ElementType *known = ElementTypes::byCode(row[LabelRow::Short]);
  type.style = known != nullptr && known->kind == NetData::Edge ? m_edgeStyle : m_nodeStyle;
  takeFont(row[LabelRow::Font], type.style.font);
  takeColor(row[LabelRow::Color], QString(), type.style.text);
  takeColor(row[LabelRow::BgrColor], row[LabelRow::BgrAlpha], type.style.background);
  takeColor(row[LabelRow::BordColor], row[LabelRow::BordAlpha], type.style.border);
  return type;
}

LabelContents::Part LabelContents::valueOf(const QString &property, const QString &type) const {
  Part part;
  part.value = PropertyKey::intern(property);
  if (const NetMetaData::Attribute *attribute = m_net.metaData()->attribute(type, property)) {
    const auto conversion = Units::conversion(attribute->storedUnit, attribute->displayUnit);
    part.unit = conversion ? attribute->displayUnit : attribute->storedUnit;
    if (conversion)
      part.toDisplay = *conversion;
  }
  return part;
}

std::shared_ptr<Formula> LabelContents::formulaOf(const QString &text) const {
  try {
    return std::make_shared<Formula>(text, m_net, Formula::Bare::OfCurrent);
  } catch (const FormulaError &error) {
    NivraMsg::logWarning(QStringLiteral("The label formula \"%1\" cannot be used: %2").arg(text, error.text()));
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

QString LabelContents::formatted(double value, const QString &unit) {
  constexpr int Digits = 4;
  QString shownUnit = unit;
  if (shownUnit.startsWith(QLatin1String("1000 "))) {
    value *= 1000.0;
    shownUnit.remove(0, 5);
  }
  if (!unit.isEmpty() && std::abs(value) >= std::pow(10.0, Digits) && std::isfinite(value)) { // a number alone may be a name
    const double step = std::pow(10.0, std::floor(std::log10(std::abs(value))) + 1.0 - Digits);
    value = std::round(value / step) * step;
  }
  constexpr double Largest = 1e9;
  constexpr double Smallest = 1e-4;
  const double size = std::abs(value);
  QString number;
  if (size != 0.0 && (size >= Largest || size < Smallest)) {
    number = QString::number(value, 'g', Digits);
  } else {
    const int before = size < 1.0 ? 1 : static_cast<int>(std::floor(std::log10(size))) + 1;
    const int decimals = qBound(0, size < 1.0 && size > 0.0 ? Digits - 1 : Digits - before, Digits);
    number = QString::number(value, 'f', decimals);
    if (decimals > 0) {
      while (number.endsWith(QLatin1Char('0')))
        number.chop(1);
      if (number.endsWith(QLatin1Char('.')))
        number.chop(1);
    }
    constexpr QChar ThinSpace(0x2009);
    constexpr int Group = 3;
    const int whole = number.indexOf(QLatin1Char('.')) < 0 ? number.size() : number.indexOf(QLatin1Char('.'));
    for (int i = whole - Group; i > (value < 0.0 ? 1 : 0); i -= Group)
      number.insert(i, ThinSpace);
  }
  if (number == QLatin1String("-0"))
    number = QStringLiteral("0");
  return shownUnit.isEmpty() ? number : number + QLatin1Char(' ') + Units::written(shownUnit);
}

QString LabelContents::shownValue(const Part &part, const element &source) {
  if (part.formula != nullptr) {
    try {
      const Formula::Result result = part.formula->evaluate(source);
      if (result.number != NetData::NoValue)
        return formatted(result.number, QString());
      return result.text.toStdString() == ParserFactory::nullText() ? QString() : result.text;
    } catch (const FormulaError &error) {
      if (error.kind() == FormulaError::Kind::TooCostly)
        NivraMsg::logWarning(error.text()); // once: from now on it is not evaluated
      return QString();                     // of this element it says nothing
    }
  }
  const PropertyText *value = source.find(part.value);
  if (value == nullptr)
    return QString();
  const double number = NetData::number(value);
  return number == NetData::NoValue ? value->toString() : formatted(part.toDisplay(number), part.unit);
}

QString LabelContents::filled(const Line &line, const element &source, bool isHtml) {
  QString text;
  bool hasPlaceHolder = false;
  bool hasValue = false;
  for (const Part &part : line) {
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

LabelStyle LabelContents::style(const element &source, NetData::EleType kind) const {
  const Type *type = find(source);
  LabelStyle style = type != nullptr ? type->style : kind == NetData::Edge ? m_edgeStyle : m_nodeStyle;
  if (m_hasOwnStyles) {
    const StyleKeys keys;
    takeFont(source.value(keys.font), style.font);
    takeColor(source.value(keys.color), QString(), style.text);
    takeColor(source.value(keys.background), source.value(keys.backgroundAlpha), style.background);
    takeColor(source.value(keys.border), source.value(keys.borderAlpha), style.border);
  }
  return style;
}
