#pragma once

#include <base/generalsettings.h>
#include <base/settingstable.h>

#include <stdexcept>
#include <string_view>
#include <type_traits>

/// A general setting that the viewer acts on, in the type in which it does. One that the table does not know, that has no
/// effect by it or another type does not compile.
template <typename T>
class Setting {
public:
  constexpr Setting(const char *key) // NOLINT(google-explicit-constructor): the constants below are lists of keys
      : m_row(&SettingsTable::row(key)) {
    if (m_row->effect != SettingsTable::Acts)
      throw std::invalid_argument("the table says that the setting has no effect");
    const bool isSwitch = std::string_view(m_row->type) == "bool" || std::string_view(m_row->options) == "on,off";
    if (isSwitch != std::is_same_v<T, bool>)
      throw std::invalid_argument("the setting is of another type");
  }

  QString key() const { return QString::fromLatin1(m_row->key); }
  /// What the settings file says, else the default; a text that is no number gives 0.
  T value() const {
    const GeneralSettings &settings = GeneralSettings::instance();
    if constexpr (std::is_same_v<T, bool>)
      return settings.isOn(key());
    else if constexpr (std::is_same_v<T, int>)
      return settings.value(key()).toInt();
    else if constexpr (std::is_same_v<T, double>)
      return settings.value(key()).toDouble();
    else
      return settings.value(key());
  }

private:
  const SettingsTable::Row *m_row;
};

namespace Settings {

inline constexpr Setting<bool> StartWithLastScenario{"start with last scenario"};
inline constexpr Setting<QString> Appearance{"appearance"};
inline constexpr Setting<bool> KeepCharacteristicsList{"auto-save PE and CHAR widget list"};
inline constexpr Setting<bool> UseComma{"use comma"};
inline constexpr Setting<bool> ZoomToElement{"zoom to element"};
inline constexpr Setting<double> ZoomToElementFactor{"zoom to element: factor"};
inline constexpr Setting<bool> PerformPixtest{"perform pixtest"};
inline constexpr Setting<bool> PerformPixtestOnClick{"perform pixtest on click"};
inline constexpr Setting<int> PixtestDelay{"pixtest delay"};
inline constexpr Setting<bool> SmoothZoom{"smooth zoom"};
inline constexpr Setting<int> SmoothZoomPixtestDelay{"smooth zoom pixtest delay"};
inline constexpr Setting<int> SmoothZoomDuration{"smooth zoom duration"};
inline constexpr Setting<int> SmoothZoomSteps{"smooth zoom steps"};
inline constexpr Setting<bool> BuildLabels{"build labels"};
inline constexpr Setting<bool> BuildSymbols{"build symbols"};
inline constexpr Setting<QString> LabelPlacement{"perform label placement"};
inline constexpr Setting<double> LabelPlacementRatio{"perform label placement ratio"};
inline constexpr Setting<int> LabelPlacementMsec{"perform label placement msec"};
inline constexpr Setting<double> TinyConversionTolerance{"tiny conversion tolerance"};
inline constexpr Setting<bool> SubnetDeselectionToItsNodes{"subnet deselection to its nodes"};
inline constexpr Setting<double> SubnetSelectionSizeFactor{"subnet selection size factor"};
inline constexpr Setting<QString> SubnetRingColors{"show subnet ring colors"};
inline constexpr Setting<double> SubnetBackgroundZ{"subnet background z"};
inline constexpr Setting<double> SubnetBackgroundSize{"subnet background size"};
inline constexpr Setting<double> SubnetPenWidth{"subnet pen width"};
inline constexpr Setting<QString> RingColorMajor{"subnet ring color BV major"};
inline constexpr Setting<QString> RingColorMinor{"subnet ring color BV minor"};
inline constexpr Setting<QString> RingColorNone{"subnet ring color no BV"};
inline constexpr Setting<QString> RingColorUnknown{"subnet ring color BV unknown"};
inline constexpr Setting<QString> RingColorSearchResult{"subnet ring color search result"};
inline constexpr Setting<QString> SubnetColorFlowControl{"subnet color flow control"};
inline constexpr Setting<QString> SubnetColorPressureControl{"subnet color pressure control"};
inline constexpr Setting<QString> SubnetColorMaybeInControl{"subnet color maybe in control"};
inline constexpr Setting<QString> SubnetColorBypass{"subnet color bypass"};
inline constexpr Setting<QString> SubnetColorUnknown{"subnet color unknown"};
inline constexpr Setting<QString> SubnetColorOff{"subnet color off"};
inline constexpr Setting<bool> DrawSubassemblyPinLines{"draw subassembly pin lines"};
inline constexpr Setting<QString> SubassemblySize{"subassembly size"};
inline constexpr Setting<int> UserKeyRectZoom{"UserKey_RectZoom"};
inline constexpr Setting<QString> MousePatternPanning{"MousePattern_Panning"};
inline constexpr Setting<QString> SelectionModifiers{"SelectionModifiers"};
inline constexpr Setting<bool> PickOnRelease{"pick on Release"};
inline constexpr Setting<bool> PelkaMode{"PELKA mode"};
inline constexpr Setting<QString> StatusBarFailed{"status bar style sheet failed"};
inline constexpr Setting<QString> StatusBarStopped{"status bar style sheet stopped"};
inline constexpr Setting<QString> StatusBarAcceptable{"status bar style sheet acceptable"};
inline constexpr Setting<QString> StatusBarSuccessful{"status bar style sheet successful"};
inline constexpr Setting<bool> AskForIncludeLists{"ask for include lists"};
inline constexpr Setting<QString> NumberForm{"number form on screen"};
inline constexpr Setting<int> NumberDigits{"number digits on screen"};
inline constexpr Setting<int> NumberDigitsInLabels{"number digits in labels"};
inline constexpr Setting<QString> DecimalSign{"decimal sign on screen"};
inline constexpr Setting<QString> Thousands{"thousands on screen"};
inline constexpr Setting<int> NumberDigitsInFiles{"number digits in files"};
inline constexpr Setting<QString> ThousandsInFiles{"thousands in files"};

/// How what is selected is marked.
struct SelectionMark {
  Setting<QString> brushColor;
  Setting<int> brushAlpha;
  Setting<int> brushStyle; ///< a Qt::BrushStyle
  Setting<QString> penColor;
  Setting<int> penAlpha;
};
inline constexpr SelectionMark ElementSelection{"element selection brush color", "element selection brush alpha",
                                                "element selection brush style", "element selection pen color",
                                                "element selection pen alpha"};
inline constexpr SelectionMark SubnetSelection{"subnet selection brush color", "subnet selection brush alpha",
                                               "subnet selection brush style", "subnet selection pen color",
                                               "subnet selection pen alpha"};

} // namespace Settings
