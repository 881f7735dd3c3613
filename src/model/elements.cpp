#include <model/elementexceptions.h>
#include <model/elements.h>

#include <QVector>

#include <algorithm>
#include <atomic>
#include <boost/multi_index/hashed_index.hpp>
#include <boost/multi_index/member.hpp>
#include <boost/multi_index_container.hpp>
#include <cstring>
#include <memory_resource>
#include <mutex>

namespace {

bool isAscii(std::string_view text) noexcept {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

char lower(char c) noexcept {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

QString decoded(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

/// Two texts that QString::compare calls equal regardless of case fold to the same text. (Character by character: the full
/// folding of a text would also equate sharp s with ss, which the comparison does not.)
std::string folded(std::string_view utf8) {
  std::string result;
  if (isAscii(utf8)) {
    result.resize(utf8.size());
    std::transform(utf8.begin(), utf8.end(), result.begin(), lower);
    return result;
  }
  QString text;
  for (const uint character : decoded(utf8).toUcs4()) {
    const uint fold = QChar::toCaseFolded(character);
    text += QString::fromUcs4(&fold, 1);
  }
  return text.toStdString();
}

/// Eight bytes with their ASCII letters in lower case.
std::uint64_t loweredWord(std::uint64_t word) noexcept {
  constexpr std::uint64_t Ones = 0x0101010101010101U;
  const std::uint64_t heptets = word & (0x7f * Ones);
  const std::uint64_t fromA = heptets + (0x80 - 'A') * Ones;
  const std::uint64_t beyondZ = heptets + (0x7f - 'Z') * Ones;
  const std::uint64_t upper = ~word & (fromA ^ beyondZ) & (0x80 * Ones);
  return word | (upper >> 2U);
}

/// The same for texts that differ in the case of ASCII letters only. Names are short: eight bytes a step.
std::size_t hashOf(std::string_view text) noexcept {
  constexpr std::uint64_t Golden = 0x9e3779b97f4a7c15U;
  constexpr unsigned Half = 32;
  std::uint64_t hash = text.size() * Golden;
  for (std::size_t i = 0; i < text.size(); i += sizeof(std::uint64_t)) {
    std::uint64_t word = 0;
    std::memcpy(&word, text.data() + i, std::min(sizeof word, text.size() - i));
    hash = (hash ^ loweredWord(word)) * Golden;
    hash ^= hash >> Half;
  }
  return hash;
}

struct IdHash {
  std::size_t operator()(std::string_view utf8) const { return hashOf(isAscii(utf8) ? utf8 : folded(utf8)); }
  std::size_t operator()(const PropertyText &id) const { return operator()(id.utf8()); }
};

struct IdEqual {
  static bool same(std::string_view a, std::string_view b) {
    if (a == b)
      return true;
    if (isAscii(a) && isAscii(b))
      return a.size() == b.size() &&
             std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return lower(x) == lower(y); });
    return QString::compare(decoded(a), decoded(b), Qt::CaseInsensitive) == 0;
  }
  bool operator()(const PropertyText &a, const PropertyText &b) const { return same(a.utf8(), b.utf8()); }
  bool operator()(std::string_view a, const PropertyText &b) const { return same(a, b.utf8()); }
  bool operator()(const PropertyText &a, std::string_view b) const { return same(a.utf8(), b); }
};

bool idLess(std::string_view a, std::string_view b) {
  if (isAscii(a) && isAscii(b))
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                        [](char x, char y) { return lower(x) < lower(y); });
  return QString::compare(decoded(a), decoded(b), Qt::CaseInsensitive) < 0;
}

/// The beginning of an ASCII name as two integers that compare like the name: sorting a million names mostly stays in
/// them. Names with other characters get no prefix and are compared in full.
struct SortKey {
  std::uint64_t high = 0;
  std::uint64_t low = 0;
  bool ascii = false;
  const elements::Entry *entry = nullptr;

  explicit SortKey(const elements::Entry *e)
      : ascii(isAscii(e->id.utf8()))
      , entry(e) {
    const std::string_view text = e->id.utf8();
    for (std::size_t i = 0; i < 8; ++i) {
      high = high << 8 | (i < text.size() ? static_cast<unsigned char>(lower(text[i])) : 0U);
      low = low << 8 | (i + 8 < text.size() ? static_cast<unsigned char>(lower(text[i + 8])) : 0U);
    }
  }

  friend bool operator<(const SortKey &a, const SortKey &b) {
    if (a.ascii && b.ascii && (a.high != b.high || a.low != b.low))
      return a.high != b.high ? a.high < b.high : a.low < b.low;
    return idLess(a.entry->id.utf8(), b.entry->id.utf8());
  }
};

namespace mi = boost::multi_index;
using ById = mi::multi_index_container<
    elements::Entry,
    mi::indexed_by<mi::hashed_unique<mi::member<elements::Entry, PropertyText, &elements::Entry::id>, IdHash, IdEqual>>,
    std::pmr::polymorphic_allocator<elements::Entry>>;

} // namespace

struct elements::Storage {
  // A name that is looked at in vain lies anywhere in the memory: there are twice as many places as names.
  static constexpr float FullestHash = 0.5F;

  Storage() { entries.max_load_factor(FullestHash); }

  // Entries lie close together, apart from their properties: a lookup among a million then misses the caches less often.
  std::pmr::unsynchronized_pool_resource pool;
  ById entries{ById::ctor_args_list(), &pool};
  // In the order in which they came until somebody walks the collection, then in name order until it changes. Not all of
  // them after an erasure or a copy: then it is made anew. The mutex is for concurrent readers.
  std::vector<const Entry *> order;
  std::atomic<bool> sorted{false};
  std::mutex mutex;

  void number() const {
    int place = 0;
    for (const Entry *entry : order)
      entry->place = place++;
  }
};

elements::elements(QString name)
    : m_name(std::move(name))
    , m_storage(std::make_unique<Storage>()) {}

elements::elements(const elements &other)
    : elements(other.m_name) {
  for (const Entry &entry : other.m_storage->entries)
    m_storage->entries.insert(entry);
}

elements::elements(elements &&other) noexcept = default;

elements &elements::operator=(const elements &other) {
  if (this != &other)
    *this = elements(other);
  return *this;
}

elements &elements::operator=(elements &&other) noexcept = default;

elements::~elements() = default;

void elements::reserve(std::size_t count) {
  m_storage->entries.reserve(count);
  m_storage->order.reserve(count);
}

std::size_t elements::size() const noexcept {
  return m_storage->entries.size();
}

const elements::Entry *elements::findEntry(std::string_view utf8) const {
  const auto found = m_storage->entries.find(utf8, IdHash(), IdEqual());
  return found == m_storage->entries.end() ? nullptr : &*found;
}

element *elements::find(std::string_view utf8) const {
  const Entry *entry = findEntry(utf8);
  return entry == nullptr ? nullptr : &entry->value;
}

element *elements::find(const QString &id) const {
  const QByteArray utf8 = id.toUtf8();
  return find(std::string_view(utf8.constData(), static_cast<std::size_t>(utf8.size())));
}

element &elements::at(const QString &id) const {
  element *found = find(id);
  if (found == nullptr)
    throw elements_out_of_range(m_name, id);
  return *found;
}

element *elements::tryInsert(const PropertyText &id, element &&value) {
  const auto [position, inserted] = m_storage->entries.insert(Entry{id, element()});
  if (!inserted)
    return nullptr;
  position->value = std::move(value);
  m_storage->order.push_back(&*position);
  m_storage->sorted = false;
  return &position->value;
}

element &elements::insert(const PropertyText &id, element value) {
  element *inserted = tryInsert(id, std::move(value));
  if (inserted == nullptr)
    throw elements_insert_exception(m_name, id.toString(), value, *find(id)); // NOLINT(bugprone-use-after-move): untouched
  return *inserted;
}

bool elements::erase(const QString &id) {
  const QByteArray utf8 = id.toUtf8();
  const auto found = m_storage->entries.find(std::string_view(utf8.constData(), static_cast<std::size_t>(utf8.size())),
                                             IdHash(), IdEqual());
  if (found == m_storage->entries.end())
    return false;
  m_storage->sorted = false;
  m_storage->order.clear();
  m_storage->entries.erase(found);
  return true;
}

std::vector<const elements::Entry *> elements::beginningWith(const QString &text, std::size_t most) const {
  sort();
  const std::vector<const Entry *> &order = m_storage->order;
  auto at = std::lower_bound(order.begin(), order.end(), text, [](const Entry *entry, const QString &name) {
    return QString::compare(entry->name(), name, Qt::CaseInsensitive) < 0;
  });
  std::vector<const Entry *> found;
  for (; at != order.end() && found.size() < most && (*at)->name().startsWith(text, Qt::CaseInsensitive); ++at)
    found.push_back(*at);
  return found;
}

std::size_t elements::eraseIf(const std::function<bool(const Entry &)> &predicate) {
  sort();
  std::vector<const Entry *> kept;
  kept.reserve(m_storage->order.size());
  std::vector<const Entry *> erased;
  for (const Entry &entry : *this)
    (predicate(entry) ? erased : kept).push_back(&entry);
  if (erased.empty())
    return 0;
  m_storage->order = std::move(kept);
  m_storage->number();
  for (const Entry *entry : erased)
    m_storage->entries.erase(m_storage->entries.iterator_to(*entry));
  return erased.size();
}

void elements::clear() {
  m_storage->order = {};
  m_storage->sorted = false;
  m_storage->entries.clear();
}

elements::const_iterator elements::begin() const {
  sort();
  return {m_storage->order.data(), m_storage->order.data() + m_storage->order.size()};
}

elements::const_iterator elements::end() const {
  sort();
  const Entry *const *end = m_storage->order.data() + m_storage->order.size();
  return {end, end};
}

void elements::sort() const {
  Storage &storage = *m_storage;
  if (storage.sorted.load(std::memory_order_acquire))
    return;
  const std::lock_guard lock(storage.mutex);
  if (storage.sorted.load(std::memory_order_relaxed))
    return;
  if (storage.order.size() != storage.entries.size()) {
    storage.order.clear();
    for (const Entry &entry : storage.entries)
      storage.order.push_back(&entry);
  }
  std::vector<SortKey> keys;
  keys.reserve(storage.order.size());
  for (const Entry *entry : storage.order)
    keys.emplace_back(entry);
  if (!std::is_sorted(keys.begin(), keys.end()))
    std::sort(keys.begin(), keys.end());
  std::transform(keys.begin(), keys.end(), storage.order.begin(), [](const SortKey &key) { return key.entry; });
  storage.number();
  storage.sorted.store(true, std::memory_order_release);
}
