#pragma once

#include <QStringList>

class KalProject;

// Everything one dialog with OK and Cancel writes, as one unit: begun when
// the dialog opens, kept by OK, undone by Cancel. Undoing also takes back
// rows that were removed and what their removal rules changed in other
// tables, and the project counts as changed only if it did before.
class KalEditSession
{
public:
    // `tables`: the tables whose models show what the dialog may change;
    // they are read anew after an undo.
    KalEditSession(KalProject *project, const QStringList &tables);
    // Undoes what is neither kept nor undone yet.
    ~KalEditSession();
    KalEditSession(const KalEditSession &) = delete;
    KalEditSession &operator=(const KalEditSession &) = delete;

    // False when no unit could be begun (then every write stands on its own).
    bool isActive() const { return m_active; }
    // Makes the dialog's writes part of the project; false when that failed
    // (then they are undone).
    bool keep();
    void undo();

private:
    void reread();

    KalProject *m_project;
    QStringList m_tables;
    bool m_active = false;
    bool m_wasModified = false;
};
