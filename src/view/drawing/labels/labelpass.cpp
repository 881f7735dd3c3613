#include "labels/labelpass.h"

#include <markup/closeddocument.h>

#include <QFontMetricsF>

#include <algorithm>
#include <array>
#include <map>

namespace {

/// Widths of texts from those of their letters, which is close enough for a box and much quicker than laying them out.
class FontMeasure {
public:
  static FontMeasure &of(const QFont &font) {
    static std::map<QString, FontMeasure> known;
    return known.try_emplace(font.key(), font).first->second;
  }
  explicit FontMeasure(const QFont &font)
      : m_metrics(font) {
    for (std::size_t i = 0; i < m_advances.size(); ++i)
      m_advances[i] = m_metrics.horizontalAdvance(QChar(static_cast<ushort>(i)));
  }

  double width(const QString &text) const {
    double sum = 0.0;
    for (const QChar c : text) {
      if (c.unicode() >= m_advances.size())
        return m_metrics.horizontalAdvance(text);
      sum += m_advances[c.unicode()];
    }
    return sum;
  }
  double height() const { return m_metrics.height(); }

private:
  QFontMetricsF m_metrics;
  std::array<double, 256> m_advances{};
};

} // namespace

namespace {

/// The rich text of a label.
class LabelDocument : public ClosedDocument {
public:
  explicit LabelDocument(const LabelStyle &style, const QString &html) {
    setDefaultFont(style.font);
    setDocumentMargin(Label::padding().width());
    setUndoRedoEnabled(false);
    setHtml(html);
  }

  /// \return its size, cut to what a label may take
  QSizeF layOut() {
    constexpr QSizeF LargestLabel(480.0, 360.0); // px
    if (idealWidth() > LargestLabel.width())
      setTextWidth(LargestLabel.width());
    return size().boundedTo(LargestLabel);
  }
};

/// Sorts by importance, and drops the least important of very many.
void putInOrder(std::vector<LabelWish> &wishes) {
  constexpr std::size_t MostWishes = 20000; // more than would ever fit
  const auto isBefore = [](const LabelWish &a, const LabelWish &b) {
    if (a.rank != b.rank)
      return a.rank < b.rank;
    if (a.weight != b.weight)
      return a.weight > b.weight;
    return a.candidate.item.index < b.candidate.item.index;
  };
  if (wishes.size() > MostWishes) {
    std::nth_element(wishes.begin(), wishes.begin() + MostWishes, wishes.end(), isBefore);
    wishes.resize(MostWishes);
  }
  std::sort(wishes.begin(), wishes.end(), isBefore);
}

} // namespace

LabelPass::LabelPass(const NetGeometry &geometry, const LabelContents &contents, const QRectF &canvas, double margin)
    : m_geometry(geometry)
    , m_contents(contents)
    , m_placement(canvas, margin) {}

bool LabelPass::makeLabel(LabelWish &wish, Label &label, LabelText &text) const {
  const element &source = *m_geometry.source(wish.candidate.item);
  text = m_contents.text(source);
  if (text.isEmpty())
    return false;
  label.style = m_contents.style(source, wish.candidate.item.kind);
  if (!wish.name.isEmpty()) {
    text = {{wish.name}, QString()};
    label.style = m_contents.nameStyle(wish.candidate.item.kind);
  }
  QSizeF size;
  if (!text.html.isEmpty()) {
    auto document = std::make_shared<LabelDocument>(label.style, text.html);
    size = document->layOut();
    label.document = std::move(document);
  } else {
    const FontMeasure &measure = FontMeasure::of(label.style.font);
    for (const QString &line : text.lines)
      size.setWidth(std::max(size.width(), measure.width(line)));
    size.setHeight(measure.height() * text.lines.size());
    size += Label::padding() * 2.0;
  }
  wish.candidate.size = size;
  return true;
}

void LabelPass::layOut(Label &label, const LabelText &text) {
  for (const QString &line : text.lines) {
    QStaticText laidOut(line);
    laidOut.setTextFormat(Qt::PlainText);
    laidOut.setPerformanceHint(QStaticText::AggressiveCaching);
    laidOut.prepare(QTransform(), label.style.font);
    label.lines.push_back(laidOut);
  }
}

LabelPass::Result LabelPass::run(std::vector<LabelWish> wishes, const std::vector<Label> &before) {
  Result result;
  putInOrder(wishes);
  std::map<NetGeometry::Item, const LabelSpot *> known;
  for (const Label &label : before)
    known[label.candidate.item] = &label.spot;
  const auto spotBefore = [&known](const LabelWish &wish) -> const LabelSpot * {
    const auto found = known.find(wish.candidate.item);
    return found == known.end() ? nullptr : found->second;
  };
  const auto placeLabel = [&](LabelWish &wish, bool keeps) {
    Label label;
    LabelText text;
    if (!makeLabel(wish, label, text))
      return;
    bool isPlaced = false;
    if (keeps) {
      label.spot = *spotBefore(wish);
      isPlaced = m_placement.keep(wish.candidate, label.spot);
    }
    if (!isPlaced && !m_placement.place(wish.candidate, label.spot)) {
      result.unplaced.push_back(wish.candidate.item);
      return;
    }
    label.candidate = wish.candidate;
    label.position = wish.position;
    layOut(label, text);
    result.labels.push_back(std::move(label));
  };
  for (const bool keeps : {true, false}) { // first come those that stood there before
    for (LabelWish &wish : wishes) {
      if ((spotBefore(wish) != nullptr) == keeps)
        placeLabel(wish, keeps);
    }
  }
  return result;
}
