#pragma once

#include <base/finding.h>
#include <drawing/drawingtheme.h>
#include <drawing/labeltable.h>
#include <drawing/plotsettings.h>
#include <formulas/formula.h>
#include <model/units.h>

#include <QColor>
#include <QFont>
#include <QHash>

#include <memory>
#include <optional>

/// How a label's box looks.
struct LabelStyle {
  QFont font;
  QColor text = Qt::black;
  QColor background = Qt::transparent;
  QColor border = Qt::transparent;
  QColor halo = Qt::transparent; ///< around the letters, in place of a background
};

/// What a label says.
struct LabelText {
  QStringList lines; ///< plain text
  QString html;      ///< in place of the lines where the text has entities, or marks other than line breaks

  bool isEmpty() const { return lines.isEmpty() && html.isEmpty(); }
};

/// Makes the texts of labels: the name alone, or what the label table says of the element's type. There, "@property"
/// stands for a value in the unit in which people read it, and "@{formula}" for what a formula says, in which a bare name is
/// a property of the element; a line whose place-holders all lack a value is left out. It lives on one thread.
class LabelContents {
public:
  /// \param told of formulas that cannot be used, at once or, where only an element shows it, once a label is asked for
  LabelContents(const LabelTable &table, const PlotSettings &settings, const NetData &net, Told told = {});

  bool isOff() const { return m_mode == Mode::None; }
  LabelText text(const element &source) const;
  LabelStyle style(const element &source, NetData::EleType kind) const;
  /// Of names that stand in the drawing without a box, as those on a map.
  LabelStyle nameStyle(NetData::EleType kind) const;
  /// The lines of a text box, without marks: what the table says, else its "text". Not a matter of the label mode.
  QStringList textOfBox(const element &box) const;

  /// As a person would write it: four digits, thousands set apart, "5 200 m³/h" for 5.2 of "1000 m3/h".
  /// \param decimals to write at most, with their zeros, so that numbers beside each other look alike; negative for as many
  /// as the value needs
  static QString formatted(double value, const QString &unit, int decimals = -1);

private:
  enum class Mode { None, Name, Selected };
  struct Part {
    QString text;                     ///< in front of the value
    PropertyKey value;                ///< null behind the last value
    std::shared_ptr<Formula> formula; ///< in place of the value
    Units::Linear toDisplay;
    QString unit;
    bool isPlaceHolder = false;
    mutable std::optional<int> decimals; ///< of the values of this network, once asked for
  };
  using Line = std::vector<Part>;
  struct Type {
    std::vector<Line> lines;
    bool isHtml = false;
    LabelStyle style;
  };

  Type typeOf(const LabelRow &row) const;
  Line lineOf(const QString &text, const QString &type) const;
  Part valueOf(const QString &property, const QString &type) const;
  std::shared_ptr<Formula> formulaOf(const QString &text) const;
  QString shownValue(const Part &part, const element &source) const;
  QString filled(const Line &line, const element &source, bool isHtml) const;
  int decimalsOf(const Part &part, const element &like) const;
  const Type *find(const element &source) const;
  const LabelStyle &styleOf(NetData::EleType kind) const;

  const NetData &m_net;
  Told m_told;
  DrawingTheme m_theme;
  Mode m_mode = Mode::None;
  LabelStyle m_nodeStyle;
  LabelStyle m_edgeStyle;
  LabelStyle m_boxStyle;        ///< of text boxes, which have no ground of their own
  QHash<QString, Type> m_types; ///< by type code
  bool m_hasOwnStyles = false;  ///< some element of some network says how its label looks
};
