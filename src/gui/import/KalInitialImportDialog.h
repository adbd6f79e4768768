#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class KalInitialImportDialog;
}

// Asked before the first import from a site journal: names the file and
// lets the user choose whether later openings of the project import by
// themselves, and whether that also updates records imported before.
class KalInitialImportDialog : public QDialog
{
    Q_OBJECT

public:
    // `automaticImportMode` presets the boxes (0 off, 1 new records, 2 new
    // records and updates).
    KalInitialImportDialog(const QString &siteJournalPath, int automaticImportMode, QWidget *parent = nullptr);
    ~KalInitialImportDialog() override;

    // The choice as kept with the project: 0 off, 1 new records only,
    // 2 new records and updates of imported ones.
    int automaticImportMode() const;

    void done(int result) override;

private slots:
    void slotAutomaticImportStateChanged(int state);

private:
    std::unique_ptr<Ui::KalInitialImportDialog> m_ui;
};
