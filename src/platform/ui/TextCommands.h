#pragma once

// The edit commands of the menu bar, carried out on the text field that has the
// keyboard focus; with no text field focused they do nothing.
enum class TextCommand { Undo, Cut, Copy, Paste, Clear, SelectAll };

void runOnFocusedText(TextCommand command);
