#pragma once

#include <QDialog>
#include <QMap>
#include <QPointer>

#include <memory>

class KalEditSession;
class KalProject;
class KalSqlTableModel;
class KalTableView;
class QLineEdit;
class QSortFilterProxyModel;

namespace Ui {
class KalMasterDataDialog;
}

// The project's own data (name, number, print header and footer) and its
// company list with the company output format. OK writes the changes of
// both pages, Cancel drops them, removed and imported companies included. The output format is a per-user setting
// and is stored as soon as it is changed.
class KalMasterDataDialog : public QDialog
{
    Q_OBJECT

public:
    enum Page { ProjectPage = 0, CompanyPage = 1, CompanyFormatPage = 2 };

    explicit KalMasterDataDialog(KalProject *project, QWidget *parent = nullptr);
    ~KalMasterDataDialog() override;

    void setCurrentPage(Page page);

    // "Bitte denken Sie daran, ..." is due: the project name is set and
    // occurs in none of the three header texts.
    static bool headerReminderDue(const QString &projectName, const QStringList &headerTexts);

    KalTableView *companyView() const;

private slots:
    void actionSubmit();
    void actionRevert();
    void slotOkClicked();
    void slotCancelClicked();
    void slotHeaderLeftEditingFinished();
    void slotAddCompany();
    void slotImportCompanyData();
    void slotTabChanged(int index);
    void slotUpdateCompanyOutputFormatFieldIdx1(int index);
    void slotUpdateCompanyOutputFormatFieldIdx2(int index);
    void slotUpdateCompanyOutputFormatFieldIdx3(int index);
    void slotUpdateCompanyOutputFormatField2InBrackets(int state);
    void slotUpdateCompanyOutputFormatField3InBrackets(int state);
    void slotCompaniesOutputFormatDefaultsClicked();
    void slotScrollAfterSorting(int logicalIndex, Qt::SortOrder order);

protected:
    void showEvent(QShowEvent *event) override;
    void done(int result) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void setUpProjectPage();
    void setUpCompanyPage();
    void loadProjectTexts();
    void showFormat();
    void storeFormat();
    void updateExample();
    void showPrivacyNoticeOnce();

    KalProject *m_project;
    QPointer<KalSqlTableModel> m_kal;
    QPointer<KalSqlTableModel> m_companies;
    QSortFilterProxyModel *m_companyProxy = nullptr;
    QMap<QString, QLineEdit *> m_textEdits; // kal column -> field
    QMap<QString, QString> m_openTexts;
    bool m_closing = false;
    bool m_noticeShown = false;
    bool m_reminderShown = false;
    bool m_updatingFormat = false;

    // Removals and imports write at once; Cancel takes them back with the rest.
    std::unique_ptr<KalEditSession> m_session;
    std::unique_ptr<Ui::KalMasterDataDialog> m_ui;
};
