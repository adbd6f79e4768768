#include "KalFilterDialog.h"
#include "ui_KalFilterDialog.h"

#include "core/project/KalEnvironment.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "gui/reports/KalPrintModeSelectDialog.h"
#include "gui/reports/KalPrintTargets.h"

#include <QSet>
#include <QSettings>
#include <QStandardItemModel>

using State = KalDefectFilterState;

namespace {

const char *const GeometryKey = "FilterDialog/Geometry";
const char *const DontShowKey = "Messages/dontShowFilterUncheckMsg";
// Set by start-up: the second-click notice may be shown once per program start.
const char *const ShowOnceKey = "Messages/showFilterUncheckMsgOnce";

} // namespace

KalFilterDialog::KalFilterDialog(KalProject *project, QWidget *parent)
    : QDialog(parent)
    , m_project(project)
    , m_filter(*project)
    , m_ui(std::make_unique<Ui::KalFilterDialog>())
    , m_listModel(new QStandardItemModel(this))
{
    m_ui->setupUi(this);
    m_ui->lvSelectionList->setModel(m_listModel);
    m_ui->lvSelectionList->setEditTriggers(QAbstractItemView::NoEditTriggers);

    for (int list = 0; list < State::ListCount; ++list)
        connect(listBox(State::List(list)), &QCheckBox::clicked, this,
                [this, list](bool checked) { slotListFilterClicked(list, checked); });
    connect(m_listModel, &QStandardItemModel::itemChanged, this, &KalFilterDialog::slotSelectionListItemChanged);
    connect(m_ui->pbSelectionListCheckAll, &QPushButton::clicked, this,
            &KalFilterDialog::slotSelectionListCheckAllClicked);
    connect(m_ui->pbSelectionListUncheckAll, &QPushButton::clicked, this,
            &KalFilterDialog::slotSelectionListUncheckAllClicked);
    connect(m_ui->pbSelectionListReverseSeletion, &QPushButton::clicked, this,
            &KalFilterDialog::slotSelectionListReverseSeletionClicked);
    connect(m_ui->deCreationDateFrom, &QLineEdit::editingFinished, this,
            &KalFilterDialog::slotCreationDateEditingFinished);
    connect(m_ui->deCreationDateTo, &QLineEdit::editingFinished, this,
            &KalFilterDialog::slotCreationDateEditingFinished);
    connect(m_ui->pbResetFilters, &QPushButton::clicked, this, &KalFilterDialog::slotResetFiltersClicked);
    connect(m_ui->pbSave, &QPushButton::clicked, this, &KalFilterDialog::slotSaveClicked);
    connect(m_ui->pbPrint, &QPushButton::clicked, this, &KalFilterDialog::slotPrintClicked);
    connect(m_ui->pbPrintPreview, &QPushButton::clicked, this, &KalFilterDialog::slotPrintPreviewClicked);
    connect(m_ui->pbPDF, &QPushButton::clicked, this, &KalFilterDialog::slotPDFClicked);
    connect(m_ui->pbPDFPerCompany, &QPushButton::clicked, this, &KalFilterDialog::slotPDFPerCompanyClicked);
    connect(m_ui->pbCancel, &QPushButton::clicked, this, &QDialog::reject);

    applyState(m_filter.restore());
    restoreGeometry(QSettings().value(QLatin1String(GeometryKey)).toByteArray());
}

KalFilterDialog::~KalFilterDialog() = default;

QCheckBox *KalFilterDialog::listBox(State::List list) const
{
    QCheckBox *const boxes[State::ListCount] = {m_ui->cbCompany,  m_ui->cbStatus,     m_ui->cbType,
                                                m_ui->cbRoomname, m_ui->cbRoombookNo, m_ui->cbPriority};
    return boxes[list];
}

KalDefectFilterState KalFilterDialog::state() const
{
    State s = m_lists;
    s.creationDateFilter = m_ui->cbCreationDate->isChecked();
    s.creationDateFrom = m_ui->deCreationDateFrom->date();
    s.creationDateTo = m_ui->deCreationDateTo->date();
    s.deadlineFilter = m_ui->cbDeadline->isChecked();
    s.deadlineDate = m_ui->deDeadline->date();
    s.defectsWithoutCompany = m_ui->cbDefectsWithoutCompany->isChecked();
    for (int list = 0; list < State::ListCount; ++list)
        s.listFilter[list] = listBox(State::List(list))->isChecked();
    s.reductionFilter = m_ui->cbReduction->isChecked();
    s.withReduction = !m_ui->rbWithoutReduction->isChecked();
    const QRadioButton *sorts[] = {m_ui->rbSortByNumber, m_ui->rbSortByCompany, m_ui->rbSortByCreationDate,
                                   m_ui->rbSortByDeadline};
    for (int i = 0; i < 4; ++i) {
        if (sorts[i]->isChecked())
            s.sort = State::Sort(i);
    }
    s.ascending = !m_ui->rbSortDesc->isChecked();
    s.printPhotosInList = m_ui->cbPrintPhotosInList->isChecked();
    s.printPhotosAsAnnex = m_ui->cbPrintPhotosAsAnnex->isChecked();
    s.printPlansAsAnnex = m_ui->cbPrintPlansAsAnnex->isChecked();
    return s;
}

void KalFilterDialog::applyState(const State &s)
{
    m_lists = s;
    m_ui->cbCreationDate->setChecked(s.creationDateFilter);
    m_ui->deCreationDateFrom->setDate(s.creationDateFrom);
    m_ui->deCreationDateTo->setDate(s.creationDateTo);
    m_ui->cbDeadline->setChecked(s.deadlineFilter);
    m_ui->deDeadline->setDate(s.deadlineDate);
    m_ui->cbDefectsWithoutCompany->setChecked(s.defectsWithoutCompany);
    for (int list = 0; list < State::ListCount; ++list)
        listBox(State::List(list))->setChecked(s.listFilter[list]);
    m_ui->cbReduction->setChecked(s.reductionFilter);
    (s.withReduction ? m_ui->rbWithReduction : m_ui->rbWithoutReduction)->setChecked(true);
    QRadioButton *sorts[] = {m_ui->rbSortByNumber, m_ui->rbSortByCompany, m_ui->rbSortByCreationDate,
                             m_ui->rbSortByDeadline};
    sorts[s.sort]->setChecked(true);
    (s.ascending ? m_ui->rbSortAsc : m_ui->rbSortDesc)->setChecked(true);
    m_ui->cbPrintPhotosInList->setChecked(s.printPhotosInList);
    m_ui->cbPrintPhotosAsAnnex->setChecked(s.printPhotosAsAnnex);
    m_ui->cbPrintPlansAsAnnex->setChecked(s.printPlansAsAnnex);
    showList(-1);
}

void KalFilterDialog::showList(int list)
{
    m_shownList = list;
    const QSignalBlocker blocker(m_listModel);
    m_listModel->clear();
    if (list >= 0) {
        QSet<QString> ticked;
        for (const QVariant &value : m_lists.ticked[list])
            ticked.insert(value.toString());
        for (const KalDefectFilter::Item &entry : m_filter.values(State::List(list))) {
            auto *item = new QStandardItem(entry.text);
            item->setData(entry.value, Qt::UserRole);
            item->setCheckable(true);
            item->setCheckState(ticked.contains(entry.value.toString()) ? Qt::Checked : Qt::Unchecked);
            m_listModel->appendRow(item);
        }
    }
    for (QPushButton *button :
         {m_ui->pbSelectionListCheckAll, m_ui->pbSelectionListUncheckAll, m_ui->pbSelectionListReverseSeletion})
        button->setEnabled(list >= 0);
    m_ui->lvSelectionList->reset();
}

void KalFilterDialog::slotListFilterClicked(int list, bool checked)
{
    if (checked) {
        showList(list);
        return;
    }
    if (m_shownList != list) {
        // A ticked box whose list is not in view: the first click shows the
        // list, only the second removes the tick.
        listBox(State::List(list))->setChecked(true);
        showList(list);
        explainSecondClick();
        return;
    }
    showList(-1);
}

void KalFilterDialog::explainSecondClick()
{
    QSettings settings;
    if (settings.value(QLatin1String(DontShowKey), false).toBool() ||
        !settings.value(QLatin1String(ShowOnceKey), true).toBool())
        return;
    bool dontShow = false;
    KalPrompt::Message m;
    m.icon = KalPrompt::Information;
    m.title = KalDefectFilter::title();
    m.iconPath = KalDefectFilter::iconPath();
    m.text = tr("Möchten Sie das Häkchen entfernen?\n\nDann klicken Sie bitte nochmals. Beim ersten Klick wird die "
                "Auswahl-Liste des Filters geladen, erst beim zweiten Klick wird das Häkchen entfernt.\n");
    m.checkBoxText = tr("Diese Meldung nicht mehr anzeigen");
    m.checkBoxChecked = &dontShow;
    KalPrompt::ask(m);
    settings.setValue(QLatin1String(DontShowKey), dontShow);
    settings.setValue(QLatin1String(ShowOnceKey), false);
}

void KalFilterDialog::slotSelectionListItemChanged(QStandardItem *)
{
    if (m_shownList < 0)
        return;
    QVariantList ticked;
    for (int row = 0; row < m_listModel->rowCount(); ++row) {
        const QStandardItem *item = m_listModel->item(row);
        if (item->checkState() == Qt::Checked)
            ticked.append(item->data(Qt::UserRole));
    }
    m_lists.ticked[m_shownList] = ticked;
}

void KalFilterDialog::setAllItems(const std::function<Qt::CheckState(Qt::CheckState)> &change)
{
    {
        // One update of the ticked list, not one per entry.
        const QSignalBlocker blocker(m_listModel);
        for (int row = 0; row < m_listModel->rowCount(); ++row) {
            QStandardItem *item = m_listModel->item(row);
            item->setCheckState(change(item->checkState()));
        }
    }
    slotSelectionListItemChanged(nullptr);
    m_ui->lvSelectionList->viewport()->update();
}

void KalFilterDialog::slotSelectionListCheckAllClicked()
{
    setAllItems([](Qt::CheckState) { return Qt::Checked; });
}

void KalFilterDialog::slotSelectionListUncheckAllClicked()
{
    setAllItems([](Qt::CheckState) { return Qt::Unchecked; });
}

void KalFilterDialog::slotSelectionListReverseSeletionClicked()
{
    setAllItems([](Qt::CheckState s) { return s == Qt::Checked ? Qt::Unchecked : Qt::Checked; });
}

void KalFilterDialog::slotCreationDateEditingFinished()
{
    const QDate from = m_ui->deCreationDateFrom->date();
    const QDate to = m_ui->deCreationDateTo->date();
    if (from.isValid() && to.isValid())
        KalDefectFilter::warnIfReversed(from, to);
}

void KalFilterDialog::slotResetFiltersClicked()
{
    KalPrompt::Message m;
    m.icon = KalPrompt::Question;
    m.title = KalDefectFilter::title();
    m.text = tr("Wollen Sie wirklich alle Filter, Daten und Auswahllisten zurücksetzen?");
    m.buttons = {{KalPrompt::AcceptCustom, tr("Fortfahren")}, {KalPrompt::Cancel, QString()}};
    m.escapeButton = 1;
    if (KalPrompt::ask(m) != 0)
        return;
    // Filters, lists and dates go back; the order and the picture options stay.
    const State current = state();
    State reset = State::defaults(KalEnvironment::now().date());
    reset.sort = current.sort;
    reset.ascending = current.ascending;
    reset.printPhotosInList = current.printPhotosInList;
    reset.printPhotosAsAnnex = current.printPhotosAsAnnex;
    reset.printPlansAsAnnex = current.printPlansAsAnnex;
    applyState(reset);
}

bool KalFilterDialog::datesAccepted()
{
    // A date text that is not a date is refused with its own message.
    for (KalDateEdit *date : {m_ui->deCreationDateFrom, m_ui->deCreationDateTo, m_ui->deDeadline}) {
        if (!date->checkInput())
            return false;
    }
    return true;
}

void KalFilterDialog::slotSaveClicked()
{
    if (datesAccepted() && m_filter.save(state()))
        accept();
}

bool KalFilterDialog::prepareList(QVector<qint64> *ids, KalPrintOptions *options)
{
    if (!datesAccepted())
        return false;
    const State s = state();
    const KalDefectFilterResult result = m_filter.select(s);
    if (result.outcome != KalDefectFilterResult::Listed || !m_filter.save(s))
        return false;
    KalPrintOptions::Layout layout = KalPrintOptions::Compact;
    if (m_layout)
        layout = *m_layout;
    else if (!KalPrintModeSelectDialog::choose(this, &layout))
        return false;
    *ids = result.ids();
    *options = KalPrintOptions::fromSettings();
    options->layout = layout;
    options->photosInList = s.printPhotosInList;
    options->photoAnnex = s.printPhotosAsAnnex;
    options->planAnnex = s.printPlansAsAnnex;
    return true;
}

void KalFilterDialog::printTo(int target)
{
    QVector<qint64> ids;
    KalPrintOptions options;
    if (!prepareList(&ids, &options))
        return;
    KalPrintTargets targets(m_project->database(), ids, options);
    if (target < 0)
        targets.runPerCompany(this);
    else
        targets.run(this, KalPrintTargets::Target(target));
}

void KalFilterDialog::slotPrintClicked()
{
    printTo(KalPrintTargets::Print);
}

void KalFilterDialog::slotPrintPreviewClicked()
{
    printTo(KalPrintTargets::Preview);
}

void KalFilterDialog::slotPDFClicked()
{
    printTo(KalPrintTargets::Pdf);
}

void KalFilterDialog::slotPDFPerCompanyClicked()
{
    printTo(-1);
}

void KalFilterDialog::done(int result)
{
    for (KalDateEdit *date : {m_ui->deCreationDateFrom, m_ui->deCreationDateTo, m_ui->deDeadline})
        date->discardWarning();
    QSettings().setValue(QLatin1String(GeometryKey), saveGeometry());
    QDialog::done(result);
}
