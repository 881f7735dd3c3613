#include <base/nivramsg.h>
#include <subassembly/subassemblycache.h>

#include <algorithm>

namespace {

void note(const QString &name, int hits, int number, const QString &path) {
  NivraMsg::debug(QStringLiteral("%1 [%2 hits]: adding new entry [%3] %4").arg(name).arg(hits).arg(number).arg(path));
}

} // namespace

template <>
void TemplateCache<TemplateGeometry>::noteEntry(const QString &name, int hits, int number, const QString &path) {
  note(name, hits, number, path);
}

template <>
void TemplateCache<FormulaFile::Contents>::noteEntry(const QString &name, int hits, int number, const QString &path) {
  note(name, hits, number, path);
}

SubAssemblyCache &SubAssemblyCache::instance() {
  static SubAssemblyCache cache;
  return cache;
}

std::shared_ptr<SubAssemblyTemplates> SubAssemblyCache::folder(const QString &path) {
  if (path.isEmpty())
    return nullptr;
  NivraMsg::debug(QStringLiteral("SubAssemblyCache: %1/%2 cached dirs").arg(size()).arg(int(MostFolders)));
  const auto known =
      std::find_if(m_folders.begin(), m_folders.end(), [&path](const Folder &folder) { return folder.path == path; });
  if (known != m_folders.end()) {
    NivraMsg::debug(QStringLiteral("SubAssemblyCache: using existing cache for dir ") + path);
    m_folders.splice(m_folders.begin(), m_folders, known);
    const std::shared_ptr<SubAssemblyTemplates> &templates = m_folders.front().templates;
    templates->geometry.forgetChanged();
    templates->constraints.forgetChanged();
    templates->formulas.forgetChanged();
    return templates;
  }
  if (size() >= MostFolders) {
    NivraMsg::debug(QStringLiteral("SubAssemblyCache: removing cache for dir ") + m_folders.back().path);
    m_folders.pop_back();
  }
  NivraMsg::debug(QStringLiteral("SubAssemblyCache: creating new cache for dir ") + path);
  m_folders.push_front({path, std::make_shared<SubAssemblyTemplates>()});
  return m_folders.front().templates;
}
