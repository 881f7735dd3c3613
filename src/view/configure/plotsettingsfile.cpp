#include "configure/plotsettingsfile.h"

#include "configure/initext.h"

#include <base/wholefile.h>

#include <QDataStream>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

#include <cmath>

namespace {

constexpr qint64 LargestFile = qint64(4) << 20;

bool fail(QString *error, const QString &reason) {
  if (error != nullptr)
    *error = reason;
  return false;
}

/// A colour as the toolkit's settings class stores it: "@Variant(", the type number of colours, the colour, ")". Any other
/// object is refused, for reading it would make whatever the file names. Nothing when it is none.
std::optional<QColor> storedColor(const QString &object) {
  static const QByteArray Begin = QByteArrayLiteral("@Variant(") + QByteArray("\0\0\0\x43", 4);
  constexpr int ColorBytes = 11;
  const QByteArray bytes = object.toLatin1();
  if (!bytes.startsWith(Begin) || bytes.size() != Begin.size() + ColorBytes + 1 || !bytes.endsWith(')'))
    return std::nullopt;
  const char model = bytes.at(Begin.size());
  if (model == QColor::Invalid)
    return QColor(); // which is stored too
  if (model != QColor::Rgb && model != QColor::Hsv)
    return std::nullopt;
  QDataStream stream(bytes.mid(Begin.size(), ColorBytes));
  stream.setVersion(QDataStream::Qt_4_0);
  QColor color;
  stream >> color;
  constexpr int FullCircle = 359;
  if (model == QColor::Hsv && color.hue() > FullCircle)
    return std::nullopt;
  return color.toRgb();
}

struct FunctionKeys {
  const char *absolute;
  const char *logarithmic;
  const char *minimum;
  const char *maximum;
};

constexpr PerAspect<FunctionKeys> KeysOfFunctions{
    {{{"absColor", "logScaleColor", "minVal_edgeColor", "maxVal_edgeColor"},
      {"absWidth", "logScaleWidth", "minVal_Width", "maxVal_Width"},
      {"absNodeColor", "logScaleNodeColor", "minVal_nodeColor", "maxVal_nodeColor"},
      {"absNodeSize", "logScaleNodeSize", "minVal_nodeSize", "maxVal_nodeSize"}}}};

/// Visits every stored field with its key, so that reading and writing cannot drift apart. A visitor takes plain fields
/// with the value a missing key stands for, magnitudes that keep their present value, and fields read only if present.
template <typename Settings, typename Visitor>
void visitFunctions(Settings &s, Visitor &v) {
  const PlotSettings missing;
  for (const Aspect aspect : AllAspects) {
    auto &function = s.functions[aspect];
    const FunctionKeys &keys = KeysOfFunctions[aspect];
    v.field(TypedBounds::aspectKey(aspect).toLatin1().constData(), function.name, missing.functions[aspect].name);
    v.field(keys.absolute, function.isAbsolute, missing.functions[aspect].isAbsolute);
    v.field(keys.logarithmic, function.isLogarithmic, false);
    v.field(keys.minimum, function.minimum, PlotSettings::OpenMinimum);
    v.field(keys.maximum, function.maximum, PlotSettings::OpenMaximum);
  }
  v.field("colorScalePos", s.colorScalePos, 1);
  v.field("legendPos", s.legendPos, 0);
}

template <typename Settings, typename Visitor>
void visitMagnitudes(Settings &s, Visitor &v) {
  v.field("nodeMag", s.nodeMag, s.nodeMag);
  v.field("edgeMag", s.edgeMag, s.edgeMag);
  v.field("edgeConst", s.edgeConst, s.edgeConst);
  v.field("labelMargin", s.labelMargin, s.labelMargin);
  v.field("labelMag", s.labelMag, s.labelMag);
  v.field("arrowMag", s.arrowMag, s.arrowMag);
  v.field("symMag", s.symMag, s.symMag);
}

template <typename Settings, typename Visitor>
void visitColorOptions(Settings &s, Visitor &v) {
  v.optional("saturation", s.saturation);
  v.optional("nodeLabelsColor", s.nodeLabelsColor);
  v.optional("lightness", s.lightness);
  v.optional("edgeLabelsColor", s.edgeLabelsColor);
  v.optional("firstColor", s.firstColor);
  v.optional("bgrColor", s.bgrColor);
  v.optional("lastColor", s.lastColor);
  v.optional("edgeColorInactive", s.edgeColorInactive);
  v.optional("edgeShowFlow", s.edgeShowFlow);
  v.optional("edgeColorNoFlow", s.edgeColorNoFlow);
}

template <typename Settings, typename Visitor>
void visitView(Settings &s, Visitor &v) {
  v.field("gridMajorColor", s.gridMajorColor, QColor());
  v.field("gridMinorColor", s.gridMinorColor, QColor());
  v.field("logFactor", s.logFactor, 7.8);
  v.field("label_mode", s.label_mode, QStringLiteral("selected properties"));
  v.field("fixAxesRatio", s.fixAxesRatio, true);
  v.field("showXYaxes", s.showXYaxes, false);
  v.field("zoomFact", s.zoomFact, 1.5);
  v.field("alphaSubnet", s.alphaSubnet, 100);
  v.field("layerProp", s.layerProp, QStringLiteral("vis.layer"));
}

/// The bounds of all draw functions share one key.
template <typename Settings, typename Visitor>
void visitTypedBounds(Settings &s, Visitor &v) {
  PerAspect<TypedBounds::OfFunctions> typed{};
  for (const Aspect aspect : AllAspects)
    typed[aspect] = s.functions[aspect].typed;
  QString text = TypedBounds::written(typed);
  v.optional("typedBounds", text);
  if constexpr (!std::is_const_v<Settings>) {
    typed = TypedBounds::read(text);
    for (const Aspect aspect : AllAspects)
      s.functions[aspect].typed = typed[aspect];
  }
}

template <typename Settings, typename Visitor>
void visitDrawing(Settings &s, Visitor &v) {
  v.optional("colorRamp", s.colorRamp);
  v.optional("colorClasses", s.colorClasses);
  v.optional("classMethod", s.classMethod);
  v.optional("classBreaks", s.classBreaks);
  v.optional("classColors", s.classColors);
  v.optional("classLabels", s.classLabels);
  visitTypedBounds(s, v);
  v.optional("showGrid", s.showGrid);
  v.optional("quantileBounds", s.quantileBounds);
  v.optional("legend", s.showsLegend);
  v.optional("legendCorner", s.legendCorner);
  v.optional("dimRest", s.dimsRest);
}

template <typename Settings, typename Visitor>
void visitAll(Settings &s, Visitor &v) {
  visitFunctions(s, v);
  v.store.beginGroup(QStringLiteral("magnitudes"));
  visitMagnitudes(s, v);
  v.store.endGroup();
  v.store.beginGroup(QStringLiteral("color_options"));
  visitColorOptions(s, v);
  v.store.endGroup();
  visitView(s, v);
  v.store.beginGroup(QStringLiteral("drawing"));
  visitDrawing(s, v);
  v.store.endGroup();
}

/// What the visitor knows of groups, for the reader as the settings class has it for the writer.
struct GroupedText {
  const IniText &text;
  QByteArray group{};

  void beginGroup(const QString &name) { group = name.toLatin1(); }
  void endGroup() { group.clear(); }
};

struct Reader {
  GroupedText store;
  bool keepsMissing = false;
  bool found = false;      ///< some key
  QStringList refused{};   ///< keys whose values are objects that no setting has
  QStringList noNumbers{}; ///< "key=value" where a number should be

  // False when the text says no such value: then the field stays.
  static bool assign(QString &field, const QString &value) {
    field = value;
    return true;
  }
  static bool assign(bool &field, const QString &value) {
    field = QVariant(value).toBool();
    return true;
  }
  static bool assign(QColor &field, const QString &value) {
    field = QColor(value);
    return true;
  }
  static bool assign(int &field, const QString &value) {
    bool isNumber = false;
    const int number = value.trimmed().toInt(&isNumber);
    field = isNumber ? number : field;
    return isNumber;
  }
  static bool assign(double &field, const QString &value) {
    bool isNumber = false;
    const double number = value.trimmed().toDouble(&isNumber);
    isNumber = isNumber && std::isfinite(number);
    field = isNumber ? number : field;
    return isNumber;
  }

  template <typename T>
  void field(const char *key, T &field, const T &missing) {
    if (!take(key, field) && !keepsMissing)
      field = missing;
  }
  template <typename T>
  void optional(const char *key, T &field) {
    take(key, field);
  }

private:
  /// False when the file says nothing that can be taken.
  template <typename T>
  bool take(const char *key, T &field) {
    bool isObject = false;
    const std::optional<QString> value = store.text.value(store.group, key, &isObject);
    if (!value)
      return false;
    found = true;
    if (!isObject) {
      constexpr int Shown = 50; // characters
      const bool isTaken = assign(field, *value);
      if (!isTaken)
        noNumbers << QLatin1String(key) + QLatin1Char('=') + value->left(Shown);
      return isTaken;
    }
    if constexpr (std::is_same_v<T, QColor>) {
      const std::optional<QColor> color = storedColor(*value);
      if (color) {
        field = *color;
        return true;
      }
    }
    refused << QLatin1String(key);
    return false;
  }
};

struct Writer {
  QSettings &store;

  template <typename T>
  void field(const char *key, const T &field, const T &) {
    store.setValue(QLatin1String(key), QVariant(field));
  }
  template <typename T>
  void optional(const char *key, const T &field) {
    store.setValue(QLatin1String(key), QVariant(field));
  }
};

} // namespace

bool PlotSettingsFile::read(const QString &path, PlotSettings &settings, const Told &told) {
  if (!QFileInfo::exists(path)) {
    tell(told, Finding::Severity::Debug, QStringLiteral("### Plot Settings file ") + path + QStringLiteral(" not found!"));
    return false;
  }
  QString reason;
  const auto content = FileAccess::readWhole(path, FileAccess::Source::Workspace, LargestFile, &reason);
  if (!content) {
    tell(told, Finding::Severity::Warning, reason);
    return false;
  }
  readText(*content, path, settings, told);
  return true;
}

namespace {

/// Bounds belong to a function: where a text names another one alone, those of the former do not stay.
void openBoundsOfOthers(const PlotSettings &before, PlotSettings &settings) {
  for (const Aspect aspect : AllAspects) {
    const PlotSettings::Function &former = before.functions[aspect];
    PlotSettings::Function &function = settings.functions[aspect];
    if (function.name == former.name || function.minimum != former.minimum || function.maximum != former.maximum)
      continue;
    function.minimum = PlotSettings::OpenMinimum;
    function.maximum = PlotSettings::OpenMaximum;
  }
}

} // namespace

bool PlotSettingsFile::readText(const QByteArray &content, const QString &path, PlotSettings &settings, const Told &told,
                                Missing missing) {
  const IniText text(content);
  Reader reader{{text}, missing == Missing::Kept};
  const PlotSettings before = settings;
  visitAll(settings, reader);
  if (missing == Missing::Kept)
    openBoundsOfOthers(before, settings);
  if (!reader.refused.isEmpty())
    tell(told, Finding::Severity::Warning,
         tr("%1: values that are no text, number or colour are left out: %2")
             .arg(path, reader.refused.join(QStringLiteral(", "))));
  if (!reader.noNumbers.isEmpty())
    tell(told, Finding::Severity::Warning,
         tr("%1: values that are no numbers are left out: %2").arg(path, reader.noNumbers.join(QStringLiteral(", "))));
  return reader.found;
}

std::optional<QByteArray> PlotSettingsFile::text(const PlotSettings &settings, QString *error) {
  const QTemporaryDir folder;
  if (!folder.isValid()) {
    fail(error, tr("The plot settings could not be written to %1: %2").arg(folder.path(), folder.errorString()));
    return std::nullopt;
  }
  const QString draft = folder.filePath(QStringLiteral("plotsettings.ini"));
  {
    QSettings store(draft, QSettings::IniFormat);
    Writer writer{store};
    visitAll(settings, writer);
    store.sync();
    if (store.status() != QSettings::NoError) {
      fail(error, tr("The plot settings could not be written to %1.").arg(draft));
      return std::nullopt;
    }
  }
  return FileAccess::readWhole(draft, FileAccess::Source::Trusted, LargestFile, error);
}

std::optional<QByteArray> PlotSettingsFile::styleText(const PlotSettings &settings, QString *error) {
  const std::optional<QByteArray> whole = text(settings, error);
  if (!whole)
    return std::nullopt;
  IniText style(*whole);
  for (const char *ofCase :
       {"edgeShowFlow", "layerProp", "colorScalePos", "legendPos", "fixAxesRatio", "showXYaxes", "zoomFact"})
    style.remove(ofCase);
  for (const char *ofView : {"legend", "legendCorner", "dimRest", "showGrid"})
    style.remove(ofView);
  const PlotSettings plain;
  for (const auto &[key, color] : {std::pair("bgrColor", &PlotSettings::bgrColor),
                                   {"edgeLabelsColor", &PlotSettings::edgeLabelsColor},
                                   {"nodeLabelsColor", &PlotSettings::nodeLabelsColor},
                                   {"gridMajorColor", &PlotSettings::gridMajorColor},
                                   {"gridMinorColor", &PlotSettings::gridMinorColor}}) {
    if (settings.*color == plain.*color)
      style.remove(key);
  }
  return style.toText();
}

bool PlotSettingsFile::write(const QString &path, const PlotSettings &settings, QString *error) {
  QString reason;
  const std::optional<QByteArray> own = text(settings, error);
  if (!own)
    return false;
  IniText whole; // with what is there already: other programs keep groups of their own in the file
  if (QFileInfo::exists(path)) {
    const auto present = FileAccess::readWhole(path, FileAccess::Source::Workspace, LargestFile, &reason);
    if (!present)
      return fail(error, reason);
    whole = IniText(*present);
  }
  whole.merge(IniText(*own));
  return WholeFile::write(path, FileAccess::Source::Workspace, whole.toText(), &reason) || fail(error, reason);
}
