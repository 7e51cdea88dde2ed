#pragma once

// Puts the real dialogs behind the blocking services: message boxes and
// confirmations as Qt message boxes, the system's file, page setup and printer
// dialogs, the beep of the desktop.
void installDesktopServices();
