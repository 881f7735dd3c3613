#pragma once

#include <paper/pagecontent.h>

class QImage;
class QPrinter;

/// Brings pages to files, the printer and the clipboard. Files are written whole or not at all.
namespace PageWriter {

/// Suffixes of the files that a page can become: those of documents, which hold lines and texts, then those of pixels.
QStringList formats();

/// The suffix gives the format. False with the reason.
bool write(const QString &path, const PageSetup &setup, PageContent &content, const PageText &text, QString *reason);

/// Takes the next page.
using AddPage = std::function<void(PageContent &content, const PageText &text)>;
/// Hands all pages to the other, one after the other; false with the reason when there is to be no document.
using Pages = std::function<bool(const AddPage &add, QString *reason)>;
/// A PDF of many pages.
bool writeBook(const QString &path, const PageSetup &setup, const Pages &pages, QString *reason);

/// A picture of the page; null when there is not enough memory for it.
QImage picture(const PageSetup &setup, PageContent &content, const PageText &text, double dpi);

/// Tells the printer the paper of the page.
void prepare(QPrinter &printer, const PageSetup &setup);
/// On the paper that the printer has now; false with the reason.
bool print(QPrinter &printer, PageSetup setup, PageContent &content, const PageText &text, QString *reason);

} // namespace PageWriter
