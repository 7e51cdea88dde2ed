#pragma once

#include <QString>

// Reads the version file the update server hands out and decides whether it
// offers a newer version than this build's.
namespace VersionCheck {

// The first two lines of the last version file read: the name to offer and the
// newest version.
inline QString theAppName;
inline QString theVersionString;

// The number a dotted version is compared by: the dots removed, two characters
// padded with "0" and one with "00", then read as a number (2.4.4 gives 244,
// 2.10 gives 210, 2.4.10 gives 2410).
double comparisonNumber(const QString& version);

// The offer of a newer version under the name the file gives.
QString offerText(const QString& appName);

// Where the version file is downloaded to: "Temporary Version File" in the
// system's temporary folder.
QString versionFilePath();

// What a version file asks for once it has been read.
struct Verdict {
    bool keepFile = false; // an empty first line leaves the file where it is
    QString offer;         // the offer to show, or empty for none
};

// Reads the file at path into theAppName and theVersionString and says what to
// do: offer when its version is greater than ours; keep the file only when its
// first line is empty. A file that can't be opened is removed and offers nothing.
Verdict readVersionFile(const QString& path, const QString& ourVersion);

} // namespace VersionCheck
