#include <io/conversionreport.h>

namespace {

void note(QStringList &notes, const QString &text) {
  constexpr int MaximumNotes = 5; // of a kind; a hostile file has one for each of its lines
  if (!text.isEmpty() && !notes.contains(text) && notes.size() < MaximumNotes)
    notes.append(text);
}

} // namespace

void ConversionReport::convert(const QString &kind, const QString &how) {
  Counts &counts = m_counts[kind];
  ++counts.converted;
  note(counts.how, how);
}

void ConversionReport::drop(const QString &kind, const QString &why) {
  Counts &counts = m_counts[kind];
  ++counts.dropped;
  note(counts.why, why);
}

void ConversionReport::add(const ConversionReport &other) {
  for (auto counts = other.m_counts.begin(); counts != other.m_counts.end(); ++counts) {
    Counts &own = m_counts[counts.key()];
    own.taken += counts->taken;
    own.converted += counts->converted;
    own.dropped += counts->dropped;
    for (const QString &how : counts->how)
      note(own.how, how);
    for (const QString &why : counts->why)
      note(own.why, why);
  }
}

QString ConversionReport::text() const {
  const auto line = [this](const QString &fate, int Counts::*count, QStringList Counts::*notes) {
    QStringList parts;
    for (auto counts = m_counts.begin(); counts != m_counts.end(); ++counts) {
      if ((*counts).*count == 0)
        continue;
      QString part = QStringLiteral("%1 %2").arg((*counts).*count).arg(counts.key());
      if (notes != nullptr && !((*counts).*notes).isEmpty())
        part += QStringLiteral(" (") + ((*counts).*notes).join(QStringLiteral("; ")) + QLatin1Char(')');
      parts.append(part);
    }
    return fate + QStringLiteral(": ") + (parts.isEmpty() ? tr("nothing") : parts.join(QStringLiteral(", "))) +
           QLatin1Char('\n');
  };
  return line(tr("taken"), &Counts::taken, nullptr) + line(tr("converted"), &Counts::converted, &Counts::how) +
         line(tr("dropped"), &Counts::dropped, &Counts::why);
}
