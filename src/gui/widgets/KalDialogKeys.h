#pragma once

class QDialog;
class QKeyEvent;

// Keys of dialogs whose fields are typed into: Return or Enter that a field
// did not use moves on (a focused button is pressed), so that finishing a
// field never closes the dialog with OK.
namespace KalDialogKeys {

// For the dialog's keyPressEvent(); true when the key was Return or Enter.
bool handleReturn(QDialog *dialog, QKeyEvent *event);

} // namespace KalDialogKeys
