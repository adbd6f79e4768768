#pragma once

#include <QDialog>

#include <memory>

class KalProject;

namespace Ui {
class KalCompanyDialog;
}

// Creates one company quickly (trade, first and last name, company name).
// OK writes the row at once; companyId() is then its id.
class KalCompanyDialog : public QDialog
{
    Q_OBJECT

public:
    explicit KalCompanyDialog(KalProject *project, QWidget *parent = nullptr);
    ~KalCompanyDialog() override;

    qint64 companyId() const { return m_companyId; }

    // Appends a company with these texts (all other texts empty) to the
    // company model and submits it. Returns the new id, -1 on failure.
    static qint64 insertCompany(KalProject *project, const QString &type, const QString &firstName,
                                const QString &lastName, const QString &company);

public slots:
    void accept() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    KalProject *m_project;
    qint64 m_companyId = -1;
    bool m_noticeShown = false;
    std::unique_ptr<Ui::KalCompanyDialog> m_ui;
};
