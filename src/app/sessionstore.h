#pragma once

#include "session.h"

/// The sessions, a file for each case, in the data folder of the user. Several windows may write the same one: the last
/// counts, as a whole.
namespace SessionStore {

constexpr int Most = 100; ///< files; of more those that were written longest ago go

QString folder();
QString fileOf(const QString &caseDirectory);
/// Nothing when there is none; one that cannot be used is logged.
std::optional<Session> read(const QString &caseDirectory);
/// \param text of Session::toJson()
void write(const QString &caseDirectory, const QByteArray &text);
/// As the sessions name a case.
QString caseName(const QString &caseDirectory);

} // namespace SessionStore
