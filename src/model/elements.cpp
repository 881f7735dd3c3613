#include <model/elementexceptions.h>
#include <model/elements.h>

#include <QVector>

#include <algorithm>
#include <array>
#include <atomic>
#include <boost/multi_index/hashed_index.hpp>
#include <boost/multi_index/member.hpp>
#include <boost/multi_index_container.hpp>
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

struct IdHash {
  std::size_t operator()(std::string_view utf8) const {
    constexpr std::size_t OnStack = 64;
    if (utf8.size() > OnStack || !isAscii(utf8))
      return std::hash<std::string_view>()(folded(utf8));
    std::array<char, OnStack> buffer;
    std::transform(utf8.begin(), utf8.end(), buffer.begin(), lower);
    return std::hash<std::string_view>()({buffer.data(), utf8.size()});
  }
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
    mi::indexed_by<mi::hashed_unique<mi::member<elements::Entry, PropertyText, &elements::Entry::id>, IdHash, IdEqual>>>;

} // namespace

struct elements::Storage {
  ById entries;
  // Name order, made when somebody walks the collection and kept until it changes. The mutex is for concurrent readers.
  std::vector<const Entry *> order;
  std::atomic<bool> sorted{false};
  std::mutex mutex;
};

elements::elements(QString name)
    : m_name(std::move(name))
    , m_storage(std::make_unique<Storage>()) {}

elements::elements(const elements &other)
    : elements(other.m_name) {
  m_storage->entries = other.m_storage->entries;
}

elements::elements(elements &&other) noexcept = default;

elements &elements::operator=(const elements &other) {
  if (this != &other)
    *this = elements(other);
  return *this;
}

elements &elements::operator=(elements &&other) noexcept = default;

elements::~elements() = default;

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

std::size_t elements::eraseIf(const std::function<bool(const Entry &)> &predicate) {
  sort();
  std::vector<const Entry *> kept;
  kept.reserve(m_storage->order.size());
  std::vector<const Entry *> erased;
  for (const Entry *entry : m_storage->order)
    (predicate(*entry) ? erased : kept).push_back(entry);
  m_storage->order = std::move(kept);
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
  return const_iterator(m_storage->order.data());
}

elements::const_iterator elements::end() const {
  sort();
  return const_iterator(m_storage->order.data() + m_storage->order.size());
}

void elements::sort() const {
  Storage &storage = *m_storage;
  if (storage.sorted.load(std::memory_order_acquire))
    return;
  const std::lock_guard lock(storage.mutex);
  if (storage.sorted.load(std::memory_order_relaxed))
    return;
  std::vector<SortKey> keys;
  keys.reserve(storage.entries.size());
  for (const Entry &entry : storage.entries)
    keys.emplace_back(&entry);
  std::sort(keys.begin(), keys.end());
  storage.order.clear();
  storage.order.reserve(keys.size());
  for (const SortKey &key : keys)
    storage.order.push_back(key.entry);
  storage.sorted.store(true, std::memory_order_release);
}
