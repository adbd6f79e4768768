#include "KalCompleterDialog.h"

#include "core/project/KalPrompt.h"
#include "core/textaids/KalCompleterModel.h"
#include "core/textaids/KalCompleterStringListModel.h"
#include "gui/textaids/KalCompleter.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QListView>
#include <QPushButton>
#include <QSettings>
#include <QTableView>
#include <QVBoxLayout>

namespace {
QPushButton *makeButton(QWidget *parent, const QString &name, const QString &text)
{
    auto *button = new QPushButton(text, parent);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}
} // namespace

KalCompleterDialog::KalCompleterDialog(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("KalCompleterDialog"));
    setWindowTitle(tr("Autovervollständigen bearbeiten"));

    m_completers = new KalCompleterModel(this);
    m_values = new KalCompleterStringListModel(this);

    m_tvCompleters = new QTableView(this);
    m_tvCompleters->setObjectName(QStringLiteral("tvCompleters"));
    m_tvCompleters->setModel(m_completers);
    m_tvCompleters->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_tvCompleters->setSelectionMode(QAbstractItemView::SingleSelection);
    m_tvCompleters->verticalHeader()->hide();
    m_tvCompleters->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_tvCompleters->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);

    m_lvValues = new QListView(this);
    m_lvValues->setObjectName(QStringLiteral("lvValues"));
    m_lvValues->setModel(m_values);
    m_lvValues->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                                QAbstractItemView::SelectedClicked);

    auto *listButtons = new QHBoxLayout;
    QPushButton *all = makeButton(this, QStringLiteral("pbAll"), tr("Alle"));
    QPushButton *none = makeButton(this, QStringLiteral("pbNone"), tr("Keine"));
    listButtons->addWidget(all);
    listButtons->addWidget(none);
    listButtons->addStretch();

    auto *valueButtons = new QHBoxLayout;
    QPushButton *add = makeButton(this, QStringLiteral("pbAddEntry"), tr("Eintrag hinzufügen"));
    QPushButton *remove = makeButton(this, QStringLiteral("pbDeleteEntry"), tr("Eintrag löschen"));
    QPushButton *removeAll = makeButton(this, QStringLiteral("pbDeleteAll"), tr("Alles löschen"));
    valueButtons->addWidget(add);
    valueButtons->addWidget(remove);
    valueButtons->addWidget(removeAll);
    valueButtons->addStretch();

    auto *left = new QVBoxLayout;
    left->addWidget(m_tvCompleters);
    left->addLayout(listButtons);
    auto *right = new QVBoxLayout;
    right->addWidget(m_lvValues);
    right->addLayout(valueButtons);
    auto *lists = new QHBoxLayout;
    lists->addLayout(left, 1);
    lists->addLayout(right, 1);

    auto *box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    box->setObjectName(QStringLiteral("buttonBox"));
    QPushButton *reset = makeButton(this, QStringLiteral("pbReset"), tr("Zurücksetzen"));
    box->addButton(reset, QDialogButtonBox::ResetRole);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(lists);
    layout->addWidget(box);

    connect(all, &QPushButton::clicked, this, &KalCompleterDialog::on_pbAll_clicked);
    connect(none, &QPushButton::clicked, this, &KalCompleterDialog::on_pbNone_clicked);
    connect(add, &QPushButton::clicked, this, &KalCompleterDialog::on_pbAddEntry_clicked);
    connect(remove, &QPushButton::clicked, this, &KalCompleterDialog::on_pbDeleteEntry_clicked);
    connect(removeAll, &QPushButton::clicked, this, &KalCompleterDialog::on_pbDeleteAll_clicked);
    connect(reset, &QPushButton::clicked, this, &KalCompleterDialog::on_pbReset_clicked);
    connect(box, &QDialogButtonBox::accepted, this, &KalCompleterDialog::accept);
    connect(box, &QDialogButtonBox::rejected, this, &KalCompleterDialog::reject);

    connect(m_tvCompleters->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
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
    m_tvCompleters->horizontalHeader()->restoreState(
        settings.value(QStringLiteral("CompleterDialog/HeaderFieldsV")).toByteArray());

    if (m_completers->rowCount() > 0)
        m_tvCompleters->selectRow(0);
}

bool KalCompleterDialog::selectCompleter(const QString &tableId, const QString &columnId)
{
    const int row = m_completers->rowOf(tableId, columnId);
    if (row < 0)
        return false;
    m_tvCompleters->selectRow(row);
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

void KalCompleterDialog::on_pbAll_clicked()
{
    m_completers->setAllEnabled(true);
}

void KalCompleterDialog::on_pbNone_clicked()
{
    m_completers->setAllEnabled(false);
}

void KalCompleterDialog::on_pbAddEntry_clicked()
{
    if (m_currentRow < 0)
        return;
    const int row = m_values->rowCount();
    m_values->insertRows(row, 1);
    const QModelIndex index = m_values->index(row);
    m_values->setData(index, tr("<Neuer Eintrag>"));
    m_lvValues->setCurrentIndex(index);
    if (m_lvValues->isVisible())
        m_lvValues->edit(index);
}

void KalCompleterDialog::on_pbDeleteEntry_clicked()
{
    const QModelIndex index = m_lvValues->currentIndex();
    if (index.isValid())
        m_values->removeRows(index.row(), 1);
}

void KalCompleterDialog::on_pbDeleteAll_clicked()
{
    if (m_values->rowCount() > 0)
        m_values->removeRows(0, m_values->rowCount());
}

void KalCompleterDialog::on_pbReset_clicked()
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
        m_tvCompleters->selectRow(row);
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
    settings.setValue(QStringLiteral("CompleterDialog/HeaderFieldsV"), m_tvCompleters->horizontalHeader()->saveState());
    QDialog::done(result);
}
