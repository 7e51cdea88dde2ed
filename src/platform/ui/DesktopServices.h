#pragma once

// Puts the real dialogs behind the blocking services: message boxes and
// confirmations as Qt message boxes, the beep of the desktop.
void installDesktopServices();
