#include "session.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace {

constexpr int Version = 1;
constexpr int LongestName = 4096;           // characters
constexpr int LargestState = 1 << 16;       // bytes, of the toolkit's own
constexpr int LargestStyle = 4 * (1 << 20); // characters
const QString Format = QStringLiteral("nivra session");

using Names = Selection::Names;
const std::pair<const char *, Names Selection::*> Kinds[] = {{"nodes", &Selection::nodes},
                                                             {"edges", &Selection::edges},
                                                             {"subnets", &Selection::subnets},
                                                             {"others", &Selection::others}};

QJsonArray written(const Names &names) {
  QStringList sorted(names.begin(), names.end()); // the same text for the same session
  std::sort(sorted.begin(), sorted.end());
  return QJsonArray::fromStringList(sorted);
}

Names namesIn(const QJsonValue &value) {
  Names names;
  const QJsonArray array = value.toArray();
  for (const QJsonValue &name : array) {
    const QString text = name.toString();
    if (!text.isEmpty() && text.size() <= LongestName && names.size() < Session::MostNames)
      names.insert(text);
  }
  return names;
}

QString written(const FileStamp &stamp) {
  return stamp.isOfAFile() ? QStringLiteral("%1;%2").arg(stamp.size).arg(stamp.modified.toMSecsSinceEpoch()) : QString();
}

FileStamp stampIn(const QJsonValue &value) {
  const QStringList parts = value.toString().split(QLatin1Char(';'));
  if (parts.size() != 2)
    return {};
  return {parts[0].toLongLong(), QDateTime::fromMSecsSinceEpoch(parts[1].toLongLong())};
}

QByteArray stateIn(const QJsonValue &value) {
  const QByteArray state = QByteArray::fromBase64(value.toString().toLatin1());
  return state.size() <= LargestState ? state : QByteArray();
}

/// The toolkit believes every byte of its own states, and ends the program over a wrong one.
QString sumOf(const QByteArray &geometry, const QByteArray &docks) {
  return QString::fromLatin1(QCryptographicHash::hash(geometry + '|' + docks, QCryptographicHash::Sha256).toHex());
}

QByteArray styleIn(const QJsonValue &value) {
  const QString text = value.toString();
  return text.size() <= LargestStyle ? text.toUtf8() : QByteArray();
}

QRectF viewIn(const QJsonValue &value) {
  const QJsonArray numbers = value.toArray();
  if (numbers.size() != 4)
    return {};
  const QRectF view(numbers[0].toDouble(), numbers[1].toDouble(), numbers[2].toDouble(), numbers[3].toDouble());
  constexpr double Largest = 1e20; // as coordinates of elements
  const bool isSound = std::abs(view.x()) < Largest && std::abs(view.y()) < Largest && view.width() > 0.0 &&
                       view.width() < Largest && view.height() > 0.0 && view.height() < Largest;
  return isSound ? view : QRectF();
}

QJsonObject written(const LayerValues &edits) {
  QJsonObject whole;
  for (auto property = edits.begin(); property != edits.end(); ++property) {
    QJsonObject layers;
    for (auto layer = property->begin(); layer != property->end(); ++layer)
      layers.insert(layer.key(), layer.value());
    whole.insert(property.key(), layers);
  }
  return whole;
}

LayerValues editsIn(const QJsonObject &whole) {
  LayerValues edits;
  int count = 0;
  for (auto property = whole.begin(); property != whole.end(); ++property) {
    const QJsonObject layers = property->toObject();
    for (auto layer = layers.begin(); layer != layers.end(); ++layer) {
      const QString name = layer->toString();
      const bool isSound = layer->isString() && name.size() <= LongestName && !property.key().isEmpty();
      if (isSound && ++count <= Session::MostNames)
        edits[property.key()][layer.key()] = name;
    }
  }
  return edits;
}

} // namespace

QByteArray Session::toJson(const QString &caseFolder) const {
  QJsonObject whole{{QStringLiteral("format"), Format}, {QStringLiteral("version"), Version}};
  whole[QStringLiteral("case")] = caseFolder;
  whole[QStringLiteral("window")] = QJsonObject{{QStringLiteral("geometry"), QString::fromLatin1(geometry.toBase64())},
                                                {QStringLiteral("docks"), QString::fromLatin1(docks.toBase64())},
                                                {QStringLiteral("sum"), sumOf(geometry, docks)}};
  if (!view.isNull())
    whole[QStringLiteral("view")] = QJsonArray{view.x(), view.y(), view.width(), view.height()};
  whole[QStringLiteral("current")] = current;
  QJsonObject names;
  for (const auto &[kind, ofKind] : Kinds) {
    if (selection.size() <= MostNames)
      names[QLatin1String(kind)] = written(selection.*ofKind);
  }
  whole[QStringLiteral("selection")] = names;
  whole[QStringLiteral("layers")] =
      QJsonObject{{QStringLiteral("property"), layerProperty}, {QStringLiteral("hidden"), written(hiddenLayers)}};
  if (!style.isEmpty() || !styleName.isEmpty())
    whole[QStringLiteral("style")] = QJsonObject{{QStringLiteral("name"), styleName},
                                                 {QStringLiteral("settings"), QString::fromUtf8(style.settings)},
                                                 {QStringLiteral("settingsFile"), written(settingsFile)},
                                                 {QStringLiteral("labels"), QString::fromUtf8(style.labels)},
                                                 {QStringLiteral("labelsFile"), written(labelsFile)}};
  if (!layerEdits.isEmpty())
    whole[QStringLiteral("layerEdits")] = written(layerEdits);
  return QJsonDocument(whole).toJson();
}

void Session::takeWindow(const QJsonObject &window, QString *reason) {
  geometry = stateIn(window[QStringLiteral("geometry")]);
  docks = stateIn(window[QStringLiteral("docks")]);
  if (window[QStringLiteral("sum")].toString() == sumOf(geometry, docks))
    return;
  geometry.clear();
  docks.clear();
  if (reason != nullptr)
    *reason = tr("the places of window and docks are damaged and not used");
}

std::optional<Session> Session::fromJson(const QByteArray &text, const QString &caseFolder, QString *reason) {
  QJsonParseError fault;
  const QJsonObject whole = QJsonDocument::fromJson(text, &fault).object();
  QString why;
  if (fault.error != QJsonParseError::NoError)
    why = fault.errorString();
  else if (whole[QStringLiteral("format")].toString() != Format)
    why = tr("it is no session");
  else if (whole[QStringLiteral("version")].toInt() != Version)
    why = tr("it is of another version of the program");
  else if (whole[QStringLiteral("case")].toString() != caseFolder)
    why = tr("it is of another case");
  if (!why.isEmpty()) {
    if (reason != nullptr)
      *reason = why;
    return std::nullopt;
  }
  Session session;
  session.takeWindow(whole[QStringLiteral("window")].toObject(), reason);
  session.view = viewIn(whole[QStringLiteral("view")]);
  for (const auto &[kind, ofKind] : Kinds)
    session.selection.*ofKind = namesIn(whole[QStringLiteral("selection")][QLatin1String(kind)]);
  session.current = whole[QStringLiteral("current")].toString().left(LongestName);
  session.layerProperty = whole[QStringLiteral("layers")][QStringLiteral("property")].toString().left(LongestName);
  session.hiddenLayers = namesIn(whole[QStringLiteral("layers")][QStringLiteral("hidden")]);
  const QJsonObject style = whole[QStringLiteral("style")].toObject();
  session.style = {styleIn(style[QStringLiteral("settings")]), styleIn(style[QStringLiteral("labels")])};
  session.styleName = style[QStringLiteral("name")].toString().left(LongestName);
  session.settingsFile = stampIn(style[QStringLiteral("settingsFile")]);
  session.labelsFile = stampIn(style[QStringLiteral("labelsFile")]);
  session.layerEdits = editsIn(whole[QStringLiteral("layerEdits")].toObject());
  return session;
}
