#include "KalDataImportDefectAssignDialog.h"
#include "ui_KalDataImportDefectAssignDialog.h"

#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSqlTableModel.h"
#include "core/textaids/KalDateFormat.h"

#include <QHeaderView>
#include <QIcon>
#include <QPushButton>
#include <QSettings>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTableWidget>

namespace {
const char *const kGeometryKey = "DataImportDefectAssignDialog/Geometry";
const char *const kSplitterKey = "DataImportDefectAssignDialog/Splitter";

enum Column { NumberColumn = 0, DetailsColumn = 1 };

QString dateText(const QVariant &stored)
{
    const QDate date =
        stored.type() == QVariant::Date ? stored.toDate() : QDate::fromString(stored.toString().left(10), Qt::ISODate);
    return KalDateFormat::toText(date);
}

// Label and value, the value after a blank unless the label ends the line.
QString field(const QString &label, const QString &value)
{
    if (label.endsWith(QLatin1Char('\n')))
        return label + value;
    return label + QLatin1Char(' ') + value;
}
} // namespace

KalDataImportDefectAssignDialog::KalDataImportDefectAssignDialog(KalProject *project, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::KalDataImportDefectAssignDialog>())
    , m_project(project)
{
    m_ui->setupUi(this);
    setWindowIcon(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-datenimport.ico")));
    m_ui->lblIntro->setText(
        tr("\nFür folgenden Bautagebuch-Mangel ist beim Import ein Konflikt entstanden.\nDer Mangel konnte keinem "
           "Mangel im Pellwick zugeordnet werden.\nSie können\n- den Bautagebuch-Mangel als neuen Mangel importieren "
           "oder\n- den Bautagebuch-Mangel einem im Pellwick bestehenden Mangel zuordnen,\n um diesen zu "
           "aktualisieren.\n\n"));
    m_ui->twDefects->setHorizontalHeaderLabels({tr("Mangel"), tr("Details")});
    m_ui->twDefects->horizontalHeader()->setSectionResizeMode(NumberColumn, QHeaderView::ResizeToContents);
    m_ui->twDefects->horizontalHeader()->setStretchLastSection(true);
    m_ui->twDefects->verticalHeader()->hide();
    connect(m_ui->pbNewDefect, &QPushButton::clicked, this, &KalDataImportDefectAssignDialog::slotNewDefectClicked);
    connect(m_ui->pbAssignDefect, &QPushButton::clicked, this,
            &KalDataImportDefectAssignDialog::slotAssignDefectClicked);
    // Enter must not pick an answer by accident: both are deliberate.
    m_ui->pbNewDefect->setAutoDefault(false);
    m_ui->pbAssignDefect->setAutoDefault(false);
    QSettings settings;
    restoreGeometry(settings.value(QLatin1String(kGeometryKey)).toByteArray());
    m_ui->splitter->restoreState(settings.value(QLatin1String(kSplitterKey)).toByteArray());
}

KalDataImportDefectAssignDialog::~KalDataImportDefectAssignDialog() = default;

QString KalDataImportDefectAssignDialog::journalDefectText(const JournalDefect &defect)
{
    QString text = field(tr("Bericht:"), defect.reportNumber);
    text += field(tr("\nBeschreibung:\n"), defect.description);
    text += field(tr("\nRaumname:"), defect.roomName);
    text += field(tr("\nRaumbuch-Nr.:"), defect.roombookNumber);
    text += field(tr("\nFirma:"), defect.company);
    text += field(tr("\nFrist:"), KalDateFormat::toText(defect.correctionDate));
    text += field(tr("\nAnzahl Fotos:"), QString::number(defect.photoCount));
    return text;
}

QString KalDataImportDefectAssignDialog::projectDefectDetails(qint64 defectId) const
{
    QSqlQuery query(m_project->database());
    query.prepare(QStringLiteral("SELECT description, company_id, type, user_id, creation_date, roomname, "
                                 "roombook_number, plan_info_id, image_cnt, correction_instruction, priority, "
                                 "correction_date, deadline_1, deadline_2, status_id, reduction "
                                 "FROM defect WHERE id = :id"));
    query.bindValue(QStringLiteral(":id"), defectId);
    if (!query.exec() || !query.next())
        return QString();
    const QSqlRecord r = query.record();
    auto text = [&r](const char *column) { return r.value(QLatin1String(column)).toString(); };
    auto id = [&r](const char *column) { return r.value(QLatin1String(column)).toLongLong(); };
    // Names of companies, plans and statuses as the defect list shows them.
    KalSqlTableModel *defects = m_project->model(QStringLiteral("defect"));
    auto lookup = [defects](int role, qint64 key) { return defects ? defects->lookupText(role, key) : QString(); };

    QString status = lookup(KalSqlTableModel::StatusRole, id("status_id"));
    if (id("reduction") != 0)
        status += tr(" - mit Minderung");
    QString details = field(tr("Beschreibung:\n"), text("description"));
    details += field(tr("\nFirma:"), lookup(KalSqlTableModel::CompanyRole, id("company_id")));
    details += field(tr("\nTyp:"), text("type"));
    details += field(tr("\nAutor:"), text("user_id"));
    details += field(tr("\nErfasst am:"), dateText(r.value(QStringLiteral("creation_date"))));
    details += field(tr("\nRaumname:"), text("roomname"));
    details += field(tr("\nRaumbuch-Nr.:"), text("roombook_number"));
    details += field(tr("\nPlan:"), lookup(KalSqlTableModel::PlanRole, id("plan_info_id")));
    details += field(tr("\nAnzahl Fotos:"), QString::number(id("image_cnt")));
    details += field(tr("\nBeseitigungsanweisung:\n"), text("correction_instruction"));
    details += field(tr("\nPriorität:"), text("priority"));
    details += field(tr("\nFrist:"), dateText(r.value(QStringLiteral("correction_date"))));
    details += field(tr("\n1.Nachfrist:"), dateText(r.value(QStringLiteral("deadline_1"))));
    details += field(tr("\n2.Nachfrist:"), dateText(r.value(QStringLiteral("deadline_2"))));
    details += field(tr("\nStatus:"), status);
    return details;
}

void KalDataImportDefectAssignDialog::setConflict(const JournalDefect &defect, const QList<qint64> &candidates)
{
    m_assignedId = -1;
    m_ui->teJournalDefect->setPlainText(journalDefectText(defect));
    QTableWidget *table = m_ui->twDefects;
    table->clearContents();
    table->setRowCount(0);
    QSqlQuery numbers(m_project->database());
    numbers.prepare(QStringLiteral("SELECT number FROM defect WHERE id = :id"));
    for (const qint64 id : candidates) {
        numbers.bindValue(QStringLiteral(":id"), id);
        const QString number = numbers.exec() && numbers.next() ? numbers.value(0).toString() : QString();
        const int row = table->rowCount();
        table->insertRow(row);
        auto *numberItem = new QTableWidgetItem(number);
        numberItem->setData(Qt::UserRole, id);
        numberItem->setTextAlignment(Qt::AlignLeft | Qt::AlignTop);
        table->setItem(row, NumberColumn, numberItem);
        auto *detailsItem = new QTableWidgetItem(projectDefectDetails(id));
        detailsItem->setTextAlignment(Qt::AlignLeft | Qt::AlignTop);
        table->setItem(row, DetailsColumn, detailsItem);
    }
    table->resizeRowsToContents();
    table->clearSelection();
    table->setCurrentItem(nullptr);
}

qint64 KalDataImportDefectAssignDialog::assign(const JournalDefect &defect, const QList<qint64> &candidates)
{
    setConflict(defect, candidates);
    exec();
    return m_assignedId;
}

qint64 KalDataImportDefectAssignDialog::selectedDefectId() const
{
    const QList<QTableWidgetItem *> selected = m_ui->twDefects->selectedItems();
    if (selected.isEmpty())
        return -1;
    QTableWidgetItem *numberItem = m_ui->twDefects->item(selected.first()->row(), NumberColumn);
    return numberItem ? numberItem->data(Qt::UserRole).toLongLong() : -1;
}

void KalDataImportDefectAssignDialog::slotNewDefectClicked()
{
    if (selectedDefectId() >= 0) {
        KalPrompt::Message m;
        m.icon = KalPrompt::Question;
        m.title = tr("Neuer Mangel");
        m.text = tr("Sie haben einen Mangel ausgewählt.\nSoll der Bautagebuch-Mangel trotzdem als ein neuer Mangel "
                    "importiert werden?");
        m.buttons = {{KalPrompt::AcceptCustom, tr("Als neuen Mangel importieren")}, {KalPrompt::Cancel, QString()}};
        if (KalPrompt::ask(m) != 0)
            return;
    }
    m_assignedId = -1;
    accept();
}

void KalDataImportDefectAssignDialog::slotAssignDefectClicked()
{
    const qint64 id = selectedDefectId();
    if (id < 0) {
        KalPrompt::Message m;
        m.icon = KalPrompt::Information;
        m.title = tr("Mangel zuweisen");
        m.text = tr("Sie haben keinen Mangel ausgewählt.");
        m.buttons = {{KalPrompt::RejectCustom, tr("Schließen")}};
        KalPrompt::ask(m);
        return;
    }
    m_assignedId = id;
    accept();
}

void KalDataImportDefectAssignDialog::reject()
{
    // Escape and the window's close button leave the question open.
}

void KalDataImportDefectAssignDialog::done(int result)
{
    QSettings settings;
    settings.setValue(QLatin1String(kGeometryKey), saveGeometry());
    settings.setValue(QLatin1String(kSplitterKey), m_ui->splitter->saveState());
    QDialog::done(result);
}
