#include "KalCompanyImportDialog.h"
#include "ui_KalCompanyImportDialog.h"

#include "core/import/KalAddressFile.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QIcon>
#include <QPushButton>
#include <QSet>
#include <QTableWidget>

namespace {

// Rows of the file shown in the preview; the import takes all of them.
const int kPreviewRows = 50;
const QColor kDuplicateColor(255, 200, 200);

enum CompanyColumn { CheckColumn = 0, NameColumn, TypeColumn, PersonColumn, CityColumn, NoteColumn, ColumnCount };
// Rows of the preview: the field chosen per column, how it is read, then data.
enum PreviewRow { FieldRow = 0, NoteRow, FirstDataRow };

} // namespace

KalCompanyImportDialog::KalCompanyImportDialog(KalProject *project, QWidget *parent)
    : QDialog(parent)
    , m_ui(new Ui::KalCompanyImportDialog)
    , m_project(project)
{
    m_ui->setupUi(this);
    setWindowIcon(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-firmen-import.ico")));

    const struct
    {
        QChar separator;
        const char *text;
    } separators[] = {{QLatin1Char(';'), QT_TR_NOOP("; (Semikolon)")},
                      {QLatin1Char(','), QT_TR_NOOP(", (Komma)")},
                      {QLatin1Char('\t'), QT_TR_NOOP("Tabulator")},
                      {QLatin1Char('|'), QT_TR_NOOP("| (senkrechter Strich)")}};
    for (const auto &separator : separators)
        m_ui->cbxSeparator->addItem(tr(separator.text), QVariant(separator.separator));
    m_ui->cbxEncoding->addItem(QStringLiteral("UTF-8"), int(KalAddressFile::Utf8));
    m_ui->cbxEncoding->addItem(QStringLiteral("Windows-1252"), int(KalAddressFile::Windows1252));
    m_ui->cbxEncoding->addItem(QStringLiteral("UTF-16"), int(KalAddressFile::Utf16));

    m_ui->twCompanies->setColumnCount(ColumnCount);
    m_ui->twCompanies->setHorizontalHeaderLabels(
        {QString(), tr("Firma"), tr("Gewerk"), tr("Name"), tr("Stadt"), tr("Hinweis")});
    const int widths[] = {28, 200, 140, 160, 120};
    for (int column = CheckColumn; column < NoteColumn; ++column)
        m_ui->twCompanies->setColumnWidth(column, widths[column]);

    m_pbImport = m_ui->buttonBox->addButton(tr("Importieren"), QDialogButtonBox::AcceptRole);
    m_pbImport->setObjectName(QStringLiteral("pbImport"));
    m_pbImport->setIcon(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-allgemein-ok.png")));
    QPushButton *cancel = m_ui->buttonBox->button(QDialogButtonBox::Cancel);
    cancel->setObjectName(QStringLiteral("pbCancel"));
    cancel->setIcon(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-allgemein-cancel.png")));
    m_ui->gbAddressFile->hide();

    connect(m_ui->cbxSeparator, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &KalCompanyImportDialog::slotSeparatorChanged);
    connect(m_ui->cbxEncoding, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &KalCompanyImportDialog::slotEncodingChanged);
    connect(m_ui->cbHeader, &QCheckBox::toggled, this, &KalCompanyImportDialog::slotHeaderToggled);
    connect(m_ui->pbCheckAll, &QPushButton::clicked, this, &KalCompanyImportDialog::slotCheckAll);
    connect(m_ui->pbCheckNone, &QPushButton::clicked, this, &KalCompanyImportDialog::slotCheckNone);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &KalCompanyImportDialog::slotImport);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_ui->twCompanies, &QTableWidget::itemChanged, this, [this] {
        if (!m_filling)
            updateImportButton();
    });
}

KalCompanyImportDialog::~KalCompanyImportDialog() = default;

void KalCompanyImportDialog::setAddressFile(std::shared_ptr<KalAddressFile> file, const QString &displayPath)
{
    m_file = std::move(file);
    m_ui->lblSource->setText(tr("Quelle: %1").arg(displayPath));
    m_ui->gbAddressFile->show();
    m_filling = true;
    const int separator = m_ui->cbxSeparator->findData(QVariant(m_file->separator()));
    m_ui->cbxSeparator->setCurrentIndex(qMax(0, separator));
    m_ui->cbxEncoding->setCurrentIndex(qMax(0, m_ui->cbxEncoding->findData(int(m_file->encoding()))));
    m_ui->cbHeader->setChecked(m_file->hasHeader());
    m_filling = false;
    fillPreview();
    refreshCompanies();
}

void KalCompanyImportDialog::setCompanies(const QVector<KalCompanyRecord> &companies, const QString &displayPath)
{
    m_file.reset();
    m_ui->gbAddressFile->hide();
    m_ui->lblSource->setText(tr("Quelle: %1").arg(displayPath));
    m_companies = companies;
    m_duplicates = KalCompanyImport::findDuplicates(*m_project, m_companies);
    fillCompanyList();
}

void KalCompanyImportDialog::slotSeparatorChanged(int index)
{
    if (m_filling || !m_file || index < 0)
        return;
    m_file->setSeparator(m_ui->cbxSeparator->itemData(index).toChar());
    fillPreview();
    refreshCompanies();
}

void KalCompanyImportDialog::slotEncodingChanged(int index)
{
    if (m_filling || !m_file || index < 0)
        return;
    m_file->setEncoding(KalAddressFile::Encoding(m_ui->cbxEncoding->itemData(index).toInt()));
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
    const int shown = qMin(m_file->rows().size(), kPreviewRows);
    QTableWidget *preview = m_ui->twPreview;
    preview->clear();
    preview->setColumnCount(columns);
    preview->setRowCount(shown + FirstDataRow);
    preview->setHorizontalHeaderLabels(m_file->columnCaptions());
    QStringList rowLabels{tr("Feld"), tr("Hinweis")};
    for (int r = 1; r <= shown; ++r)
        rowLabels << QString::number(r);
    preview->setVerticalHeaderLabels(rowLabels);
    for (int c = 0; c < columns; ++c)
        fillPreviewColumn(c);
    preview->resizeColumnsToContents();
    for (int c = 0; c < columns; ++c)
        preview->setColumnWidth(c, qBound(110, preview->columnWidth(c), 260));
    showUnmapped();
    m_filling = false;
}

void KalCompanyImportDialog::fillPreviewColumn(int c)
{
    QTableWidget *preview = m_ui->twPreview;
    auto *combo = new QComboBox(preview);
    combo->setObjectName(QStringLiteral("cbxMapping%1").arg(c));
    combo->addItem(KalAddressFile::fieldCaption(-1), -1);
    for (int f = 0; f <= KalAddressFile::FullName; ++f)
        combo->addItem(KalAddressFile::fieldCaption(f), f);
    const QVector<int> mapping = m_file->mapping();
    combo->setCurrentIndex(qMax(0, combo->findData(c < mapping.size() ? mapping.at(c) : -1)));
    connect(combo, QOverload<int>::of(&QComboBox::activated), this, [this, c, combo](int index) {
        // Rebuilding the preview deletes this combo box: do it afterwards.
        const int field = combo->itemData(index).toInt();
        QMetaObject::invokeMethod(
            this, [this, c, field] { setColumnMapping(c, field); }, Qt::QueuedConnection);
    });
    preview->setCellWidget(FieldRow, c, combo);

    // How the column is read: given way to a business column, decided by a
    // type column, split, appended, or not taken over at all.
    auto *note = new QTableWidgetItem(m_file->columnNote(c));
    note->setToolTip(note->text());
    note->setForeground(palette().color(QPalette::Disabled, QPalette::Text));
    QFont italic = note->font();
    italic.setItalic(true);
    note->setFont(italic);
    preview->setItem(NoteRow, c, note);
    const QVector<QStringList> &rows = m_file->rows();
    for (int r = 0; r + FirstDataRow < preview->rowCount(); ++r)
        preview->setItem(r + FirstDataRow, c, new QTableWidgetItem(rows.at(r).value(c)));
}

void KalCompanyImportDialog::showUnmapped()
{
    QStringList lines;
    const QStringList unmapped = m_file->unmappedCaptions();
    if (unmapped.isEmpty())
        lines << tr("Alle Spalten mit Inhalt werden übernommen.");
    else
        lines << tr("Nicht übernommen werden die Spalten: %1").arg(unmapped.join(QStringLiteral(", ")));
    if (m_file->longRows() > 0)
        lines << tr("%n Zeile(n) haben mehr Felder als die Überschriftenzeile; die zusätzlichen Felder stehen in "
                    "eigenen Spalten.",
                    nullptr, m_file->longRows());
    const QString problem = m_file->problem();
    if (!problem.isEmpty())
        lines << problem;
    m_ui->lblUnmapped->setStyleSheet(problem.isEmpty() ? QString() : QStringLiteral("color: #b00000;"));
    m_ui->lblUnmapped->setText(lines.join(QLatin1Char('\n')));
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
    const QSet<int> duplicates(m_duplicates.begin(), m_duplicates.end());
    m_ui->twCompanies->setRowCount(m_companies.size());
    for (int r = 0; r < m_companies.size(); ++r) {
        const KalCompanyRecord &c = m_companies.at(r);
        const bool duplicate = duplicates.contains(r);
        auto *check = new QTableWidgetItem;
        check->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable | Qt::ItemIsSelectable);
        // Companies the project has already are offered but not chosen.
        check->setCheckState(duplicate || c.isEmpty() ? Qt::Unchecked : Qt::Checked);
        m_ui->twCompanies->setItem(r, CheckColumn, check);
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
            m_ui->twCompanies->setItem(r, NameColumn + i, item);
        }
        if (duplicate)
            check->setBackground(kDuplicateColor);
    }
    if (m_duplicates.isEmpty())
        m_ui->lblDuplicates->clear();
    else if (m_duplicates.size() == 1)
        m_ui->lblDuplicates->setText(tr("Eine Firma ist im Projekt bereits vorhanden (rot markiert) und wurde nicht "
                                        "ausgewählt."));
    else
        m_ui->lblDuplicates->setText(tr("%1 Firmen sind im Projekt bereits vorhanden (rot markiert) und wurden nicht "
                                        "ausgewählt.")
                                         .arg(m_duplicates.size()));
    m_filling = false;
    updateImportButton();
}

bool KalCompanyImportDialog::isChecked(int row) const
{
    const QTableWidgetItem *item = m_ui->twCompanies->item(row, CheckColumn);
    return item && item->checkState() == Qt::Checked;
}

void KalCompanyImportDialog::setChecked(int row, bool checked)
{
    if (QTableWidgetItem *item = m_ui->twCompanies->item(row, CheckColumn))
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
    for (int r = 0; r < m_ui->twCompanies->rowCount(); ++r)
        setChecked(r, true);
}

void KalCompanyImportDialog::slotCheckNone()
{
    for (int r = 0; r < m_ui->twCompanies->rowCount(); ++r)
        setChecked(r, false);
}

void KalCompanyImportDialog::updateImportButton()
{
    bool any = false;
    for (int r = 0; r < m_ui->twCompanies->rowCount() && !any; ++r)
        any = isChecked(r);
    m_pbImport->setEnabled(any && (!m_file || m_file->problem().isEmpty()));
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
    // The next file with these captions needs no corrections.
    if (m_file)
        m_file->rememberMapping();
    KalPrompt::information(tr("Info"), m_insertedIds.size() == 1
                                           ? tr("Eine Firma wurde importiert.")
                                           : tr("%1 Firmen wurden importiert.").arg(m_insertedIds.size()));
    accept();
}
