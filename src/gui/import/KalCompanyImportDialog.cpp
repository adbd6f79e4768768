#include "KalCompanyImportDialog.h"

#include "core/import/KalAddressFile.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

// Rows of the file shown in the preview; the import takes all of them.
const int kPreviewRows = 50;
const QColor kDuplicateColor(255, 200, 200);

enum CompanyColumn { CheckColumn = 0, NameColumn, TypeColumn, PersonColumn, CityColumn, NoteColumn, ColumnCount };

} // namespace

KalCompanyImportDialog::KalCompanyImportDialog(KalProject *project, QWidget *parent)
    : QDialog(parent)
    , m_project(project)
{
    setObjectName(QStringLiteral("KalCompanyImportDialog"));
    setWindowTitle(tr("Firmen importieren"));
    setWindowIcon(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-firmen-import.ico")));

    lblSource = new QLabel(this);
    lblSource->setObjectName(QStringLiteral("lblSource"));
    lblSource->setTextFormat(Qt::PlainText);
    lblSource->setWordWrap(true);

    gbAddressFile = new QGroupBox(tr("Adressdatei"), this);
    gbAddressFile->setObjectName(QStringLiteral("gbAddressFile"));
    cbxSeparator = new QComboBox(gbAddressFile);
    cbxSeparator->setObjectName(QStringLiteral("cbxSeparator"));
    for (QChar c : KalAddressFile::separators()) {
        QString text;
        if (c == QLatin1Char(';'))
            text = tr("; (Semikolon)");
        else if (c == QLatin1Char(','))
            text = tr(", (Komma)");
        else if (c == QLatin1Char('\t'))
            text = tr("Tabulator");
        else if (c == QLatin1Char('|'))
            text = tr("| (senkrechter Strich)");
        else
            text = QString(c);
        cbxSeparator->addItem(text, QVariant(c));
    }
    cbxEncoding = new QComboBox(gbAddressFile);
    cbxEncoding->setObjectName(QStringLiteral("cbxEncoding"));
    cbxEncoding->addItem(QStringLiteral("UTF-8"), int(KalAddressFile::Utf8));
    cbxEncoding->addItem(QStringLiteral("Windows-1252"), int(KalAddressFile::Windows1252));
    cbxEncoding->addItem(QStringLiteral("UTF-16"), int(KalAddressFile::Utf16));
    cbHeader = new QCheckBox(tr("Erste Zeile enthält Spaltenüberschriften"), gbAddressFile);
    cbHeader->setObjectName(QStringLiteral("cbHeader"));
    twPreview = new QTableWidget(gbAddressFile);
    twPreview->setObjectName(QStringLiteral("twPreview"));
    twPreview->setEditTriggers(QAbstractItemView::NoEditTriggers);
    twPreview->setSelectionMode(QAbstractItemView::NoSelection);
    auto *hint = new QLabel(tr("Ordnen Sie in der ersten Zeile jeder Spalte das passende Feld zu."), gbAddressFile);
    hint->setWordWrap(true);

    auto *fileGrid = new QGridLayout(gbAddressFile);
    fileGrid->addWidget(new QLabel(tr("Trennzeichen:"), gbAddressFile), 0, 0);
    fileGrid->addWidget(cbxSeparator, 0, 1);
    fileGrid->addWidget(new QLabel(tr("Zeichensatz:"), gbAddressFile), 0, 2);
    fileGrid->addWidget(cbxEncoding, 0, 3);
    fileGrid->addWidget(cbHeader, 0, 4);
    fileGrid->setColumnStretch(5, 1);
    fileGrid->addWidget(hint, 1, 0, 1, 6);
    fileGrid->addWidget(twPreview, 2, 0, 1, 6);

    auto *listGroup = new QGroupBox(tr("Zu importierende Firmen"), this);
    listGroup->setObjectName(QStringLiteral("gbCompanies"));
    twCompanies = new QTableWidget(0, ColumnCount, listGroup);
    twCompanies->setObjectName(QStringLiteral("twCompanies"));
    twCompanies->setHorizontalHeaderLabels(
        {QString(), tr("Firma"), tr("Gewerk"), tr("Name"), tr("Stadt"), tr("Hinweis")});
    twCompanies->setEditTriggers(QAbstractItemView::NoEditTriggers);
    twCompanies->setSelectionBehavior(QAbstractItemView::SelectRows);
    twCompanies->verticalHeader()->hide();
    twCompanies->horizontalHeader()->setStretchLastSection(true);
    twCompanies->setColumnWidth(CheckColumn, 28);
    twCompanies->setColumnWidth(NameColumn, 200);
    twCompanies->setColumnWidth(TypeColumn, 140);
    twCompanies->setColumnWidth(PersonColumn, 160);
    twCompanies->setColumnWidth(CityColumn, 120);
    lblDuplicates = new QLabel(listGroup);
    lblDuplicates->setObjectName(QStringLiteral("lblDuplicates"));
    lblDuplicates->setWordWrap(true);
    pbCheckAll = new QPushButton(tr("Alle auswählen"), listGroup);
    pbCheckAll->setObjectName(QStringLiteral("pbCheckAll"));
    pbCheckNone = new QPushButton(tr("Keine auswählen"), listGroup);
    pbCheckNone->setObjectName(QStringLiteral("pbCheckNone"));
    for (QPushButton *b : {pbCheckAll, pbCheckNone})
        b->setAutoDefault(false);
    auto *checkButtons = new QHBoxLayout;
    checkButtons->addWidget(pbCheckAll);
    checkButtons->addWidget(pbCheckNone);
    checkButtons->addStretch(1);
    auto *listLayout = new QVBoxLayout(listGroup);
    listLayout->addWidget(twCompanies, 1);
    listLayout->addWidget(lblDuplicates);
    listLayout->addLayout(checkButtons);

    auto *buttons = new QDialogButtonBox(this);
    pbImport = buttons->addButton(tr("Importieren"), QDialogButtonBox::AcceptRole);
    pbImport->setObjectName(QStringLiteral("pbImport"));
    pbImport->setIcon(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-allgemein-ok.png")));
    pbCancel = buttons->addButton(QDialogButtonBox::Cancel);
    pbCancel->setObjectName(QStringLiteral("pbCancel"));
    pbCancel->setIcon(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-allgemein-cancel.png")));

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(lblSource);
    layout->addWidget(gbAddressFile, 1);
    layout->addWidget(listGroup, 1);
    layout->addWidget(buttons);
    gbAddressFile->hide();

    connect(cbxSeparator, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &KalCompanyImportDialog::slotSeparatorChanged);
    connect(cbxEncoding, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &KalCompanyImportDialog::slotEncodingChanged);
    connect(cbHeader, &QCheckBox::toggled, this, &KalCompanyImportDialog::slotHeaderToggled);
    connect(pbCheckAll, &QPushButton::clicked, this, &KalCompanyImportDialog::slotCheckAll);
    connect(pbCheckNone, &QPushButton::clicked, this, &KalCompanyImportDialog::slotCheckNone);
    connect(buttons, &QDialogButtonBox::accepted, this, &KalCompanyImportDialog::slotImport);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(twCompanies, &QTableWidget::itemChanged, this, [this] {
        if (!m_filling)
            updateImportButton();
    });

    resize(860, 620);
}

KalCompanyImportDialog::~KalCompanyImportDialog() = default;

void KalCompanyImportDialog::setAddressFile(std::shared_ptr<KalAddressFile> file, const QString &displayPath)
{
    m_file = std::move(file);
    lblSource->setText(tr("Quelle: %1").arg(displayPath));
    gbAddressFile->show();
    m_filling = true;
    const int separator = cbxSeparator->findData(QVariant(m_file->separator()));
    cbxSeparator->setCurrentIndex(qMax(0, separator));
    cbxEncoding->setCurrentIndex(qMax(0, cbxEncoding->findData(int(m_file->encoding()))));
    cbHeader->setChecked(m_file->hasHeader());
    m_filling = false;
    fillPreview();
    refreshCompanies();
}

void KalCompanyImportDialog::setCompanies(const QVector<KalCompanyRecord> &companies, const QString &displayPath)
{
    m_file.reset();
    gbAddressFile->hide();
    lblSource->setText(tr("Quelle: %1").arg(displayPath));
    m_companies = companies;
    m_duplicates = KalCompanyImport::findDuplicates(*m_project, m_companies);
    fillCompanyList();
}

void KalCompanyImportDialog::slotSeparatorChanged(int index)
{
    if (m_filling || !m_file || index < 0)
        return;
    m_file->setSeparator(cbxSeparator->itemData(index).toChar());
    fillPreview();
    refreshCompanies();
}

void KalCompanyImportDialog::slotEncodingChanged(int index)
{
    if (m_filling || !m_file || index < 0)
        return;
    m_file->setEncoding(KalAddressFile::Encoding(cbxEncoding->itemData(index).toInt()));
    fillPreview();
    refreshCompanies();
}

void KalCompanyImportDialog::slotHeaderToggled(bool on)
{
    if (m_filling || !m_file)
        return;
    m_file->setHasHeader(on);
    fillPreview();
    refreshCompanies();
}

void KalCompanyImportDialog::setColumnMapping(int column, int field)
{
    if (!m_file)
        return;
    m_file->setMapping(column, field);
    fillPreview();
    refreshCompanies();
}

void KalCompanyImportDialog::fillPreview()
{
    if (!m_file)
        return;
    m_filling = true;
    const int columns = m_file->columnCount();
    const QVector<QStringList> &rows = m_file->rows();
    const int shown = qMin(rows.size(), kPreviewRows);
    twPreview->clear();
    twPreview->setColumnCount(columns);
    twPreview->setRowCount(shown + 1);
    twPreview->setHorizontalHeaderLabels(m_file->columnCaptions());
    QStringList rowLabels{tr("Feld")};
    for (int r = 1; r <= shown; ++r)
        rowLabels << QString::number(r);
    twPreview->setVerticalHeaderLabels(rowLabels);

    const QVector<int> mapping = m_file->mapping();
    for (int c = 0; c < columns; ++c) {
        auto *combo = new QComboBox(twPreview);
        combo->setObjectName(QStringLiteral("cbxMapping%1").arg(c));
        combo->addItem(tr("- ignorieren -"), -1);
        for (int f = 0; f < KalCompanyRecord::FieldCount; ++f)
            combo->addItem(KalCompanyRecord::caption(f), f);
        combo->setCurrentIndex(qMax(0, combo->findData(c < mapping.size() ? mapping.at(c) : -1)));
        connect(combo, QOverload<int>::of(&QComboBox::activated), this, [this, c, combo](int index) {
            // Rebuilding the preview deletes this combo box: do it afterwards.
            const int field = combo->itemData(index).toInt();
            QMetaObject::invokeMethod(
                this, [this, c, field] { setColumnMapping(c, field); }, Qt::QueuedConnection);
        });
        twPreview->setCellWidget(0, c, combo);
        for (int r = 0; r < shown; ++r)
            twPreview->setItem(r + 1, c, new QTableWidgetItem(rows.at(r).value(c)));
    }
    twPreview->resizeColumnsToContents();
    for (int c = 0; c < columns; ++c)
        twPreview->setColumnWidth(c, qBound(110, twPreview->columnWidth(c), 260));
    m_filling = false;
}

void KalCompanyImportDialog::refreshCompanies()
{
    m_companies = m_file ? m_file->companies() : QVector<KalCompanyRecord>();
    m_duplicates = KalCompanyImport::findDuplicates(*m_project, m_companies);
    fillCompanyList();
}

void KalCompanyImportDialog::fillCompanyList()
{
    m_filling = true;
    twCompanies->setRowCount(m_companies.size());
    for (int r = 0; r < m_companies.size(); ++r) {
        const KalCompanyRecord &c = m_companies.at(r);
        const bool duplicate = m_duplicates.contains(r);
        auto *check = new QTableWidgetItem;
        check->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable | Qt::ItemIsSelectable);
        // Companies the project has already are offered but not chosen.
        check->setCheckState(duplicate || c.isEmpty() ? Qt::Unchecked : Qt::Checked);
        twCompanies->setItem(r, CheckColumn, check);
        const QString person = QStringList({c.value(KalCompanyRecord::FirstName), c.value(KalCompanyRecord::LastName)})
                                   .join(QLatin1Char(' '))
                                   .trimmed();
        const QStringList texts{c.value(KalCompanyRecord::Company), c.value(KalCompanyRecord::Type), person,
                                c.value(KalCompanyRecord::City), duplicate ? tr("bereits vorhanden") : QString()};
        for (int i = 0; i < texts.size(); ++i) {
            auto *item = new QTableWidgetItem(texts.at(i));
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            if (duplicate)
                item->setBackground(kDuplicateColor);
            twCompanies->setItem(r, NameColumn + i, item);
        }
        if (duplicate)
            check->setBackground(kDuplicateColor);
    }
    if (m_duplicates.isEmpty())
        lblDuplicates->clear();
    else if (m_duplicates.size() == 1)
        lblDuplicates->setText(tr("Eine Firma ist im Projekt bereits vorhanden (rot markiert) und wurde nicht "
                                  "ausgewählt."));
    else
        lblDuplicates->setText(tr("%1 Firmen sind im Projekt bereits vorhanden (rot markiert) und wurden nicht "
                                  "ausgewählt.")
                                   .arg(m_duplicates.size()));
    m_filling = false;
    updateImportButton();
}

bool KalCompanyImportDialog::isChecked(int row) const
{
    const QTableWidgetItem *item = twCompanies->item(row, CheckColumn);
    return item && item->checkState() == Qt::Checked;
}

void KalCompanyImportDialog::setChecked(int row, bool checked)
{
    if (QTableWidgetItem *item = twCompanies->item(row, CheckColumn))
        item->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
}

QVector<KalCompanyRecord> KalCompanyImportDialog::checkedCompanies() const
{
    QVector<KalCompanyRecord> list;
    for (int r = 0; r < m_companies.size(); ++r) {
        if (isChecked(r))
            list.append(m_companies.at(r));
    }
    return list;
}

void KalCompanyImportDialog::slotCheckAll()
{
    for (int r = 0; r < twCompanies->rowCount(); ++r)
        setChecked(r, true);
}

void KalCompanyImportDialog::slotCheckNone()
{
    for (int r = 0; r < twCompanies->rowCount(); ++r)
        setChecked(r, false);
}

void KalCompanyImportDialog::updateImportButton()
{
    bool any = false;
    for (int r = 0; r < twCompanies->rowCount() && !any; ++r)
        any = isChecked(r);
    pbImport->setEnabled(any);
}

void KalCompanyImportDialog::slotImport()
{
    const QVector<KalCompanyRecord> chosen = checkedCompanies();
    if (chosen.isEmpty())
        return;
    // The user saw the duplicates marked; what is ticked is wanted.
    const KalCompanyImport::Result result = KalCompanyImport::insertCompanies(*m_project, chosen, true);
    if (!result.ok) {
        KalPrompt::critical(tr("Fehler"), result.errorText.isEmpty() ? tr("Die Firmen konnten nicht importiert werden.")
                                                                     : result.errorText);
        return;
    }
    m_insertedIds = result.insertedIds;
    KalPrompt::information(tr("Info"), m_insertedIds.size() == 1
                                           ? tr("Eine Firma wurde importiert.")
                                           : tr("%1 Firmen wurden importiert.").arg(m_insertedIds.size()));
    accept();
}
