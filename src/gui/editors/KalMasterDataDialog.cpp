#include "KalMasterDataDialog.h"
#include "ui_KalMasterDataDialog.h"

#include "core/project/KalCompanies.h"
#include "core/project/KalCompanyFormat.h"
#include "core/project/KalEditSession.h"
#include "core/project/KalPrivacyNotice.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/import/KalCompanyImportSelectDialog.h"
#include "gui/widgets/KalDialogKeys.h"
#include "gui/widgets/KalTableView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSortFilterProxyModel>
#include <QSqlField>
#include <QSqlRecord>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>

namespace {

// Says how many defects lose their company before companies are removed.
bool confirmCompanyRemoval(int companies, int defects)
{
    const QString question = KalMasterDataDialog::tr("Soll der gewählte Eintrag tatsächlich entfernt werden?");
    if (defects == 0)
        return KalPrompt::yesNo(KalMasterDataDialog::tr("Eintrag entfernen"), question);
    QString text;
    if (companies == 1 && defects == 1)
        text = KalMasterDataDialog::tr("Der gewählten Firma ist 1 Mangel zugeordnet. Er hat nach dem Löschen keine "
                                       "Firma mehr.");
    else if (companies == 1)
        text = KalMasterDataDialog::tr("Der gewählten Firma sind %1 Mängel zugeordnet. Sie haben nach dem Löschen "
                                       "keine Firma mehr.")
                   .arg(defects);
    else if (defects == 1)
        text = KalMasterDataDialog::tr("Den gewählten Firmen ist 1 Mangel zugeordnet. Er hat nach dem Löschen keine "
                                       "Firma mehr.");
    else
        text = KalMasterDataDialog::tr("Den gewählten Firmen sind %1 Mängel zugeordnet. Sie haben nach dem Löschen "
                                       "keine Firma mehr.")
                   .arg(defects);
    return KalPrompt::yesNo(KalMasterDataDialog::tr("Firma entfernen"), text + QLatin1Char('\n') + question);
}

const char *const kGeometryKey = "MasterDataDialog/Geometry";

QString res(const char *name)
{
    return QStringLiteral(":/KalMainWindow/Resources/") + QLatin1String(name);
}

} // namespace

KalMasterDataDialog::KalMasterDataDialog(KalProject *project, QWidget *parent)
    : QDialog(parent)
    , m_project(project)
    , m_ui(std::make_unique<Ui::KalMasterDataDialog>())
{
    m_ui->setupUi(this);
    if (project) {
        m_kal = project->model(QStringLiteral("kal"));
        m_companies = project->model(QStringLiteral("company"));
        // A removed company also leaves its defects without one.
        m_session = std::make_unique<KalEditSession>(
            project, QStringList{QStringLiteral("kal"), QStringLiteral("company"), QStringLiteral("defect")});
    }

    QPushButton *ok = m_ui->buttonBox->button(QDialogButtonBox::Ok);
    ok->setObjectName(QStringLiteral("pbOk"));
    ok->setIcon(QIcon(res("icon-allgemein-ok.png")));
    ok->setAutoDefault(false);
    QPushButton *cancel = m_ui->buttonBox->button(QDialogButtonBox::Cancel);
    cancel->setObjectName(QStringLiteral("pbCancel"));
    cancel->setIcon(QIcon(res("icon-allgemein-cancel.png")));
    cancel->setAutoDefault(false);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &KalMasterDataDialog::slotOkClicked);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &KalMasterDataDialog::slotCancelClicked);
    connect(m_ui->twMasterData, &QTabWidget::currentChanged, this, &KalMasterDataDialog::slotTabChanged);

    setUpProjectPage();
    setUpCompanyPage();
    loadProjectTexts();
    showFormat();

    const QByteArray geometry = QSettings().value(QLatin1String(kGeometryKey)).toByteArray();
    if (!geometry.isEmpty())
        restoreGeometry(geometry);
}

KalMasterDataDialog::~KalMasterDataDialog()
{
    // Before the grid goes: undoing re-reads the models it shows.
    m_session.reset();
}

KalTableView *KalMasterDataDialog::companyView() const
{
    return m_ui->tvCompanies;
}

void KalMasterDataDialog::setUpProjectPage()
{
    const QList<QPair<QLineEdit *, const char *>> edits{
        {m_ui->leProjectName, "projectname"},    {m_ui->leProjectNumber, "projectnumber"},
        {m_ui->leHeaderLeft, "headline_left"},   {m_ui->leHeaderCenter, "headline_center"},
        {m_ui->leHeaderRight, "headline_right"}, {m_ui->leFooterLeft, "footer_left"},
        {m_ui->leFooterCenter, "footer_center"}, {m_ui->leFooterRight, "footer_right"}};
    for (const auto &edit : edits)
        m_textEdits.insert(QLatin1String(edit.second), edit.first);
    connect(m_ui->leHeaderLeft, &QLineEdit::editingFinished, this, &KalMasterDataDialog::slotHeaderLeftEditingFinished);
}

void KalMasterDataDialog::setUpCompanyPage()
{
    KalTableView *tvCompanies = m_ui->tvCompanies;
    tvCompanies->setSubmitEdits(false); // OK writes, Cancel reverts
    tvCompanies->copyButton()->hide();

    if (m_companies) {
        // Sorting in a proxy keeps the pending edits of the shared model
        // (sorting the model itself would select it again and drop them).
        m_companyProxy = new QSortFilterProxyModel(this);
        m_companyProxy->setSourceModel(m_companies);
        m_companyProxy->setSortRole(Qt::EditRole);
        m_companyProxy->setSortCaseSensitivity(Qt::CaseInsensitive);
        tvCompanies->setModel(m_companyProxy);
        for (const char *hidden : {"id", "pos", "modified", "site_journal_id", "delete_on_import"})
            tvCompanies->setColumnHidden(m_companies->fieldIndex(QLatin1String(hidden)), true);
        // Enabling sorting sorts by the header's indicator: point it at `pos`.
        tvCompanies->horizontalHeader()->setSortIndicator(m_companies->fieldIndex(QStringLiteral("pos")),
                                                          Qt::AscendingOrder);
        tvCompanies->setSortingEnabled(true);
        m_companyProxy->sort(m_companies->fieldIndex(QStringLiteral("pos")), Qt::AscendingOrder);
        tvCompanies->horizontalHeader()->setSortIndicatorShown(false);
        if (!tvCompanies->restoreColumnWidths()) {
            for (int c = 0; c < m_companies->columnCount(); ++c)
                tvCompanies->setColumnWidth(c, 110);
            tvCompanies->setColumnWidth(m_companies->fieldIndex(QStringLiteral("company")), 170);
            tvCompanies->setColumnWidth(m_companies->fieldIndex(QStringLiteral("plz")), 60);
            tvCompanies->setColumnWidth(m_companies->fieldIndex(QStringLiteral("email")), 170);
        }
        connect(tvCompanies, &KalTableView::signalAddButtonClicked, this, &KalMasterDataDialog::slotAddCompany);
        tvCompanies->setDeleteQuestion([this](const QList<qint64> &ids) {
            return confirmCompanyRemoval(ids.size(), KalCompanies(*m_project).defectCount(ids));
        });
        connect(tvCompanies->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this,
                &KalMasterDataDialog::slotScrollAfterSorting);
        connect(tvCompanies->horizontalHeader(), &QHeaderView::sectionResized, this, [this] {
            if (isVisible())
                m_ui->tvCompanies->saveColumnWidths();
        });
    } else {
        m_ui->gbCompanyList->setEnabled(false);
    }

    for (QComboBox *combo : {m_ui->cbxOutputField1, m_ui->cbxOutputField2, m_ui->cbxOutputField3})
        combo->addItems(KalCompanyFormat::fieldCaptions());
    // Printing the company list is not part of the program yet.
    m_ui->pbPrint->setEnabled(false);
    m_ui->pbImportCompanies->setEnabled(m_companies != nullptr && KalCompanyImportSelectDialog::isAvailable());

    connect(m_ui->cbxOutputField1, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &KalMasterDataDialog::slotUpdateCompanyOutputFormatFieldIdx1);
    connect(m_ui->cbxOutputField2, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &KalMasterDataDialog::slotUpdateCompanyOutputFormatFieldIdx2);
    connect(m_ui->cbxOutputField3, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &KalMasterDataDialog::slotUpdateCompanyOutputFormatFieldIdx3);
    connect(m_ui->cbField2InBrackets, &QCheckBox::stateChanged, this,
            &KalMasterDataDialog::slotUpdateCompanyOutputFormatField2InBrackets);
    connect(m_ui->cbField3InBrackets, &QCheckBox::stateChanged, this,
            &KalMasterDataDialog::slotUpdateCompanyOutputFormatField3InBrackets);
    connect(m_ui->pbCompaniesOutputFormatDefaults, &QPushButton::clicked, this,
            &KalMasterDataDialog::slotCompaniesOutputFormatDefaultsClicked);
    connect(m_ui->pbImportCompanies, &QPushButton::clicked, this, &KalMasterDataDialog::slotImportCompanyData);
}

void KalMasterDataDialog::setCurrentPage(Page page)
{
    m_ui->twMasterData->setCurrentIndex(page == ProjectPage ? 0 : 1);
    if (page == CompanyFormatPage)
        m_ui->cbxOutputField1->setFocus();
    else if (page == ProjectPage)
        m_ui->leProjectName->setFocus();
    else
        m_ui->tvCompanies->setFocus();
}

// --- project texts ----------------------------------------------------------

void KalMasterDataDialog::loadProjectTexts()
{
    const bool haveRow = m_kal && m_kal->rowCount() > 0;
    for (auto it = m_textEdits.constBegin(); it != m_textEdits.constEnd(); ++it) {
        QString text;
        if (haveRow)
            text = m_kal->data(m_kal->index(0, m_kal->fieldIndex(it.key())), Qt::EditRole).toString();
        it.value()->setText(text);
        it.value()->setCursorPosition(0);
        it.value()->setEnabled(haveRow);
        m_openTexts.insert(it.key(), text);
    }
}

bool KalMasterDataDialog::headerReminderDue(const QString &projectName, const QStringList &headerTexts)
{
    const QString name = projectName.trimmed();
    if (name.isEmpty())
        return false;
    for (const QString &text : headerTexts) {
        if (text.contains(name, Qt::CaseInsensitive))
            return false;
    }
    return true;
}

void KalMasterDataDialog::slotHeaderLeftEditingFinished()
{
    // Once per dialog: editing finishes on every focus change.
    if (m_reminderShown || m_closing)
        return;
    if (!headerReminderDue(m_ui->leProjectName->text(),
                           {m_ui->leHeaderLeft->text(), m_ui->leHeaderCenter->text(), m_ui->leHeaderRight->text()}))
        return;
    m_reminderShown = true;
    KalPrompt::information(tr("Projektname"),
                           tr("Bitte denken Sie daran, den Projektnamen in der Kopfzeile zu platzieren (empfohlen)!"));
}

// --- companies ----------------------------------------------------------------

void KalMasterDataDialog::slotAddCompany()
{
    if (!m_companies || !m_project)
        return;
    const qint64 id = KalCompanies(*m_project).append();
    if (id < 0)
        return;
    // Written with OK, like every other change of this dialog.
    if (m_ui->tvCompanies->selectId(id)) {
        const QModelIndex current = m_ui->tvCompanies->currentIndex();
        const QModelIndex first = current.sibling(current.row(), m_companies->fieldIndex(QStringLiteral("type")));
        m_ui->tvCompanies->setCurrentIndex(first);
        m_ui->tvCompanies->edit(first);
    }
}

void KalMasterDataDialog::slotImportCompanyData()
{
    if (!m_project || !KalCompanyImportSelectDialog::isAvailable())
        return;
    KalCompanyImportSelectDialog dialog(m_project, this);
    dialog.exec();
    if (!dialog.insertedIds().isEmpty()) {
        m_ui->tvCompanies->selectIds(dialog.insertedIds().toList());
        m_ui->tvCompanies->scrollTo(m_ui->tvCompanies->currentIndex());
    }
}

void KalMasterDataDialog::slotScrollAfterSorting(int logicalIndex, Qt::SortOrder order)
{
    Q_UNUSED(logicalIndex)
    Q_UNUSED(order)
    m_ui->tvCompanies->horizontalHeader()->setSortIndicatorShown(true);
    if (m_ui->tvCompanies->currentIndex().isValid())
        m_ui->tvCompanies->scrollTo(m_ui->tvCompanies->currentIndex(), QAbstractItemView::PositionAtCenter);
}

void KalMasterDataDialog::slotTabChanged(int index)
{
    if (index == 1 && isVisible())
        showPrivacyNoticeOnce();
}

void KalMasterDataDialog::showPrivacyNoticeOnce()
{
    if (m_noticeShown)
        return;
    m_noticeShown = true;
    QTimer::singleShot(0, this, [] { KalPrivacyNotice::showIfWanted(); });
}

void KalMasterDataDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (m_ui->twMasterData->currentIndex() == 1)
        showPrivacyNoticeOnce();
}

// --- output format --------------------------------------------------------------

void KalMasterDataDialog::showFormat()
{
    const KalCompanyFormat format = KalCompanyFormat::load();
    m_updatingFormat = true;
    m_ui->cbxOutputField1->setCurrentIndex(format.field1);
    m_ui->cbxOutputField2->setCurrentIndex(format.field2);
    m_ui->cbxOutputField3->setCurrentIndex(format.field3);
    m_ui->cbField2InBrackets->setChecked(format.field2InBrackets);
    m_ui->cbField3InBrackets->setChecked(format.field3InBrackets);
    m_updatingFormat = false;
    updateExample();
}

void KalMasterDataDialog::storeFormat()
{
    if (m_updatingFormat)
        return;
    KalCompanyFormat format;
    format.field1 = qMax(0, m_ui->cbxOutputField1->currentIndex());
    format.field2 = qMax(0, m_ui->cbxOutputField2->currentIndex());
    format.field3 = qMax(0, m_ui->cbxOutputField3->currentIndex());
    format.field2InBrackets = m_ui->cbField2InBrackets->isChecked();
    format.field3InBrackets = m_ui->cbField3InBrackets->isChecked();
    if (format != KalCompanyFormat::load()) {
        format.save();
        format.installInModels();
    }
    updateExample();
}

void KalMasterDataDialog::updateExample()
{
    m_ui->lblExample->setText(
        KalCompanyFormat::load().text(KalCompanyFormat::sampleCompany(), KalCompanyFormat::gridSeparator()));
}

void KalMasterDataDialog::slotUpdateCompanyOutputFormatFieldIdx1(int)
{
    storeFormat();
}

void KalMasterDataDialog::slotUpdateCompanyOutputFormatFieldIdx2(int)
{
    storeFormat();
}

void KalMasterDataDialog::slotUpdateCompanyOutputFormatFieldIdx3(int)
{
    storeFormat();
}

void KalMasterDataDialog::slotUpdateCompanyOutputFormatField2InBrackets(int)
{
    storeFormat();
}

void KalMasterDataDialog::slotUpdateCompanyOutputFormatField3InBrackets(int)
{
    storeFormat();
}

void KalMasterDataDialog::slotCompaniesOutputFormatDefaultsClicked()
{
    const KalCompanyFormat defaults = KalCompanyFormat::factoryDefaults();
    defaults.save();
    defaults.installInModels();
    showFormat();
}

// --- closing -------------------------------------------------------------------------

void KalMasterDataDialog::actionSubmit()
{
    if (m_kal && m_kal->rowCount() > 0) {
        bool changed = false;
        for (auto it = m_textEdits.constBegin(); it != m_textEdits.constEnd(); ++it) {
            const QString text = it.value()->text();
            if (text == m_openTexts.value(it.key()))
                continue;
            m_kal->setData(m_kal->index(0, m_kal->fieldIndex(it.key())), text, KalSqlTableModel::UserEditRole);
            changed = true;
        }
        if (changed) {
            if (!m_kal->submitWithNotification(true))
                KalPrompt::critical(tr("Datenbankfehler"), tr("Die Projektdaten konnten nicht gespeichert werden."));
        }
    }
    if (m_companies && m_companies->isDirty()) {
        if (!m_companies->submitWithNotification(true))
            KalPrompt::critical(tr("Datenbankfehler"), tr("Die Firmenliste konnte nicht gespeichert werden."));
    }
    if (m_session && !m_session->keep())
        KalPrompt::critical(tr("Datenbankfehler"), tr("Die Stammdaten konnten nicht gespeichert werden."));
}

void KalMasterDataDialog::actionRevert()
{
    m_ui->tvCompanies->finishEditing(false);
    if (m_kal)
        m_kal->revertAll();
    if (m_companies)
        m_companies->revertAll();
    if (m_session)
        m_session->undo();
}

void KalMasterDataDialog::slotOkClicked()
{
    // A cell still being edited belongs to what OK writes.
    m_ui->tvCompanies->finishEditing();
    m_closing = true;
    actionSubmit();
    accept();
}

void KalMasterDataDialog::slotCancelClicked()
{
    reject();
}

void KalMasterDataDialog::keyPressEvent(QKeyEvent *event)
{
    if (KalDialogKeys::handleReturn(this, event))
        return;
    QDialog::keyPressEvent(event);
}

void KalMasterDataDialog::done(int result)
{
    m_closing = true;
    if (result == QDialog::Rejected)
        actionRevert();
    m_ui->tvCompanies->saveColumnWidths();
    QSettings().setValue(QLatin1String(kGeometryKey), saveGeometry());
    QDialog::done(result);
}
