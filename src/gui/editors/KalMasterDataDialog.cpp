#include "KalMasterDataDialog.h"

#include "core/project/KalCompanies.h"
#include "core/project/KalCompanyFormat.h"
#include "core/project/KalPrivacyNotice.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/import/KalCompanyImportSelectDialog.h"
#include "gui/widgets/KalTableView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
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
#include <QVBoxLayout>

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
{
    setObjectName(QStringLiteral("KalMasterDataDialog"));
    setWindowTitle(tr("Stammdaten"));
    setWindowIcon(QIcon(res("icon-projektdaten.ico")));
    if (project) {
        m_kal = project->model(QStringLiteral("kal"));
        m_companies = project->model(QStringLiteral("company"));
    }

    twMasterData = new QTabWidget(this);
    twMasterData->setObjectName(QStringLiteral("twMasterData"));
    twMasterData->addTab(buildProjectPage(), QIcon(res("icon-projektdaten.ico")), tr("Projektdaten"));
    twMasterData->addTab(buildCompanyPage(), QIcon(res("icon-firmen.ico")), tr("Firmendaten"));

    auto *buttons = new QDialogButtonBox(this);
    buttons->setObjectName(QStringLiteral("buttonBox"));
    pbOk = buttons->addButton(QDialogButtonBox::Ok);
    pbOk->setObjectName(QStringLiteral("pbOk"));
    pbOk->setIcon(QIcon(res("icon-allgemein-ok.png")));
    pbCancel = buttons->addButton(QDialogButtonBox::Cancel);
    pbCancel->setObjectName(QStringLiteral("pbCancel"));
    pbCancel->setIcon(QIcon(res("icon-allgemein-cancel.png")));
    pbOk->setAutoDefault(false);
    pbCancel->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::accepted, this, &KalMasterDataDialog::on_pbOk_clicked);
    connect(buttons, &QDialogButtonBox::rejected, this, &KalMasterDataDialog::on_pbCancel_clicked);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(twMasterData, 1);
    layout->addWidget(buttons);

    connect(twMasterData, &QTabWidget::currentChanged, this, &KalMasterDataDialog::slotTabChanged);

    loadProjectTexts();
    showFormat();

    resize(900, 600);
    const QByteArray geometry = QSettings().value(QLatin1String(kGeometryKey)).toByteArray();
    if (!geometry.isEmpty())
        restoreGeometry(geometry);
}

KalMasterDataDialog::~KalMasterDataDialog() = default;

QWidget *KalMasterDataDialog::buildProjectPage()
{
    auto *page = new QWidget(this);
    page->setObjectName(QStringLiteral("tabProjectData"));
    auto edit = [this, page](const char *name, const char *column) {
        auto *e = new QLineEdit(page);
        e->setObjectName(QLatin1String(name));
        m_textEdits.insert(QLatin1String(column), e);
        return e;
    };
    leProjectName = edit("leProjectName", "projectname");
    leProjectNumber = edit("leProjectNumber", "projectnumber");
    leHeaderLeft = edit("leHeaderLeft", "headline_left");
    leHeaderCenter = edit("leHeaderCenter", "headline_center");
    leHeaderRight = edit("leHeaderRight", "headline_right");
    leFooterLeft = edit("leFooterLeft", "footer_left");
    leFooterCenter = edit("leFooterCenter", "footer_center");
    leFooterRight = edit("leFooterRight", "footer_right");

    auto *form = new QFormLayout;
    form->addRow(tr("Projektname:"), leProjectName);
    form->addRow(tr("Projektnummer:"), leProjectNumber);

    auto *print = new QGroupBox(tr("Druckausgabe"), page);
    print->setObjectName(QStringLiteral("gbPrintOutput"));
    auto *grid = new QGridLayout(print);
    grid->addWidget(new QLabel(tr("Links:"), print), 0, 1);
    grid->addWidget(new QLabel(tr("Mitte:"), print), 0, 2);
    grid->addWidget(new QLabel(tr("Rechts:"), print), 0, 3);
    grid->addWidget(new QLabel(tr("Kopfzeile:"), print), 1, 0);
    grid->addWidget(leHeaderLeft, 1, 1);
    grid->addWidget(leHeaderCenter, 1, 2);
    grid->addWidget(leHeaderRight, 1, 3);
    grid->addWidget(new QLabel(tr("Fußzeile:"), print), 2, 0);
    grid->addWidget(leFooterLeft, 2, 1);
    grid->addWidget(leFooterCenter, 2, 2);
    grid->addWidget(leFooterRight, 2, 3);
    for (int c = 1; c <= 3; ++c)
        grid->setColumnStretch(c, 1);

    auto *layout = new QVBoxLayout(page);
    layout->addLayout(form);
    layout->addWidget(print);
    layout->addStretch(1);

    connect(leHeaderLeft, &QLineEdit::editingFinished, this, &KalMasterDataDialog::on_leHeaderLeft_editingFinished);
    return page;
}

QWidget *KalMasterDataDialog::buildCompanyPage()
{
    auto *page = new QWidget(this);
    page->setObjectName(QStringLiteral("tabCompanyData"));

    auto *listGroup = new QGroupBox(tr("Firmenliste"), page);
    listGroup->setObjectName(QStringLiteral("gbCompanyList"));
    tvCompanies = new KalTableView(listGroup);
    tvCompanies->setSubmitEdits(false); // OK writes, Cancel reverts
    tvCompanies->setObjectName(QStringLiteral("tvCompanies"));
    tvCompanies->copyButton()->hide();
    auto *listLayout = new QVBoxLayout(listGroup);
    listLayout->addWidget(tvCompanies);

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
                tvCompanies->saveColumnWidths();
        });
    } else {
        listGroup->setEnabled(false);
    }

    auto *formatGroup = new QGroupBox(tr("Ausgabeformat für Firmendaten"), page);
    formatGroup->setObjectName(QStringLiteral("gbCompanyOutputFormat"));
    auto combo = [formatGroup](const char *name) {
        auto *c = new QComboBox(formatGroup);
        c->setObjectName(QLatin1String(name));
        c->addItems(KalCompanyFormat::fieldCaptions());
        return c;
    };
    cbxOutputField1 = combo("cbxOutputField1");
    cbxOutputField2 = combo("cbxOutputField2");
    cbxOutputField3 = combo("cbxOutputField3");
    cbField2InBrackets = new QCheckBox(tr("Dieses Feld in Klammern setzen"), formatGroup);
    cbField2InBrackets->setObjectName(QStringLiteral("cbField2InBrackets"));
    cbField3InBrackets = new QCheckBox(tr("Dieses Feld in Klammern setzen"), formatGroup);
    cbField3InBrackets->setObjectName(QStringLiteral("cbField3InBrackets"));
    lblExample = new QLabel(formatGroup);
    lblExample->setObjectName(QStringLiteral("lblExample"));
    lblExample->setTextFormat(Qt::PlainText);
    lblExample->setTextInteractionFlags(Qt::TextSelectableByMouse);
    pbCompaniesOutputFormatDefaults = new QPushButton(tr("Auf Werkseinstellungen zurücksetzen"), formatGroup);
    pbCompaniesOutputFormatDefaults->setObjectName(QStringLiteral("pbCompaniesOutputFormatDefaults"));
    pbCompaniesOutputFormatDefaults->setAutoDefault(false);

    auto *formatGrid = new QGridLayout(formatGroup);
    formatGrid->addWidget(new QLabel(tr("Text 1:"), formatGroup), 0, 0);
    formatGrid->addWidget(cbxOutputField1, 0, 1);
    formatGrid->addWidget(new QLabel(tr("Text 2:"), formatGroup), 1, 0);
    formatGrid->addWidget(cbxOutputField2, 1, 1);
    formatGrid->addWidget(cbField2InBrackets, 1, 2);
    formatGrid->addWidget(new QLabel(tr("Text 3:"), formatGroup), 2, 0);
    formatGrid->addWidget(cbxOutputField3, 2, 1);
    formatGrid->addWidget(cbField3InBrackets, 2, 2);
    formatGrid->addWidget(new QLabel(tr("Beispiel:"), formatGroup), 3, 0);
    formatGrid->addWidget(lblExample, 3, 1, 1, 3);
    formatGrid->addWidget(pbCompaniesOutputFormatDefaults, 0, 4);
    formatGrid->setColumnStretch(3, 1);

    pbPrint = new QPushButton(tr("Drucken"), page);
    pbPrint->setObjectName(QStringLiteral("pbPrint"));
    // Printing the company list is not part of the program yet.
    pbPrint->setEnabled(false);
    pbImportCompanies = new QPushButton(QIcon(res("icon-firmen-import.ico")), tr("Firmen importieren"), page);
    pbImportCompanies->setObjectName(QStringLiteral("pbImportCompanies"));
    pbPrint->setAutoDefault(false);
    pbImportCompanies->setAutoDefault(false);
    pbImportCompanies->setEnabled(m_companies != nullptr && KalCompanyImportSelectDialog::isAvailable());

    auto *pageButtons = new QHBoxLayout;
    pageButtons->addWidget(pbImportCompanies);
    pageButtons->addWidget(pbPrint);
    pageButtons->addStretch(1);

    auto *layout = new QVBoxLayout(page);
    layout->addWidget(listGroup, 1);
    layout->addLayout(pageButtons);
    layout->addWidget(formatGroup);

    connect(cbxOutputField1, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &KalMasterDataDialog::slotUpdateCompanyOutputFormatFieldIdx1);
    connect(cbxOutputField2, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &KalMasterDataDialog::slotUpdateCompanyOutputFormatFieldIdx2);
    connect(cbxOutputField3, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &KalMasterDataDialog::slotUpdateCompanyOutputFormatFieldIdx3);
    connect(cbField2InBrackets, &QCheckBox::stateChanged, this,
            &KalMasterDataDialog::slotUpdateCompanyOutputFormatField2InBrackets);
    connect(cbField3InBrackets, &QCheckBox::stateChanged, this,
            &KalMasterDataDialog::slotUpdateCompanyOutputFormatField3InBrackets);
    connect(pbCompaniesOutputFormatDefaults, &QPushButton::clicked, this,
            &KalMasterDataDialog::on_pbCompaniesOutputFormatDefaults_clicked);
    connect(pbImportCompanies, &QPushButton::clicked, this, &KalMasterDataDialog::slotImportCompanyData);
    return page;
}

void KalMasterDataDialog::setCurrentPage(Page page)
{
    twMasterData->setCurrentIndex(page == ProjectPage ? 0 : 1);
    if (page == CompanyFormatPage)
        cbxOutputField1->setFocus();
    else if (page == ProjectPage)
        leProjectName->setFocus();
    else
        tvCompanies->setFocus();
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

void KalMasterDataDialog::on_leHeaderLeft_editingFinished()
{
    // Once per dialog: editing finishes on every focus change.
    if (m_reminderShown || m_closing)
        return;
    if (!headerReminderDue(leProjectName->text(),
                           {leHeaderLeft->text(), leHeaderCenter->text(), leHeaderRight->text()}))
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
    if (tvCompanies->selectId(id)) {
        const QModelIndex current = tvCompanies->currentIndex();
        const QModelIndex first = current.sibling(current.row(), m_companies->fieldIndex(QStringLiteral("type")));
        tvCompanies->setCurrentIndex(first);
        tvCompanies->edit(first);
    }
}

void KalMasterDataDialog::slotImportCompanyData()
{
    if (!m_project || !KalCompanyImportSelectDialog::isAvailable())
        return;
    KalCompanyImportSelectDialog dialog(m_project, this);
    dialog.exec();
    if (!dialog.insertedIds().isEmpty()) {
        tvCompanies->selectIds(dialog.insertedIds().toList());
        tvCompanies->scrollTo(tvCompanies->currentIndex());
    }
}

void KalMasterDataDialog::slotScrollAfterSorting(int logicalIndex, Qt::SortOrder order)
{
    Q_UNUSED(logicalIndex)
    Q_UNUSED(order)
    tvCompanies->horizontalHeader()->setSortIndicatorShown(true);
    if (tvCompanies->currentIndex().isValid())
        tvCompanies->scrollTo(tvCompanies->currentIndex(), QAbstractItemView::PositionAtCenter);
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
    if (twMasterData->currentIndex() == 1)
        showPrivacyNoticeOnce();
}

// --- output format --------------------------------------------------------------

void KalMasterDataDialog::showFormat()
{
    const KalCompanyFormat format = KalCompanyFormat::load();
    m_updatingFormat = true;
    cbxOutputField1->setCurrentIndex(format.field1);
    cbxOutputField2->setCurrentIndex(format.field2);
    cbxOutputField3->setCurrentIndex(format.field3);
    cbField2InBrackets->setChecked(format.field2InBrackets);
    cbField3InBrackets->setChecked(format.field3InBrackets);
    m_updatingFormat = false;
    updateExample();
}

void KalMasterDataDialog::storeFormat()
{
    if (m_updatingFormat)
        return;
    KalCompanyFormat format;
    format.field1 = qMax(0, cbxOutputField1->currentIndex());
    format.field2 = qMax(0, cbxOutputField2->currentIndex());
    format.field3 = qMax(0, cbxOutputField3->currentIndex());
    format.field2InBrackets = cbField2InBrackets->isChecked();
    format.field3InBrackets = cbField3InBrackets->isChecked();
    if (format != KalCompanyFormat::load()) {
        format.save();
        format.installInModels();
    }
    updateExample();
}

void KalMasterDataDialog::updateExample()
{
    lblExample->setText(
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

void KalMasterDataDialog::on_pbCompaniesOutputFormatDefaults_clicked()
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
}

void KalMasterDataDialog::actionRevert()
{
    if (m_kal)
        m_kal->revertAll();
    if (m_companies)
        m_companies->revertAll();
}

void KalMasterDataDialog::on_pbOk_clicked()
{
    // Commit an open grid editor first.
    tvCompanies->setFocus();
    m_closing = true;
    actionSubmit();
    accept();
}

void KalMasterDataDialog::on_pbCancel_clicked()
{
    reject();
}

void KalMasterDataDialog::done(int result)
{
    m_closing = true;
    if (result == QDialog::Rejected)
        actionRevert();
    tvCompanies->saveColumnWidths();
    QSettings().setValue(QLatin1String(kGeometryKey), saveGeometry());
    QDialog::done(result);
}
