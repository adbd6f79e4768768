#pragma once

#include "core/import/KalDataImportConflictResolver.h"

#include <QDialog>
#include <memory>

class KalProject;

namespace Ui {
class KalDataImportDefectAssignDialog;
}

// "Zuordnen eines Mangels": a site-journal defect the import could not match
// is shown beside the project defects it might belong to; the user imports
// it as a new defect or assigns it to the selected one, which the import
// then updates.
class KalDataImportDefectAssignDialog : public QDialog, public KalDataImportConflictResolver
{
    Q_OBJECT

public:
    explicit KalDataImportDefectAssignDialog(KalProject *project, QWidget *parent = nullptr);
    ~KalDataImportDefectAssignDialog() override;

    // Shows the dialog for one conflict and returns the chosen candidate's
    // id, or -1 for a new defect.
    qint64 assign(const JournalDefect &defect, const QList<qint64> &candidates) override;

    // Fills both panes without showing the dialog.
    void setConflict(const JournalDefect &defect, const QList<qint64> &candidates);
    // After exec(): the chosen defect, -1 for a new one.
    qint64 assignedDefectId() const { return m_assignedId; }

    // The texts of the two panes.
    static QString journalDefectText(const JournalDefect &defect);
    QString projectDefectDetails(qint64 defectId) const;

    void done(int result) override;

public slots:
    // Neither button chosen: the conflict stays open. The import waits for
    // one of the two answers; stopping it is the progress window's cancel.
    void reject() override;

private slots:
    void slotNewDefectClicked();
    void slotAssignDefectClicked();

private:
    qint64 selectedDefectId() const;

    std::unique_ptr<Ui::KalDataImportDefectAssignDialog> m_ui;
    KalProject *m_project;
    qint64 m_assignedId = -1;
};
