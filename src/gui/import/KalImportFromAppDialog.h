#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class KalImportFromAppDialog;
}

// "Import aus der Quellor App": explains how defects recorded with the
// mobile app get here and lets the user choose the app's export file.
// Accepted once a file was chosen; the import itself is the caller's.
class KalImportFromAppDialog : public QDialog
{
    Q_OBJECT

public:
    // `lastImportPath`: the file imported from the app before, where the
    // file dialog starts (may be empty).
    explicit KalImportFromAppDialog(const QString &lastImportPath, QWidget *parent = nullptr);
    ~KalImportFromAppDialog() override;

    // The chosen export file; empty unless accepted.
    QString chosenFile() const { return m_chosenFile; }

    static QString fileDialogTitle();
    static QString fileDialogFilter();

    void done(int result) override;

private slots:
    void slotImportClicked();
    void slotCancelClicked();

private:
    std::unique_ptr<Ui::KalImportFromAppDialog> m_ui;
    QString m_lastImportPath;
    QString m_chosenFile;
};
