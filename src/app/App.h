#pragma once

class QMenuBar;

// The application: its start, and the commands that belong to it rather than to
// a window, so they work with no window open.
class App {
public:
    // The start, called once by the event loop: preferences, folders, old file
    // names brought up to date, then the start screen.
    static void Event_Open();

    static void _FileAboutQuillmark_Action();
    static void _HelpUsersGuide_Action();
    static void _HelpSupport_Action();
    static void _filePreferences_Action();

    // Binds the commands above to the items of that name in a menu bar.
    static void AddMenuHandlers(const QMenuBar& menuBar);
};
