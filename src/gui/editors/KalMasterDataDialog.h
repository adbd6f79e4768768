#pragma once

#include <QDialog>
#include <QMap>
#include <QPointer>

class KalProject;
class KalSqlTableModel;
class KalTableView;
class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSortFilterProxyModel;
class QTabWidget;

// The project's own data (name, number, print header and footer) and its
// company list with the company output format. OK writes the changes of
// both pages, Cancel drops them. The output format is a per-user setting
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

    KalTableView *companyView() const { return tvCompanies; }

public slots:
    void actionSubmit();
    void actionRevert();
    void on_pbOk_clicked();
    void on_pbCancel_clicked();
    void on_leHeaderLeft_editingFinished();
    void slotAddCompany();
    void slotImportCompanyData();
    void slotTabChanged(int index);
    void slotUpdateCompanyOutputFormatFieldIdx1(int index);
    void slotUpdateCompanyOutputFormatFieldIdx2(int index);
    void slotUpdateCompanyOutputFormatFieldIdx3(int index);
    void slotUpdateCompanyOutputFormatField2InBrackets(int state);
    void slotUpdateCompanyOutputFormatField3InBrackets(int state);
    void on_pbCompaniesOutputFormatDefaults_clicked();
    void slotScrollAfterSorting(int logicalIndex, Qt::SortOrder order);

protected:
    void showEvent(QShowEvent *event) override;
    void done(int result) override;

private:
    QWidget *buildProjectPage();
    QWidget *buildCompanyPage();
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

    QTabWidget *twMasterData = nullptr;
    QLineEdit *leProjectName = nullptr;
    QLineEdit *leProjectNumber = nullptr;
    QLineEdit *leHeaderLeft = nullptr;
    QLineEdit *leHeaderCenter = nullptr;
    QLineEdit *leHeaderRight = nullptr;
    QLineEdit *leFooterLeft = nullptr;
    QLineEdit *leFooterCenter = nullptr;
    QLineEdit *leFooterRight = nullptr;
    KalTableView *tvCompanies = nullptr;
    QComboBox *cbxOutputField1 = nullptr;
    QComboBox *cbxOutputField2 = nullptr;
    QComboBox *cbxOutputField3 = nullptr;
    QCheckBox *cbField2InBrackets = nullptr;
    QCheckBox *cbField3InBrackets = nullptr;
    QLabel *lblExample = nullptr;
    QPushButton *pbCompaniesOutputFormatDefaults = nullptr;
    QPushButton *pbPrint = nullptr;
    QPushButton *pbImportCompanies = nullptr;
    QPushButton *pbOk = nullptr;
    QPushButton *pbCancel = nullptr;
};
