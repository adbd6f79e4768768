#include "KalCompleterDialog.h"
#include "ui_KalCompleterDialog.h"

#include "core/project/KalPrompt.h"
#include "core/textaids/KalCompleterModel.h"
#include "core/textaids/KalCompleterStringListModel.h"
#include "gui/textaids/KalCompleter.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QListView>
#include <QPushButton>
#include <QSettings>
#include <QTableView>

KalCompleterDialog::KalCompleterDialog(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::KalCompleterDialog>())
{
    m_ui->setupUi(this);

    m_completers = new KalCompleterModel(this);
    m_values = new KalCompleterStringListModel(this);
    m_ui->tvCompleters->setModel(m_completers);
    m_ui->tvCompleters->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_ui->tvCompleters->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    m_ui->lvValues->setModel(m_values);

    connect(m_ui->pbAll, &QPushButton::clicked, this, &KalCompleterDialog::slotAllClicked);
    connect(m_ui->pbNone, &QPushButton::clicked, this, &KalCompleterDialog::slotNoneClicked);
    connect(m_ui->pbAddEntry, &QPushButton::clicked, this, &KalCompleterDialog::slotAddEntryClicked);
    connect(m_ui->pbDeleteEntry, &QPushButton::clicked, this, &KalCompleterDialog::slotDeleteEntryClicked);
    connect(m_ui->pbDeleteAll, &QPushButton::clicked, this, &KalCompleterDialog::slotDeleteAllClicked);
    connect(m_ui->pbReset, &QPushButton::clicked, this, &KalCompleterDialog::slotResetClicked);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &KalCompleterDialog::accept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &KalCompleterDialog::reject);

    connect(m_ui->tvCompleters->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &current) { showValuesOf(current.isValid() ? current.row() : -1); });
    connect(m_values, &QAbstractItemModel::dataChanged, this, &KalCompleterDialog::storeValues);
    connect(m_values, &QAbstractItemModel::rowsInserted, this, &KalCompleterDialog::storeValues);
    connect(m_values, &QAbstractItemModel::rowsRemoved, this, &KalCompleterDialog::storeValues);

    // Wide enough for every field name beside a value list as wide, and
    // high enough for a dozen rows.
    const QFontMetrics metrics(font());
    int widest = 0;
    for (int row = 0; row < m_completers->rowCount(); ++row)
        widest = qMax(widest, metrics.horizontalAdvance(m_completers->index(row, 0).data().toString()));
    setMinimumSize(2 * widest + metrics.averageCharWidth() * 40, metrics.height() * 26);

    QSettings settings;
    restoreGeometry(settings.value(QStringLiteral("CompleterDialog/Geometry")).toByteArray());
    m_ui->tvCompleters->horizontalHeader()->restoreState(
        settings.value(QStringLiteral("CompleterDialog/HeaderFieldsV")).toByteArray());

    if (m_completers->rowCount() > 0)
        m_ui->tvCompleters->selectRow(0);
}

KalCompleterDialog::~KalCompleterDialog() = default;

QTableView *KalCompleterDialog::completerView() const
{
    return m_ui->tvCompleters;
}

QListView *KalCompleterDialog::valuesView() const
{
    return m_ui->lvValues;
}

bool KalCompleterDialog::selectCompleter(const QString &tableId, const QString &columnId)
{
    const int row = m_completers->rowOf(tableId, columnId);
    if (row < 0)
        return false;
    m_ui->tvCompleters->selectRow(row);
    showValuesOf(row);
    return true;
}

bool KalCompleterDialog::isModified() const
{
    return m_completers->isModified();
}

void KalCompleterDialog::showValuesOf(int row)
{
    m_currentRow = row;
    m_loadingValues = true;
    m_values->setStringList(row >= 0 ? m_completers->values(row) : QStringList());
    m_loadingValues = false;
}

void KalCompleterDialog::storeValues()
{
    if (m_loadingValues || m_currentRow < 0)
        return;
    m_completers->setValues(m_currentRow, m_values->stringList());
}

void KalCompleterDialog::slotAllClicked()
{
    m_completers->setAllEnabled(true);
}

void KalCompleterDialog::slotNoneClicked()
{
    m_completers->setAllEnabled(false);
}

void KalCompleterDialog::slotAddEntryClicked()
{
    if (m_currentRow < 0)
        return;
    const int row = m_values->rowCount();
    m_values->insertRows(row, 1);
    const QModelIndex index = m_values->index(row);
    m_values->setData(index, tr("<Neuer Eintrag>"));
    m_ui->lvValues->setCurrentIndex(index);
    if (m_ui->lvValues->isVisible())
        m_ui->lvValues->edit(index);
}

void KalCompleterDialog::slotDeleteEntryClicked()
{
    const QModelIndex index = m_ui->lvValues->currentIndex();
    if (index.isValid())
        m_values->removeRows(index.row(), 1);
}

void KalCompleterDialog::slotDeleteAllClicked()
{
    if (m_values->rowCount() > 0)
        m_values->removeRows(0, m_values->rowCount());
}

void KalCompleterDialog::slotResetClicked()
{
    KalPrompt::Message message;
    message.icon = KalPrompt::Question;
    message.title = tr("Alle Completer zurücksetzen");
    message.text = tr("Alle Completer werden auf den Auslieferungszustand zurückgesetzt.\nAlle eingegebenen "
                      "Textvorschläge werden dabei gelöscht!");
    message.buttons = {{KalPrompt::Ok, {}}, {KalPrompt::Cancel, {}}};
    message.defaultButton = 1;
    message.escapeButton = 1;
    if (KalPrompt::ask(message) != 0)
        return;
    const int row = m_currentRow;
    KalCompleterStore::resetAll();
    m_completers->load();
    KalCompleter::reloadAll();
    if (row >= 0 && row < m_completers->rowCount()) {
        m_ui->tvCompleters->selectRow(row);
        showValuesOf(row);
    } else {
        showValuesOf(-1);
    }
}

void KalCompleterDialog::accept()
{
    m_completers->save();
    KalCompleter::reloadAll();
    QDialog::accept();
}

void KalCompleterDialog::reject()
{
    if (m_completers->isModified() &&
        !KalPrompt::yesNo(tr("Änderungen verwerfen"), tr("Sollen die Änderungen verworfen werden?")))
        return;
    QDialog::reject();
}

void KalCompleterDialog::done(int result)
{
    QSettings settings;
    settings.setValue(QStringLiteral("CompleterDialog/Geometry"), saveGeometry());
    settings.setValue(QStringLiteral("CompleterDialog/HeaderFieldsV"),
                      m_ui->tvCompleters->horizontalHeader()->saveState());
    QDialog::done(result);
}
