#include <model/units.h>

#include <QHash>

#include <charconv>
#include <cmath>
#include <memory>
#include <mutex>
#include <udunits2.h>

namespace {

/// What a unit measures beyond its dimension: amounts of gas at norm conditions convert to mass and energy by the gas.
enum class Quantity { Plain, NormFlow, MassFlow, Power };

struct UnitFree {
  void operator()(ut_unit *unit) const { ut_free(unit); }
  void operator()(ut_system *system) const { ut_free_system(system); }
  void operator()(cv_converter *converter) const { cv_free(converter); }
};
using UnitPtr = std::unique_ptr<ut_unit, UnitFree>;

constexpr int LongestUnit = 100;

/// Names of the gas field in the words of the library; a text that is not here stands as it is.
QString spelledOut(const QString &unit) {
  static const QHash<QString, QString> names{
      {QStringLiteral("-"), QStringLiteral("1")},
      {QStringLiteral("1000 m3/h"), QStringLiteral("1000 m3/hour")},
      {QStringLiteral("1000 Nm3/h"), QStringLiteral("1000 m3/hour")},
      {QStringLiteral("Nm3/h"), QStringLiteral("m3/hour")},
      {QStringLiteral("m3/h"), QStringLiteral("m3/hour")},
      {QStringLiteral("m3/d"), QStringLiteral("m3/day")},
      {QStringLiteral("m3/min"), QStringLiteral("m3/minute")},
      {QStringLiteral("1000000 m3/d"), QStringLiteral("1000000 m3/day")},
      {QStringLiteral("km/h"), QStringLiteral("km/hour")},
      {QStringLiteral("GJ/h"), QStringLiteral("gigajoule/hour")},
      {QStringLiteral("GWh/d"), QStringLiteral("gigawatt hour/day")},
      {QStringLiteral("kg/h"), QStringLiteral("kg/hour")},
      {QStringLiteral("t/h"), QStringLiteral("1000 kg/hour")},
      {QStringLiteral("barg"), QStringLiteral("bar @ 1.01325")},
      {QStringLiteral("psig"), QStringLiteral("psi @ 14.69594877551345")}, // 1.01325 bar as well
      {QStringLiteral("degC"), QStringLiteral("degree_Celsius")},
      {QStringLiteral("degF"), QStringLiteral("degree_Fahrenheit")},
      {QStringLiteral("\u00b0C"), QStringLiteral("degree_Celsius")},
      {QStringLiteral("\u00b0"), QStringLiteral("degree")},
      {QStringLiteral("MJ/m3"), QStringLiteral("megajoule/m3")},
      {QStringLiteral("kWh/m3"), QStringLiteral("kilowatt hour/m3")},
      {QStringLiteral("kJ/m3"), QStringLiteral("kilojoule/m3")},
      {QStringLiteral("kJ/kg"), QStringLiteral("kilojoule/kg")},
      {QStringLiteral("kWh/t"), QStringLiteral("kilowatt hour/(1000 kg)")},
      {QStringLiteral("m of head"), QStringLiteral("9.80665 m2/s2")}, // of gas, under standard gravity
      {QStringLiteral("g/l"), QStringLiteral("gram/liter")},
      {QStringLiteral("W/(m2 K)"), QStringLiteral("watt/(m2 K)")},
      {QStringLiteral("kg/m3"), QStringLiteral("kg m-3")},
      {QStringLiteral("rpm"), QStringLiteral("1/minute")},
      {QStringLiteral("1/min"), QStringLiteral("1/minute")},
      {QStringLiteral("%"), QStringLiteral("0.01")},
  };
  const QString trimmed = unit.trimmed();
  return names.value(trimmed, trimmed);
}

class Tables {
public:
  /// Read when first asked for: a start without a network needs none.
  static Tables &instance() {
    static Tables tables;
    return tables;
  }

  const ut_unit *unit(const QString &name) {
    const auto known = m_units.constFind(name);
    if (known != m_units.constEnd())
      return known->get();
    return m_units.insert(name, std::shared_ptr<ut_unit>(parse(name), UnitFree())).value().get();
  }

  Quantity quantity(const ut_unit *unit) const {
    if (ut_are_convertible(unit, m_volumeFlow.get()))
      return Quantity::NormFlow;
    if (ut_are_convertible(unit, m_massFlow.get()))
      return Quantity::MassFlow;
    return ut_are_convertible(unit, m_power.get()) ? Quantity::Power : Quantity::Plain;
  }

  const ut_unit *base(Quantity quantity) const {
    return quantity == Quantity::NormFlow   ? m_volumeFlow.get()
           : quantity == Quantity::MassFlow ? m_massFlow.get()
                                            : m_power.get();
  }

  std::mutex mutex;

private:
  Tables() {
    ut_set_error_message_handler(ut_ignore);
    m_system.reset(ut_read_xml(nullptr));
    m_volumeFlow.reset(parse(QStringLiteral("m3/s")));
    m_massFlow.reset(parse(QStringLiteral("kg/s")));
    m_power.reset(parse(QStringLiteral("megawatt")));
  }

  ut_unit *parse(const QString &name) const {
    const QByteArray text = spelledOut(name).toUtf8();
    if (!m_system || text.isEmpty() || text.size() > LongestUnit || text.contains('\0'))
      return nullptr;
    return ut_parse(m_system.get(), text.constData(), UT_UTF8);
  }

  std::unique_ptr<ut_system, UnitFree> m_system;
  UnitPtr m_volumeFlow;
  UnitPtr m_massFlow;
  UnitPtr m_power;
  QHash<QString, std::shared_ptr<ut_unit>> m_units; // null for what is no unit, so that it is asked once
};

/// What a factor or offset of the tables means: a number of few digits, or one over a whole number. Their arithmetic leaves
/// noise in the last digits, which would show: 5000 m3/h are 5, not 4.999999999999999 thousand.
long double meant(double number) {
  constexpr double Noise = 1e-14;
  constexpr double LargestWhole = 1e15;
  const double whole = std::round(1.0 / number);
  if (std::abs(whole) >= 1.0 && std::abs(whole) < LargestWhole && std::abs(1.0 / number - whole) <= Noise * std::abs(whole))
    return 1.0L / static_cast<long double>(whole);
  constexpr int FewDigits = 13;
  char text[64];
  const auto written = std::to_chars(text, text + sizeof text, number, std::chars_format::scientific, FewDigits);
  long double few = 0.0L;
  std::from_chars(text, written.ptr, few);
  return std::abs(static_cast<double>(few) - number) <= Noise * std::abs(number) ? few : static_cast<long double>(number);
}

std::optional<Units::Linear> plain(const ut_unit *from, const ut_unit *to) {
  const std::unique_ptr<cv_converter, UnitFree> converter(
      ut_get_converter(const_cast<ut_unit *>(from), const_cast<ut_unit *>(to)));
  if (!converter)
    return std::nullopt;
  // Two points tell the line; all but logarithmic units are linear, and those fail the third.
  const double zero = cv_convert_double(converter.get(), 0.0);
  const double one = cv_convert_double(converter.get(), 1.0);
  const double two = cv_convert_double(converter.get(), 2.0);
  const Units::Linear line{meant(one - zero), meant(zero)};
  constexpr double Tolerance = 1e-9;
  if (!std::isfinite(zero) || !std::isfinite(one) || std::abs(line(2.0) - two) > Tolerance * (1.0 + std::abs(two)))
    return std::nullopt;
  return line;
}

/// Mass per second of one norm cubic metre per second, and megawatts likewise.
std::optional<double> perNormFlow(Quantity quantity, const Units::Gas &gas) {
  switch (quantity) {
  case Quantity::NormFlow:
    return 1.0;
  case Quantity::MassFlow:
    return gas.normDensity && *gas.normDensity > 0.0 ? gas.normDensity : std::nullopt;
  case Quantity::Power:
    return gas.calorificValue && *gas.calorificValue > 0.0 ? gas.calorificValue : std::nullopt;
  case Quantity::Plain:
    break;
  }
  return std::nullopt;
}

} // namespace

QString Units::written(QString unit) {
  static const QHash<QString, QString> names{{QStringLiteral("barg"), QStringLiteral("bar (gauge)")},
                                             {QStringLiteral("psig"), QStringLiteral("psi (gauge)")},
                                             {QStringLiteral("um"), QStringLiteral("µm")}};
  if (QString name = names.value(unit); !name.isEmpty())
    return name;
  return unit.replace(QStringLiteral("degC"), QStringLiteral("°C"))
      .replace(QStringLiteral("degF"), QStringLiteral("°F"))
      .replace(QStringLiteral("1000000 "), QStringLiteral("10⁶ "))
      .replace(QStringLiteral("m3"), QStringLiteral("m³"))
      .replace(QStringLiteral("ft3"), QStringLiteral("ft³"))
      .replace(QStringLiteral("m2"), QStringLiteral("m²"));
}

QString Units::fromTyped(const QString &unit) {
  return unit.trimmed()
      .replace(QStringLiteral("°C"), QStringLiteral("degC"))
      .replace(QStringLiteral("°F"), QStringLiteral("degF"))
      .replace(QStringLiteral("10⁶ "), QStringLiteral("1000000 "))
      .replace(QStringLiteral("µm"), QStringLiteral("um"))
      .replace(QStringLiteral("m³"), QStringLiteral("m3"))
      .replace(QStringLiteral("ft³"), QStringLiteral("ft3"))
      .replace(QStringLiteral("m²"), QStringLiteral("m2"))
      .replace(QStringLiteral(" (gauge)"), QStringLiteral("g"));
}

bool Units::isKnown(const QString &unit) {
  Tables &tables = Tables::instance();
  const std::lock_guard lock(tables.mutex);
  return tables.unit(unit) != nullptr;
}

std::optional<Units::Linear> Units::conversion(const QString &from, const QString &to, const Gas &gas) {
  if (from == to)
    return Linear();
  Tables &tables = Tables::instance();
  const std::lock_guard lock(tables.mutex);
  const ut_unit *source = tables.unit(from);
  const ut_unit *target = tables.unit(to);
  if (source == nullptr || target == nullptr)
    return std::nullopt;
  if (ut_are_convertible(source, target))
    return plain(source, target);
  const Quantity sourceQuantity = tables.quantity(source);
  const Quantity targetQuantity = tables.quantity(target);
  const std::optional<double> sourceFactor = perNormFlow(sourceQuantity, gas);
  const std::optional<double> targetFactor = perNormFlow(targetQuantity, gas);
  if (!sourceFactor || !targetFactor)
    return std::nullopt;
  const std::optional<Linear> in = plain(source, tables.base(sourceQuantity));
  const std::optional<Linear> out = plain(tables.base(targetQuantity), target);
  if (!in || !out)
    return std::nullopt;
  const long double perGas = static_cast<long double>(*targetFactor) / static_cast<long double>(*sourceFactor);
  return Linear{in->factor * perGas * out->factor, 0.0L};
}

std::optional<double> Units::convert(double value, const QString &from, const QString &to, const Gas &gas) {
  const std::optional<Linear> line = conversion(from, to, gas);
  return line ? std::make_optional((*line)(value)) : std::nullopt;
}
