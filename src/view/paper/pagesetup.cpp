#include <base/fileaccess.h>
#include <base/generalsettings.h>
#include <base/wholefile.h>
#include <paper/pagesetup.h>

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPageSize>

#include <array>
#include <cmath>

namespace {

constexpr double ScreenDpi = 96.0; // of a screen whose pixels have the usual size

QString file() {
  return GeneralSettings::userDirectory() + QStringLiteral("/page.json");
}

struct Switch {
  const char *key;
  bool PageSetup::*value;
};
constexpr std::array<Switch, 7> Switches{{{"landscape", &PageSetup::isLandscape},
                                          {"heading", &PageSetup::hasHeading},
                                          {"legend", &PageSetup::hasLegend},
                                          {"scaleBar", &PageSetup::hasScaleBar},
                                          {"frame", &PageSetup::hasFrame},
                                          {"labels", &PageSetup::hasLabels},
                                          {"selection", &PageSetup::marksSelection}}};

QSizeF upright(const QString &paper) {
  static const QStringList &names = PageSetup::papers();
  static constexpr std::array<QPageSize::PageSizeId, 7> Ids{QPageSize::A5, QPageSize::A4, QPageSize::A3,    QPageSize::A2,
                                                            QPageSize::A1, QPageSize::A0, QPageSize::Letter};
  const int number = names.indexOf(paper);
  const bool isKnown = number >= 0 && number < static_cast<int>(Ids.size());
  return QPageSize(isKnown ? Ids[static_cast<std::size_t>(number)] : QPageSize::A4).size(QPageSize::Millimeter);
}

/// A number between bounds; otherwise when it is none.
double numberOf(const QJsonValue &value, double least, double most, double otherwise) {
  const double number = value.toDouble(otherwise);
  return std::isfinite(number) ? qBound(least, number, most) : otherwise;
}

PageSetup setupOf(const QJsonObject &object) {
  PageSetup setup;
  const QString paper = object[QStringLiteral("paper")].toString();
  if (PageSetup::papers().contains(paper))
    setup.paper = paper;
  const auto side = [&object](const char *key, double otherwise) {
    return numberOf(object[QLatin1String(key)], PageSetup::SmallestSide, PageSetup::LargestSide, otherwise);
  };
  setup.ownSize = {side("width", setup.ownSize.width()), side("height", setup.ownSize.height())};
  const QJsonArray margins = object[QStringLiteral("margins")].toArray();
  const auto margin = [&margins](int number) {
    return numberOf(margins[number], 0.0, PageSetup::LargestMargin, 10.0);
  };
  setup.margins = {margin(0), margin(1), margin(2), margin(3)};
  setup.dpi = qRound(numberOf(object[QStringLiteral("dpi")], PageSetup::SmallestDpi, PageSetup::LargestDpi, setup.dpi));
  setup.scale = numberOf(object[QStringLiteral("scale")], 0.0, PageSetup::LargestScale, 0.0);
  setup.area = object[QStringLiteral("wholeNetwork")].toBool() ? PageSetup::Area::Network : PageSetup::Area::Window;
  for (const Switch &own : Switches)
    setup.*own.value = object[QLatin1String(own.key)].toBool(setup.*own.value);
  return setup;
}

} // namespace

const QStringList &PageSetup::papers() {
  static const QStringList names{QStringLiteral("A5"), QStringLiteral("A4"), QStringLiteral("A3"),     QStringLiteral("A2"),
                                 QStringLiteral("A1"), QStringLiteral("A0"), QStringLiteral("Letter"), ownPaper()};
  return names;
}

PageSetup PageSetup::remembered() {
  QString reason; // mostly that there is none yet
  const auto text = FileAccess::readWhole(file(), FileAccess::Source::Trusted, FileAccess::LargestConfiguration, &reason);
  return text ? setupOf(QJsonDocument::fromJson(*text).object()) : PageSetup();
}

bool PageSetup::remember(QString *reason) const {
  QJsonObject object{
      {QStringLiteral("paper"), paper},
      {QStringLiteral("width"), ownSize.width()},
      {QStringLiteral("height"), ownSize.height()},
      {QStringLiteral("margins"), QJsonArray{margins.left(), margins.top(), margins.right(), margins.bottom()}},
      {QStringLiteral("dpi"), dpi},
      {QStringLiteral("scale"), scale},
      {QStringLiteral("wholeNetwork"), area == Area::Network}};
  for (const Switch &own : Switches)
    object.insert(QLatin1String(own.key), this->*own.value);
  QDir().mkpath(QFileInfo(file()).path());
  return WholeFile::write(file(), FileAccess::Source::Trusted, QJsonDocument(object).toJson(), reason);
}

QSizeF PageSetup::size() const {
  if (paper == ownPaper())
    return ownSize;
  const QSizeF sheet = upright(paper);
  return isLandscape ? sheet.transposed() : sheet;
}

double PageSetup::drawnScale() const {
  if (scale >= SmallestScale)
    return scale;
  constexpr double UsualArea = 297.0 * 210.0; // mm2, which is held in the hands
  const QSizeF sheet = size();
  return std::pow(sheet.width() * sheet.height() / UsualArea, 0.25);
}

double PageSetup::unit() const {
  return MillimetersPerInch / ScreenDpi * drawnScale();
}

QString PageSetup::fault() const {
  constexpr double LeastRoom = 30.0;
  const QSizeF sheet = size();
  for (const double side : {sheet.width(), sheet.height()}) {
    if (!(side >= SmallestSide && side <= LargestSide))
      return tr("A paper has sides of %1 to %2 mm.").arg(SmallestSide).arg(LargestSide);
  }
  if (sheet.width() - margins.left() - margins.right() < LeastRoom ||
      sheet.height() - margins.top() - margins.bottom() < LeastRoom)
    return tr("The margins leave no room on this paper.");
  return QString();
}
