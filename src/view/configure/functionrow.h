#pragma once

#include <drawing/plotsettings.h>
#include <drawing/typedbounds.h>
#include <model/units.h>

#include <QGroupBox>

#include <functional>
#include <memory>

namespace Ui {
class FunctionRow;
}

/// One draw function in the dialog: which one, its bounds in the display unit, absolute values and logarithmic scale. Each
/// function keeps bounds of its own, as they were typed: another function comes with its own or with open ones.
class FunctionRow : public QGroupBox {
  Q_OBJECT
public:
  struct Unit {
    QString name; ///< empty for plain numbers
    Units::Linear toDisplay;
  };
  using UnitOf = std::function<Unit(const QString &function)>;

  /// \param unitOf tells the unit in which people read a function
  FunctionRow(const QString &title, const QString &absoluteTip, UnitOf unitOf, QWidget *parent = nullptr);
  ~FunctionRow() override;

  /// The names that are offered. \param described what stands behind those of them that say little by themselves
  void setChoices(const QStringList &names, const QHash<QString, QString> &described);
  /// Shows the function; the "Reset" buttons come back to its bounds.
  void setFunction(const PlotSettings::Function &function);
  PlotSettings::Function function() const;
  /// Puts another function in its place, as if a person had typed its name.
  void chooseFunction(const QString &name);
  QStringList choices() const;
  void takeBoundsFromData();
  /// Shows the bounds, also those that are typed and not applied, in the unit that was chosen since.
  void changeUnit();
  /// The same for every function of this row.
  void forgetBounds();
  /// Says what is wrong with the bounds as they stand, empty when nothing is: a text that is no number.
  QString fault() const;
  /// Something to know about the bounds that are applied; it goes once another function is chosen.
  void setNote(const QString &text);

signals:
  void functionChosen(); ///< by a person, in place of another
  void choiceWanted();   ///< among all functions, with what is known of them

private:
  void changeFunction(const QString &function);
  TypedBounds shownBounds() const;
  /// What is typed for the functions of this row now.
  TypedBounds::OfFunctions typedBounds() const;
  void show(const TypedBounds &bounds);
  TypedBounds inUnit(const TypedBounds &typed) const;
  QString written(double bound, double open, const QString &typed) const;
  double stored(const QString &text, double open) const;

  std::unique_ptr<Ui::FunctionRow> m_ui;
  UnitOf m_unitOf;
  Unit m_unit;                        ///< of the function that is shown
  QChar m_sign;                       ///< with which decimals are shown
  QString m_function;                 ///< that is shown, as TypedBounds::OfFunctions has it
  TypedBounds::OfFunctions m_typed;   ///< of the other functions
  TypedBounds::OfFunctions m_applied; ///< what "Reset" comes back to
};
