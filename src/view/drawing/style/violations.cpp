#include <base/settings.h>
#include <drawing/violations.h>
#include <model/names.h>

#include <string_view>

Violations::State Violations::of(const element &source) {
  const PropertyText *info = source.find(Names::all().violations);
  if (info == nullptr)
    return State::Unknown;
  const std::string_view text = info->utf8();
  constexpr std::string_view Frame = "(); \t\r\n";
  if (text.find_first_not_of(Frame) == std::string_view::npos)
    return State::None;
  return info->toString().contains(QLatin1String("major"), Qt::CaseInsensitive) ? State::Major : State::Minor;
}

QColor Violations::color(State state) {
  const auto colorOf = [](const Setting<QString> &setting) {
    const QColor color(setting.value());
    return color.isValid() ? color : QColor(Qt::gray);
  };
  switch (state) {
  case State::Major:
    return colorOf(Settings::RingColorMajor);
  case State::Minor:
    return colorOf(Settings::RingColorMinor);
  case State::None:
    return colorOf(Settings::RingColorNone);
  case State::Unknown:
    break;
  }
  return colorOf(Settings::RingColorUnknown);
}
