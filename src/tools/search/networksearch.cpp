#include "search/networksearch.h"

#include <base/parallel.h>
#include <base/textdecoding.h>
#include <model/names.h>

#include <iterator>
#include <map>
#include <mutex>

namespace {

enum Column { NameColumn, TypeColumn, MarkColumn };

/// Elements lie all over the memory: those to come are fetched while the present one is looked at.
void fetchAhead(const std::vector<element *> &candidates, std::size_t at) {
  constexpr std::size_t Elements = 12;
  constexpr std::size_t Properties = 6;
  if (at + Elements >= candidates.size())
    return;
  __builtin_prefetch(candidates[at + Elements]);
  candidates[at + Properties]->prefetch();
}

} // namespace

NetworkSearch::NetworkSearch(NetData &net, SearchParams params)
    : m_net(net)
    , m_params(std::move(params))
    , m_name(m_params.name)
    , m_type(m_params.type)
    , m_properties(m_params.prop)
    , m_value(m_params.searchString)
    , m_columns({Names::all().name, Names::all().type, Names::all().searchResult})
    , m_display(*net.metaData()) {
  m_current.matches = m_type.matches(m_current.text); // no type at all
}

/// What the search of consecutive candidates has found.
struct NetworkSearch::Part {
  std::vector<SearchRow> rows;
  std::vector<std::size_t> found;  ///< indices of the candidates with rows and without the mark
  std::vector<std::size_t> former; ///< indices of the candidates with the mark and without rows
  std::size_t end = 0;             ///< the index behind the last candidate that was searched
  QString error;
  bool isStopped = false;
};

NetworkSearch::Part NetworkSearch::searchPart(const std::vector<element *> &candidates, std::size_t first, std::size_t last,
                                              std::atomic<std::size_t> &stoppedAt) {
  Part part;
  std::size_t i = first;
  try {
    for (; i < last && first <= stoppedAt; ++i) {
      fetchAhead(candidates, i);
      const std::size_t before = part.rows.size();
      const bool isMarked = addRows(*candidates[i], part.rows);
      if (isMarked != (part.rows.size() > before))
        (isMarked ? part.former : part.found).push_back(i);
    }
  } catch (const FormulaError &error) {
    part.isStopped = true;
    part.error = error.text();
    for (std::size_t known = stoppedAt; first < known && !stoppedAt.compare_exchange_weak(known, first);)
      ;
  }
  part.end = i;
  return part;
}

/// Before other threads begin: to parse a formula makes keys of properties, which must be there while these are read.
QString NetworkSearch::parseFormula() {
  try {
    if (!m_params.formula.isEmpty())
      m_formula.emplace(m_params.formula, m_net);
  } catch (const FormulaError &error) {
    return error.text();
  }
  return QString();
}

NetworkSearch::Result NetworkSearch::run() {
  Result result;
  std::vector<element *> candidates;
  m_net.forEach(NetData::AllTypes, [&candidates](element &e) { candidates.push_back(&e); });
  result.error = parseFormula();
  result.isStopped = !result.error.isEmpty();
  if (result.isStopped) {
    for (element *candidate : candidates)
      candidate->erase(Names::all().searchResult); // marks of the search before
    return result;
  }
  std::map<std::size_t, Part> parts; // by the index of their first candidate
  std::mutex mutex;
  std::atomic<std::size_t> stoppedAt =
      candidates.size(); // the beginning of the first part that stopped; what follows is not searched
  constexpr std::size_t Chunk = 2000;
  const auto makeState = [this] { // patterns and formulas remember things, so each thread has its own
    return NetworkSearch(m_net, m_params);
  };
  Parallel::inChunks(candidates.size(), Chunk, makeState, [&](NetworkSearch &search, std::size_t first, std::size_t last) {
    Part part = search.searchPart(candidates, first, last, stoppedAt);
    const std::lock_guard lock(mutex);
    parts.emplace(first, std::move(part));
  });
  std::size_t searched = 0;
  for (auto &[first, part] : parts) {
    std::move(part.rows.begin(), part.rows.end(), std::back_inserter(result.rows));
    for (const std::size_t index : part.found)
      candidates[index]->set(Names::all().searchResult, PropertyText(std::string_view("1")));
    for (const std::size_t index : part.former)
      candidates[index]->erase(Names::all().searchResult);
    searched = part.end;
    if (part.isStopped) {
      result.isStopped = true;
      result.error = part.error;
      break;
    }
  }
  for (std::size_t i = searched; i < candidates.size(); ++i)
    candidates[i]->erase(Names::all().searchResult); // marks of the search before
  return result;
}

bool NetworkSearch::matchesName(const QString &name) const {
  return m_params.regex ? m_name.matches(name) : name.contains(m_params.name, Qt::CaseInsensitive);
}

const NetworkSearch::Type &NetworkSearch::type(std::string_view utf8) {
  if (m_current.utf8 != utf8) { // elements of one type follow one another
    m_current.utf8 = utf8;
    m_current.text = TextDecoding::decoded(utf8);
    m_current.matches = m_type.matches(m_current.text);
  }
  return m_current;
}

/// An element without what the formula reads does not satisfy it: drives have no pressure, and are not above one.
bool NetworkSearch::satisfiesFormula(const element &candidate) {
  if (!m_formula)
    m_formula.emplace(m_params.formula, m_net);
  try {
    return m_formula->accepts(candidate);
  } catch (const FormulaError &error) {
    if (error.isForMissingValue())
      return false;
    throw FormulaError(candidate.value(Names::all().name) + QStringLiteral(": ") + error.text(), error.kind());
  }
}

void NetworkSearch::search(element &candidate, std::vector<SearchRow> &rows) {
  const std::size_t before = rows.size();
  candidate.erase(Names::all().searchResult);
  addRows(candidate, rows);
  if (rows.size() > before)
    candidate.set(Names::all().searchResult, PropertyText(std::string_view("1")));
}

/// Returns whether the element is marked by a search before.
bool NetworkSearch::addRows(const element &candidate, std::vector<SearchRow> &rows) {
  m_columns.read(candidate);
  const PropertyText *typeText = m_columns[TypeColumn];
  const bool isMarked = m_columns[MarkColumn] != nullptr;
  const Type &ofType = type(typeText == nullptr ? std::string_view() : typeText->utf8());
  if (!ofType.matches)
    return isMarked;
  const QString name = m_columns[NameColumn] == nullptr ? QString() : m_columns[NameColumn]->toString();
  if (!matchesName(name))
    return isMarked;
  bool isAsked = m_params.formula.isEmpty(); // the formula asks for the element, not for the property: once is enough
  for (const Property &property : candidate) {
    if (!m_properties.contains(property.key))
      continue;
    const bool isLike = m_value.matches(property.value.utf8());
    if (!isLike && !m_value.compares())
      continue;
    DisplayValue::Shown shown = m_display.of(ofType.text, property.key, property.value);
    if (!isLike && !m_value.holdsFor(shown))
      continue;
    if (!isAsked && !satisfiesFormula(candidate))
      return isMarked;
    isAsked = true;
    rows.push_back({name, ofType.text, property.key.name(), std::move(shown.value), std::move(shown.unit)});
  }
  return isMarked;
}
