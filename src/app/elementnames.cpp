#include "elementnames.h"

#include <model/netdata.h>

#include <algorithm>

namespace {

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// Whether the text is in a name; made for asking a million of them.
class Contains {
public:
  explicit Contains(const QString &text)
      : m_text(text)
      , m_utf8(text.toLower().toUtf8().toStdString())
      , m_isAscii(std::all_of(m_utf8.begin(), m_utf8.end(), [](char c) { return static_cast<signed char>(c) >= 0; })) {}

  bool operator()(std::string_view name) const {
    if (!m_isAscii)
      return QString::fromUtf8(name.data(), static_cast<int>(name.size())).contains(m_text, Qt::CaseInsensitive);
    return std::search(name.begin(), name.end(), m_utf8.begin(), m_utf8.end(),
                       [](char a, char b) { return lower(a) == b; }) != name.end();
  }

private:
  QString m_text;
  std::string m_utf8;
  bool m_isAscii;
};

} // namespace

QStringList ElementNames::namesWith(const NetData &net, const QString &text, int most) {
  if (text.isEmpty() || most <= 0)
    return {};
  const auto collections = {&net.nodes(), &net.edges(), &net.assembledSubnets(), &net.textBoxes()};
  QStringList same;
  QStringList beginning;
  for (const elements *collection : collections) {
    for (const elements::Entry *entry : collection->beginningWith(text, static_cast<std::size_t>(most))) {
      const QString name = entry->name();
      (name.compare(text, Qt::CaseInsensitive) == 0 ? same : beginning).append(name);
    }
  }
  beginning.sort(Qt::CaseInsensitive);
  QStringList names = (same + beginning).mid(0, most);
  const Contains contains(text);
  for (const elements *collection : collections) {
    for (auto it = collection->begin(); it != collection->end() && names.size() < most; ++it) {
      if (!contains((*it).id.utf8()))
        continue;
      const QString name = (*it).name();
      if (!name.startsWith(text, Qt::CaseInsensitive)) // those are there
        names.append(name);
    }
  }
  return names;
}
