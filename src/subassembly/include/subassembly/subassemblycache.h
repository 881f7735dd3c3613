#pragma once

#include <base/filestamp.h>
#include <base/finding.h>
#include <formulas/formulafile.h>
#include <model/netdata.h>

#include <QHash>
#include <QString>

#include <list>
#include <memory>

/// What was read of one template file, kept by the path of the file.
template <typename Content>
class TemplateCache {
public:
  explicit TemplateCache(QString name)
      : m_name(std::move(name)) {}

  /// \param read makes the content of a path that is not known yet
  template <typename Read>
  const Content &get(const QString &path, const Read &read, const Told &told) {
    const auto known = m_entries.find(path);
    if (known != m_entries.end()) {
      ++m_hits;
      return *known->content;
    }
    tell(told, Finding::Severity::Debug,
         QStringLiteral("%1 [%2 hits]: adding new entry [%3] %4").arg(m_name).arg(m_hits).arg(size() + 1).arg(path));
    const FileStamp stamp = FileStamp::of(path);
    return *m_entries.insert(path, {std::make_shared<const Content>(read(path)), stamp})->content;
  }
  /// Files that were edited since are read anew when they are asked for again.
  void forgetChanged() {
    for (auto entry = m_entries.begin(); entry != m_entries.end();) {
      entry = FileStamp::of(entry.key()) == entry->stamp ? std::next(entry) : m_entries.erase(entry);
    }
  }
  int hits() const { return m_hits; }
  int size() const { return m_entries.size(); }

private:
  struct Entry {
    std::shared_ptr<const Content> content;
    FileStamp stamp;
  };

  QString m_name;
  QHash<QString, Entry> m_entries;
  int m_hits = 0;
};

class TemplatePlan;

/// The template network of one variant.
struct TemplateGeometry {
  std::shared_ptr<const NetData> net;
  std::shared_ptr<const TemplatePlan> plan; ///< of the net; null when the file cannot be used
  QString error;
  Findings findings;
};

/// The templates of one folder. They remember what was read.
struct SubAssemblyTemplates {
  TemplateCache<TemplateGeometry> geometry{QStringLiteral("TemplateGeomCache")};
  TemplateCache<FormulaFile::Contents> constraints{QStringLiteral("TemplateConstrCache")};
  TemplateCache<FormulaFile::Contents> formulas{QStringLiteral("TemplateFormulaCache")};
};

/// The templates of the folders that were used last, kept between openings.
class SubAssemblyCache {
public:
  static constexpr int MostFolders = 3;

  /// That of the program.
  static SubAssemblyCache &instance();

  /// Null for an empty path. What was edited meanwhile is forgotten. Of more folders than MostFolders the one that was not
  /// used longest is dropped.
  std::shared_ptr<SubAssemblyTemplates> folder(const QString &path, const Told &told = {});
  int size() const { return static_cast<int>(m_folders.size()); }

private:
  struct Folder {
    QString path;
    std::shared_ptr<SubAssemblyTemplates> templates;
  };

  std::list<Folder> m_folders; ///< the one used last in front
};
