#pragma once

#include <QRect>
#include <QString>

#include <vector>

// Where windows stood. The windows that remember their place look up their title
// here when they open and store their place when they close; the list lives for
// one run only. It is written to "Quillmark_WindowData" but never read back, so
// every start puts the windows at their default places.
struct windowSpecsClass {
    QString theName; // the window's title
    int theLeft = 0;
    int theTop = 0;
    int theWidth = 0;
    int theHeight = 0;
};

namespace smartWindowsGlobals {

std::vector<windowSpecsClass>& windowSpecs();

// The place of the window with this title, if one was remembered; otherwise the
// window's present place is remembered under its title and returned.
QRect getMySpecs(const QString& title, const QRect& present);
// Remembers the place of a window whose title is known and writes the list.
void saveMySpecs(const QString& title, const QRect& present);
// Writes "Quillmark_WindowData" in the application data folder: one line a
// window, "title;left;top;width;height".
void saveWindowSpecs();

} // namespace smartWindowsGlobals

// Writes the main window's place to "WindowData" in the folder given: its top,
// left, width and height, a line each.
void writeWindowData(const QString& folder, const QRect& geometry);
