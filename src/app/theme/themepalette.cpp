#include "theme/themepalette.h"

namespace {

struct Colors {
  QRgb window;
  QRgb base;
  QRgb alternateBase;
  QRgb button;
  QRgb text;
  QRgb brightText;
  QRgb faint;  ///< of place-holders
  QRgb greyed; ///< of what cannot be used
  QRgb link;
  QRgb visited;
  QRgb highlight;
  QRgb highlighted;
  QRgb greyedHighlight;
  QRgb tip;
  QRgb onTip;
  QRgb lightEdge; ///< of frames, from light to dark
  QRgb midlight;
  QRgb mid;
  QRgb darkEdge;
  QRgb shadow;
};

constexpr Colors Light{0xffefefef, 0xffffffff, 0xfff5f7f9, 0xffefefef, 0xff1b1f23, 0xffffffff, 0xff646a6f,
                       0xff666b70, 0xff0b5cad, 0xff6b3fa0, 0xff2470ad, 0xffffffff, 0xffd3d8dd, 0xffffffdc,
                       0xff1b1f23, 0xffffffff, 0xffcacaca, 0xffb8b8b8, 0xff9f9f9f, 0xff767676};

constexpr Colors Dark{0xff31353a, 0xff1b1e21, 0xff23272b, 0xff3c4147, 0xffe8eaed, 0xffffffff, 0xff9ea3a9,
                      0xffadb2b8, 0xff6fb3f2, 0xffc0a0ee, 0xff2f6ea5, 0xffffffff, 0xff464b52, 0xff3a3f45,
                      0xffeceef0, 0xff555b63, 0xff4a4f56, 0xff666c74, 0xff1d2023, 0xff0f1113};

QPalette made(const Colors &colors) {
  using Role = QPalette::ColorRole;
  QPalette palette;
  const auto set = [&palette](Role role, QRgb color) {
    palette.setColor(QPalette::All, role, QColor(color));
  };
  for (const Role role : {Role::WindowText, Role::Text, Role::ButtonText}) {
    set(role, colors.text);
    palette.setColor(QPalette::Disabled, role, QColor(colors.greyed));
  }
  set(Role::Window, colors.window);
  set(Role::Base, colors.base);
  palette.setColor(QPalette::Disabled, Role::Base, QColor(colors.window));
  set(Role::AlternateBase, colors.alternateBase);
  set(Role::Button, colors.button);
  set(Role::BrightText, colors.brightText);
  set(Role::PlaceholderText, colors.faint);
  set(Role::Link, colors.link);
  set(Role::LinkVisited, colors.visited);
  set(Role::Highlight, colors.highlight);
  set(Role::HighlightedText, colors.highlighted);
  palette.setColor(QPalette::Disabled, Role::Highlight, QColor(colors.greyedHighlight));
  palette.setColor(QPalette::Disabled, Role::HighlightedText, QColor(colors.text));
  set(Role::ToolTipBase, colors.tip);
  set(Role::ToolTipText, colors.onTip);
  set(Role::Light, colors.lightEdge);
  set(Role::Midlight, colors.midlight);
  set(Role::Mid, colors.mid);
  set(Role::Dark, colors.darkEdge);
  set(Role::Shadow, colors.shadow);
  return palette;
}

} // namespace

QPalette ThemePalette::light() {
  return made(Light);
}

QPalette ThemePalette::dark() {
  return made(Dark);
}

bool ThemePalette::isDark(const QPalette &palette) {
  constexpr int Middle = 128;
  return palette.color(QPalette::Window).lightness() < Middle;
}

QColor ThemePalette::wrong(const QPalette &palette) {
  return isDark(palette) ? QColor(0xff, 0x8a, 0x80) : QColor(0xb3, 0x1b, 0x1b);
}
