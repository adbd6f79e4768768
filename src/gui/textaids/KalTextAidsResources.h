#pragma once

#include <QIcon>

// kal_gui is a static library: its resources must be registered explicitly
// before the first icon is loaded. Safe to call any number of times.
void kalInitTextAidsResources();

// The small drop-down button icon of completer and date fields.
QIcon kalCompleterButtonIcon();
