#include <base/index.h>
#include <tools/categorylist.h>

template <typename Action>
void CategoryList::perform(Change change, std::size_t index, Action action) {
  emit changing(change, toQt(index));
  action();
  m_isChanged = change != Change::Read;
  emit changed(change, toQt(index));
}

void CategoryList::setFile(const QString &path) {
  m_path = path;
  read();
}

void CategoryList::read() {
  std::vector<Category> read = m_path.isEmpty() ? std::vector<Category>() : CategoryFile::read(m_path, m_told);
  perform(Change::Read, 0, [&] { m_categories = std::move(read); });
}

bool CategoryList::save(QString *error) {
  if (!CategoryFile::write(m_path, m_categories, error))
    return false;
  m_isChanged = false;
  return true;
}

void CategoryList::append(const Category &category) {
  perform(Change::Added, m_categories.size(), [&] { m_categories.push_back(category); });
}

void CategoryList::set(std::size_t index, const Category &category) {
  if (!(m_categories[index] == category))
    perform(Change::Edited, index, [&] { m_categories[index] = category; });
}

void CategoryList::remove(std::size_t index) {
  perform(Change::Removed, index, [&] { m_categories.erase(m_categories.begin() + static_cast<std::ptrdiff_t>(index)); });
}
