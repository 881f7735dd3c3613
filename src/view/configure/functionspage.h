#pragma once

#include "configure/functionrow.h"

#include <drawing/drawfunctions.h>
#include <drawing/netupdate.h>

#include <QWidget>

#include <optional>

/// The draw functions of the dialog, one row for each thing that they decide.
class FunctionsPage : public QWidget {
  Q_OBJECT
public:
  /// \param drawing whose network and values the rows speak of
  /// \param settings as they are drawn
  FunctionsPage(const NetUpdate &drawing, const PlotSettings &settings, QWidget *parent = nullptr);

  /// Offers the names that every network may have, and behind them the properties of this one.
  void offerFunctions();
  /// Rows whose function was changed elsewhere show the new one: what was typed belongs to the former.
  void followFunctions(const PlotSettings &settings);
  /// Shows the functions, and what the values that are drawn say to their bounds.
  void showFunctions(const PlotSettings &settings);
  /// Changes what was touched since the functions were shown, after asking what to do about bounds that make no range.
  /// False, and nothing is changed, when nothing is to be applied.
  bool readTouched(PlotSettings &settings) const;
  /// Shows units and numbers as they were chosen since; what was typed and not applied stays.
  void changeUnits(const PlotSettings &settings);
  /// The function that is chosen now, applied or not; without a network none.
  std::optional<DrawFunction> chosen(Aspect aspect) const;
  /// The same without a question; false when the bounds make no range.
  bool readSound(PlotSettings &settings) const;
  bool isTouched() const;
  /// Takes all bounds of all functions from the data.
  void forgetBounds();

signals:
  void edgeColorsChosen(); ///< another function for them, by a person

private:
  void choose(Aspect aspect);
  FunctionRow::Unit unitOf(const QString &function) const;
  void showNotes(const PlotSettings &settings);
  /// Where the values of the data lie, and whether any of them lies between the bounds.
  static QString noteOn(const DrawValues::Column &values, const PlotSettings::Function &function);
  /// Corrects bounds that make no range if the person wants it; false when nothing is to be applied.
  static bool askForSoundRange(PlotSettings::Function &function);

  const NetUpdate &m_drawing;
  const PlotSettings &m_settings;
  PerAspect<FunctionRow *> m_rows{};
  PerAspect<PlotSettings::Function> m_shown; ///< what the rows said before anybody touched them
};
