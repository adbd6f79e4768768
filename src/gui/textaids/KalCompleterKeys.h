#pragma once

#include <QString>

class KalCompleter;
class QKeyEvent;
class QRect;

// The key rules shared by the completer fields. A field calls
// popupKeyIgnored() before handling a key itself and
// afterKey() with the text to complete once it has handled it.
namespace KalCompleterKeys {

// True for Escape, Tab, Backtab, Return and Enter while the popup is open:
// the field must ignore the key and leave it to the popup.
bool popupKeyIgnored(KalCompleter *completer, QKeyEvent *event);
// Ctrl+E forces the popup; the field does not see that key.
bool isShortcut(QKeyEvent *event);
// Shows, updates or hides the popup for `prefix` after the key was handled.
void afterKey(KalCompleter *completer, QKeyEvent *event, const QString &prefix, const QRect &popupRect);
// The end-of-word characters that close the popup.
QString endOfWordCharacters();

} // namespace KalCompleterKeys
