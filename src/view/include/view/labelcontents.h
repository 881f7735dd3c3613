#pragma once

#include <formulas/formula.h>
#include <model/units.h>
#include <view/labeltable.h>
#include <view/netgeometry.h>
#include <view/plotsettings.h>

#include <QColor>
#include <QFont>
#include <QHash>

#include <memory>

/// How a label's box looks.
struct LabelStyle {
  QFont font;
  QColor text = Qt::black;
  QColor background = Qt::transparent;
  QColor border = Qt::transparent;
};

/// What a label says.
struct LabelText {
  QStringList lines; ///< plain text
  QString html;      ///< in place of the lines where the text has marks other than line breaks

  bool isEmpty() const { return lines.isEmpty() && html.isEmpty(); }
};

/// Makes the texts of labels: the name alone, or what the label table says of the element's type. There, "@property"
/// stands for a value in the unit in which people read it, and "@{formula}" for what a formula says, in which a bare name is
/// a property of the element; a line whose place-holders all lack a value is left out.
class LabelContents {
public:
  LabelContents(const LabelTable &table, const PlotSettings &settings, const NetData &net);

  bool isOff() const { return m_mode == Mode::None; }
  LabelText text(const element &source) const;
  LabelStyle style(const element &source, NetData::EleType kind) const;

  /// As a person would write it: about four digits, thousands set apart, "5 200 m³/h" for 5.2 of "1000 m3/h".
  static QString formatted(double value, const QString &unit);

private:
  enum class Mode { None, Name, Selected };
  struct Part {
    QString text;                     ///< in front of the value
    PropertyKey value;                ///< null behind the last value
    std::shared_ptr<Formula> formula; ///< in place of the value
    Units::Linear toDisplay;
    QString unit;
    bool isPlaceHolder = false;
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
  static QString shownValue(const Part &part, const element &source);
  static QString filled(const Line &line, const element &source, bool isHtml);
  const Type *find(const element &source) const;

  const NetData &m_net;
  Mode m_mode = Mode::None;
  LabelStyle m_nodeStyle;
  LabelStyle m_edgeStyle;
  QHash<QString, Type> m_types; ///< by type code
  bool m_hasOwnStyles = false;  ///< some element of some network says how its label looks
};
