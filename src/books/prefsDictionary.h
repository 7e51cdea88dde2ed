#pragma once

#include <QHash>
#include <QString>

// The user's preferences: one key, "AccountNumber" (a bank card or account number
// as typed), kept in "Quillmark Preferences" in the application data folder as one
// counted string: a length byte, then that many bytes of UTF-8.
namespace prefsDictionary {

QHash<QString, QString>& prefsDict();
void getPreferences();
// A value longer than 255 bytes is cut at the last whole character that fits.
void savePreferences();

} // namespace prefsDictionary
