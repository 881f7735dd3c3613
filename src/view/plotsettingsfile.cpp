#include <base/nivramsg.h>
#include <view/plotsettingsfile.h>

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>
#include <QSettings>
#include <QTemporaryDir>

namespace {

QString tr(const char *text) {
  return QCoreApplication::translate("PlotSettingsFile", text);
}

bool fail(QString *error, const QString &reason) {
  if (error != nullptr)
    *error = reason;
  return false;
}

QColor toColor(const QVariant &value) {
  // A text that names no colour yields the invalid colour by itself.
  return value.type() == QVariant::Color ? value.value<QColor>() : QColor(value.toString());
}

/// Visits every stored field with its key, so that reading and writing cannot drift apart. A visitor takes plain fields
/// with the value a missing key stands for, magnitudes that keep their present value, and fields read only if present.
template <typename Settings, typename Visitor>
void visitFunctions(Settings &s, Visitor &v) {
  v.field("colorFunc", s.colorFunc, QStringLiteral("x"));
  v.field("widthFunc", s.widthFunc, QStringLiteral("y"));
  v.field("nodeColorFunc", s.nodeColorFunc, QStringLiteral("y"));
  v.field("nodeSizeFunc", s.nodeSizeFunc, PlotSettings::fixedSize());
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
void visitScales(Settings &s, Visitor &v) {
  v.field("gridMajorColor", s.gridMajorColor, QColor());
  v.field("gridMinorColor", s.gridMinorColor, QColor());
  v.field("absColor", s.absColor, false);
  v.field("absWidth", s.absWidth, true);
  v.field("absNodeColor", s.absNodeColor, true);
  v.field("absNodeSize", s.absNodeSize, true);
  v.field("logScaleColor", s.logScaleColor, false);
  v.field("logScaleWidth", s.logScaleWidth, false);
  v.field("logScaleNodeColor", s.logScaleNodeColor, false);
  v.field("logScaleNodeSize", s.logScaleNodeSize, false);
  v.field("logFactor", s.logFactor, 7.8);
}

template <typename Settings, typename Visitor>
void visitBounds(Settings &s, Visitor &v) {
  v.field("minVal_edgeColor", s.minVal_edgeColor, PlotSettings::OpenMinimum);
  v.field("maxVal_edgeColor", s.maxVal_edgeColor, PlotSettings::OpenMaximum);
  v.field("minVal_nodeColor", s.minVal_nodeColor, PlotSettings::OpenMinimum);
  v.field("maxVal_nodeColor", s.maxVal_nodeColor, PlotSettings::OpenMaximum);
  v.field("minVal_Width", s.minVal_Width, PlotSettings::OpenMinimum);
  v.field("maxVal_Width", s.maxVal_Width, PlotSettings::OpenMaximum);
  v.field("minVal_nodeSize", s.minVal_nodeSize, PlotSettings::OpenMinimum);
  v.field("maxVal_nodeSize", s.maxVal_nodeSize, PlotSettings::OpenMaximum);
  v.field("label_mode", s.label_mode, QStringLiteral("selected properties"));
  v.field("fixAxesRatio", s.fixAxesRatio, true);
  v.field("showXYaxes", s.showXYaxes, false);
  v.field("zoomFact", s.zoomFact, 1.5);
  v.field("alphaSubnet", s.alphaSubnet, 100);
  v.field("layerProp", s.layerProp, QStringLiteral("vis.layer"));
}

template <typename Settings, typename Visitor>
void visitDrawing(Settings &s, Visitor &v) {
  v.optional("colorRamp", s.colorRamp);
  v.optional("colorClasses", s.colorClasses);
  v.optional("classMethod", s.classMethod);
  v.optional("classBreaks", s.classBreaks);
  v.optional("bookmarks", s.bookmarks);
  v.optional("typedBounds", s.typedBounds);
  v.optional("showGrid", s.showGrid);
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
  visitScales(s, v);
  visitBounds(s, v);
  v.store.beginGroup(QStringLiteral("drawing"));
  visitDrawing(s, v);
  v.store.endGroup();
}

struct Reader {
  QSettings &store;

  static void assign(QString &field, const QVariant &value) {
    // An unquoted comma makes a list of a text that a person edited.
    field = value.type() == QVariant::StringList ? value.toStringList().join(QLatin1Char(',')) : value.toString();
  }
  static void assign(int &field, const QVariant &value) { field = value.toInt(); }
  static void assign(double &field, const QVariant &value) { field = value.toDouble(); }
  static void assign(bool &field, const QVariant &value) { field = value.toBool(); }
  static void assign(QColor &field, const QVariant &value) { field = toColor(value); }

  template <typename T>
  void field(const char *key, T &field, const T &missing) {
    assign(field, store.value(QLatin1String(key), QVariant(missing)));
  }
  template <typename T>
  void optional(const char *key, T &field) {
    if (store.contains(QLatin1String(key)))
      assign(field, store.value(QLatin1String(key)));
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

bool PlotSettingsFile::read(const QString &path, PlotSettings &settings, QString *error) {
  if (!QFile::exists(path)) {
    NivraMsg::debug(QStringLiteral("### Plot Settings file ") + path + QStringLiteral(" not found!"));
    return fail(error, tr("There is no file %1.").arg(path));
  }
  QSettings store(path, QSettings::IniFormat);
  Reader reader{store};
  visitAll(settings, reader);
  return true;
}

bool PlotSettingsFile::write(const QString &path, const PlotSettings &settings, QString *error) {
  const QTemporaryDir folder;
  if (!folder.isValid())
    return fail(error, folder.errorString());
  const QString draft = folder.filePath(QStringLiteral("plotsettings.ini"));
  {
    QSettings store(draft, QSettings::IniFormat);
    Writer writer{store};
    visitAll(settings, writer);
    store.sync();
    if (store.status() != QSettings::NoError)
      return fail(error, tr("The plot settings could not be written to %1.").arg(draft));
  }
  QFile source(draft);
  QSaveFile target(path);
  if (!source.open(QIODevice::ReadOnly))
    return fail(error, source.errorString());
  if (!target.open(QIODevice::WriteOnly))
    return fail(error, tr("Could not write %1: %2").arg(path, target.errorString()));
  const QByteArray text = source.readAll();
  if (target.write(text) != text.size() || !target.commit())
    return fail(error, tr("Could not write %1: %2").arg(path, target.errorString()));
  return true;
}
