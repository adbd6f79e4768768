#pragma once

#include "core/reports/KalLogos.h"

#include <QDialog>
#include <memory>

class KalProject;

namespace Ui {
class KalLogoDialog;
}

// "Logo bearbeiten": the two logos of the printed lists with their
// alignment, their printed height and whether they stand under the header
// texts. OK stores everything and marks the project modified; "Abbrechen"
// undoes what the dialog did.
class KalLogoDialog : public QDialog
{
    Q_OBJECT

public:
    explicit KalLogoDialog(KalProject *project, QWidget *parent = nullptr);
    ~KalLogoDialog() override;

private slots:
    void slotAcceptClicked();

protected:
    void done(int result) override;

private:
    KalProject *m_project;
    KalLogos m_logos;
    std::unique_ptr<Ui::KalLogoDialog> m_ui;
};
