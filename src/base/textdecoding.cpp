#include <base/textdecoding.h>

#include <QCoreApplication>
#include <QTextCodec>

QString TextDecoding::decoded(std::string_view utf8) {
  QString text = QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
  if (utf8.substr(0, 3) == "\xEF\xBB\xBF")
    text.prepend(QChar(QChar::ByteOrderMark));
  return text;
}

std::optional<QString> TextDecoding::fromUtf8(const QByteArray &bytes) {
  QTextCodec::ConverterState state;
  QString text = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
  if (state.invalidChars > 0 || state.remainingChars > 0)
    return std::nullopt;
  return text;
}

QString TextDecoding::fromWindows1252(const QByteArray &bytes) {
  const QTextCodec *codec = QTextCodec::codecForName("windows-1252");
  return codec != nullptr ? codec->toUnicode(bytes) : QString::fromLatin1(bytes);
}

QString TextDecoding::decoded(const QByteArray &content, const QString &path, const Told &told) {
  if (std::optional<QString> text = fromUtf8(content))
    return *text;
  tell(told, Finding::Severity::Warning,
       QCoreApplication::translate("TextDecoding", "%1 is not UTF-8 and is read as Windows-1252 (Latin-1)").arg(path));
  return fromWindows1252(content);
}
