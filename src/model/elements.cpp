#include "elementexceptions.h"

#include <base/utf8view.h>
#include <model/elements.h>

#include <algorithm>
#include <atomic>
#include <boost/multi_index/hashed_index.hpp>
#include <boost/multi_index/identity.hpp>
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

/// The next character of a text in UTF-8; what is none counts as the replacement character.
uint nextCharacter(const char *&at, const char *end) noexcept {
  const auto first = static_cast<unsigned char>(*at++);
  if (first < 0x80)
    return first;
  const int further = first >= 0xf0 ? 3 : first >= 0xe0 ? 2 : 1;
  uint character = first & (0x3fU >> static_cast<unsigned>(further));
  for (int i = 0; i < further; ++i) {
    if (at == end || (static_cast<unsigned char>(*at) & 0xc0U) != 0x80)
      return QChar::ReplacementCharacter;
    character = character << 6U | (static_cast<unsigned char>(*at++) & 0x3fU);
  }
  return character;
}

void put(std::string &text, uint character) {
  const auto byte = [&text](uint bits) {
    text += static_cast<char>(bits);
  };
  if (character < 0x80) {
    byte(character);
  } else if (character < 0x800) {
    byte(0xc0U | character >> 6U);
    byte(0x80U | (character & 0x3fU));
  } else if (character < 0x10000) {
    byte(0xe0U | character >> 12U);
    byte(0x80U | (character >> 6U & 0x3fU));
    byte(0x80U | (character & 0x3fU));
  } else {
    put(text, QChar::highSurrogate(character));
    put(text, QChar::lowSurrogate(character));
  }
}

/// Folds what stands from a position on, character by character, and puts it behind what is folded already.
void foldFrom(std::string_view utf8, std::size_t position, std::string &result) {
  result.resize(position);
  const char *const end = utf8.data() + utf8.size();
  for (const char *at = utf8.data() + position; at < end;) {
    const char *const other = std::find_if(at, end, [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
    result.append(at, other);
    at = other;
    if (at < end)
      put(result, QChar::toCaseFolded(nextCharacter(at, end)));
  }
}

/// Two texts that QString::compare calls equal regardless of case fold to the same bytes but for the case of ASCII letters,
/// and bytes compare as it does: each UTF-16 unit is written by itself. (Character by character: the full folding of a text
/// would also equate sharp s with ss, which the comparison does not.)
void fold(std::string_view utf8, std::string &result) {
  // Western letters (U+00C0 to U+00FF, of which most names outside of ASCII are made) keep their place: their capitals lie
  // 0x20 before the small ones, save for the multiplication sign and the sharp s, which fold to themselves.
  constexpr char WesternLead = '\xc3';
  const auto foldedWestern = [](char second) {
    const auto byte = static_cast<unsigned char>(second);
    return byte <= 0x9e && byte != 0x97 ? static_cast<char>(byte + 0x20U) : second;
  };
  result.assign(utf8);
  for (std::size_t i = 0; i < result.size(); ++i) {
    if (static_cast<unsigned char>(result[i]) < 0x80)
      continue;
    const bool isWestern =
        result[i] == WesternLead && i + 1 < result.size() && (static_cast<unsigned char>(result[i + 1]) & 0xc0U) == 0x80;
    if (!isWestern) {
      foldFrom(utf8, i, result);
      return;
    }
    ++i;
    result[i] = foldedWestern(result[i]);
  }
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

/// A name that is looked for, folded once.
class Wanted {
public:
  explicit Wanted(std::string_view utf8)
      : m_text(utf8) {
    if (!isAscii(utf8)) {
      thread_local std::string room; // a lookup must not ask for memory
      fold(utf8, room);
      m_text = room;
    }
    m_hash = hashOf(m_text);
  }
  std::string_view text() const noexcept { return m_text; } ///< folded, but for the case of ASCII letters
  std::size_t hash() const noexcept { return m_hash; }

private:
  std::string_view m_text;
  std::size_t m_hash = 0;
};

/// An entry with its name folded: names in plain ASCII, of which most networks are made, are folded as they are compared.
struct Stored : elements::Entry {
  PropertyText folded; ///< empty for a name in ASCII

  Stored(const PropertyText &name, element contents)
      : Entry{name, std::move(contents)} {
    if (isAscii(name.utf8()))
      return;
    std::string text;
    fold(name.utf8(), text);
    folded = PropertyText(std::string_view(text));
  }
  std::string_view text() const noexcept { return folded.isEmpty() ? id.utf8() : folded.utf8(); }
};

std::string_view textOf(const elements::Entry *entry) noexcept {
  return static_cast<const Stored *>(entry)->text();
}

struct NameHash {
  std::size_t operator()(const Stored &stored) const noexcept { return hashOf(stored.text()); }
  std::size_t operator()(const Wanted &wanted) const noexcept { return wanted.hash(); }
};

struct NameEqual {
  static bool same(std::string_view a, std::string_view b) noexcept {
    return a == b || (a.size() == b.size() &&
                      std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return lower(x) == lower(y); }));
  }
  bool operator()(const Stored &a, const Stored &b) const noexcept { return same(a.text(), b.text()); }
  bool operator()(const Wanted &a, const Stored &b) const noexcept { return same(a.text(), b.text()); }
  bool operator()(const Stored &a, const Wanted &b) const noexcept { return same(a.text(), b.text()); }
};

/// The beginning of a name as two integers that compare like the name: sorting a million names mostly stays in them.
struct SortKey {
  std::uint64_t high = 0;
  std::uint64_t low = 0;
  const elements::Entry *entry = nullptr;

  explicit SortKey(const elements::Entry *e)
      : entry(e) {
    const std::string_view text = textOf(e);
    for (std::size_t i = 0; i < 8; ++i) {
      high = high << 8 | (i < text.size() ? static_cast<unsigned char>(lower(text[i])) : 0U);
      low = low << 8 | (i + 8 < text.size() ? static_cast<unsigned char>(lower(text[i + 8])) : 0U);
    }
  }

  friend bool operator<(const SortKey &a, const SortKey &b) {
    if (a.high != b.high || a.low != b.low)
      return a.high != b.high ? a.high < b.high : a.low < b.low;
    const std::string_view x = textOf(a.entry);
    const std::string_view y = textOf(b.entry);
    return std::lexicographical_compare(x.begin(), x.end(), y.begin(), y.end(), [](char c, char d) {
      return static_cast<unsigned char>(lower(c)) < static_cast<unsigned char>(lower(d));
    });
  }
};

namespace mi = boost::multi_index;
using ByName =
    mi::multi_index_container<Stored, mi::indexed_by<mi::hashed_unique<mi::identity<Stored>, NameHash, NameEqual>>,
                              std::pmr::polymorphic_allocator<Stored>>;

} // namespace

/// The entries, found by hash, and the order of their names, made when somebody walks.
///
/// 1. The hash holds each entry once, and no address in it changes until its entry is erased.
/// 2. "sorted" is true only while the order holds every entry once, in name order, and each entry has its index in it as
///    its place. Whoever adds or erases entries by name sets it to false, or keeps all of this true.
/// 3. While it is false, the order holds no address of an erased entry but may lack entries (after an erasure or a copy);
///    its size tells, and then it is made anew.
/// 4. Walking sorts first: one reader under the mutex, which the others wait for. They see the flag by acquire and release,
///    so that a flag that is true shows them the finished order. Nobody changes the collection meanwhile.
struct elements::Storage {
  // A name that is looked at in vain lies anywhere in the memory: there are twice as many slots as names.
  static constexpr float FullestHash = 0.5F;

  Storage() { entries.max_load_factor(FullestHash); }

  // Entries lie close together, apart from their properties: a lookup among a million then misses the caches less often.
  std::pmr::unsynchronized_pool_resource pool;
  ByName entries{ByName::ctor_args_list(), &pool};
  // In the order in which they came until somebody walks the collection, then in name order until it changes.
  std::vector<const Entry *> order;
  std::atomic<bool> sorted{false};
  std::mutex mutex;

  void number() const {
    Index index = 0;
    for (const Entry *entry : order)
      entry->index = index++;
  }
};

elements::elements(QString name)
    : m_name(std::move(name))
    , m_storage(std::make_unique<Storage>()) {}

elements::elements(const elements &other)
    : elements(other.m_name) {
  for (const Stored &entry : other.m_storage->entries)
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
  const auto found = m_storage->entries.find(Wanted(utf8), NameHash(), NameEqual());
  return found == m_storage->entries.end() ? nullptr : &*found;
}

element *elements::find(std::string_view utf8) const {
  const Entry *entry = findEntry(utf8);
  return entry == nullptr ? nullptr : &entry->value;
}

element *elements::find(const QString &id) const {
  const QByteArray utf8 = id.toUtf8();
  return find(viewOf(utf8));
}

element &elements::at(const QString &id) const {
  element *found = find(id);
  if (found == nullptr)
    throw elements_out_of_range(m_name, id);
  return *found;
}

element *elements::tryInsert(const PropertyText &id, element &&value) {
  const auto [position, inserted] = m_storage->entries.emplace(id, element());
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
    throw elements_insert_exception(
        m_name, id.toString(), value.lines(), // NOLINT(bugprone-use-after-move,clang-analyzer-cplusplus.Move): untouched
        find(id)->lines());
  return *inserted;
}

bool elements::erase(const QString &id) {
  const QByteArray utf8 = id.toUtf8();
  const Wanted wanted(viewOf(utf8));
  const auto found = m_storage->entries.find(wanted, NameHash(), NameEqual());
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
    m_storage->entries.erase(m_storage->entries.iterator_to(static_cast<const Stored &>(*entry)));
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
