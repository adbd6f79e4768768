#pragma once

#include <QDate>
#include <QDialog>

#include <memory>

class KalProject;

namespace Ui {
class KalPlanInfoEditor;
}

// Name, index and date of one plan sheet; OK writes them at once.
class KalPlanInfoEditor : public QDialog
{
    Q_OBJECT

public:
    KalPlanInfoEditor(KalProject *project, qint64 planInfoId, QWidget *parent = nullptr);
    ~KalPlanInfoEditor() override;

private slots:
    void slotAccepted();

private:
    KalProject *m_project;
    qint64 m_planInfoId;
    std::unique_ptr<Ui::KalPlanInfoEditor> m_ui;
};
