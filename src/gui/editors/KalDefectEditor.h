#pragma once

#include <QDialog>
#include <QPointer>
#include <QVariant>
#include <QVector>

#include <memory>

class KalDateEdit;
class KalProject;
class KalSqlTableModel;
class QComboBox;
class QDataWidgetMapper;

namespace Ui {
class KalDefectEditor;
}

// Edits one row of the defect model in place. OK writes the fields and
// submits; Cancel reverts everything the dialog wrote into the defect row.
// Companies and statuses created from here are written at once and stay.
class KalDefectEditor : public QDialog
{
    Q_OBJECT

public:
    KalDefectEditor(KalProject *project, int row, QWidget *parent = nullptr);
    ~KalDefectEditor() override;

    // The fields compared on OK, in the order they are compared.
    static QStringList comparedFields();
    // Help text shown by the info button beside "Erfasst von".
    static QString userIdHelpText();

    // Id carried by a combo entry; these mark the special entries.
    enum SpecialEntry { NewEntry = -1000, ClearPlanEntry = -1001 };

private slots:
    void slotAccepted();
    void slotRejected();
    void slotImageEditorButtonClicked();
    void slotPlanDialogButtonClicked();
    void slotPlanEditorButtonClicked();
    void slotSelectedStatusChanged(int index);
    void slotSelectedCompanyChanged(int index);
    void slotSelectedPlanChanged(int index);
    void slotTypeEditingFinished();
    void slotRoomNameEditingFinished();
    void slotRoomBookNoEditingFinished();
    void slotPriorityEditingFinished();
    void slotUserIdInfoClicked();
    void slotUserIdTextEdited(const QString &text);

protected:
    void done(int result) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setUpUi();
    void fillCompanyCombo();
    void fillStatusCombo();
    void fillPlanCombo();
    void assignPlan(qint64 planInfoId, qint64 planId);
    // "Neu..." in the plan list: a plan file becomes a new sheet dated today
    // and locates this defect.
    void importNewPlan();
    void selectComboId(QComboBox *combo, const QVariant &id);
    void applyReductionRule(bool clearWhenNotAllowed);
    bool statusAllowsReduction(const QVariant &statusId) const;
    void readDates();
    void writeDates();
    void updatePhotoButton();
    void saveGeometrySetting();
    QVariant value(const QString &field) const;
    bool writeValue(const QString &field, const QVariant &value);
    qint64 createStatus(const QString &name);
    static bool sameValue(const QVariant &a, const QVariant &b);

    KalProject *m_project;
    QPointer<KalSqlTableModel> m_defects;
    QPointer<KalSqlTableModel> m_companies;
    QPointer<KalSqlTableModel> m_statuses;
    QPointer<KalSqlTableModel> m_plans;
    int m_row;
    qint64 m_defectId = -1;
    QVector<QPair<QString, QVariant>> m_openValues;
    QVariant m_companyBefore;
    QVariant m_statusBefore;
    QVariant m_planBefore;
    bool m_finished = false;

    QDataWidgetMapper *m_mapper = nullptr;
    std::unique_ptr<Ui::KalDefectEditor> m_ui;
};
