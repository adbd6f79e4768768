#include "KalPhotoInfoDialog.h"
#include "ui_KalPhotoInfoDialog.h"

#include "core/photos/KalPhotos.h"
#include "core/photos/KalPictureStore.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSettings.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/photos/KalSettingsImageSizeDialog.h"
#include "gui/widgets/KalFileDialog.h"
#include "gui/widgets/KalTableView.h"

#include <QAction>
#include <QDataStream>
#include <QFileInfo>
#include <QGraphicsPixmapItem>
#include <QGraphicsScene>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QSettings>
#include <QSortFilterProxyModel>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QToolButton>
#include <QUrl>

#include <algorithm>
#include <functional>

namespace {

const char *const kGeometryKey = "PhotoInfoDialog/Geometry";
const char *const kPhotoIdsMime = "application/x-pellwick-photo-info-ids";

// The defect's photos in `pos` order. Rows can be dragged to a new place and
// image files dropped in; both only ever copy, so the view never removes the
// dragged rows from the model by itself.
class PhotoListProxy : public QSortFilterProxyModel
{
public:
    std::function<void(qint64 id, int newIndex)> moveTo;
    std::function<void(const QStringList &files)> addFiles;
    std::function<qint64(int row)> idOfRow;

    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        const Qt::ItemFlags base = QSortFilterProxyModel::flags(index);
        return index.isValid() ? base | Qt::ItemIsDragEnabled : base | Qt::ItemIsDropEnabled;
    }
    Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }
    Qt::DropActions supportedDropActions() const override { return Qt::CopyAction; }
    QStringList mimeTypes() const override { return {QLatin1String(kPhotoIdsMime), QStringLiteral("text/uri-list")}; }

    QMimeData *mimeData(const QModelIndexList &indexes) const override
    {
        QList<qint64> ids;
        for (const QModelIndex &index : indexes) {
            const qint64 id = idOfRow(index.row());
            if (id >= 0 && !ids.contains(id))
                ids.append(id);
        }
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        out << ids;
        auto *data = new QMimeData;
        data->setData(QLatin1String(kPhotoIdsMime), bytes);
        return data;
    }

    static QStringList localFiles(const QMimeData *data)
    {
        QStringList files;
        for (const QUrl &url : data->urls()) {
            if (url.isLocalFile())
                files << url.toLocalFile();
        }
        return files;
    }

    bool canDropMimeData(const QMimeData *data, Qt::DropAction, int, int, const QModelIndex &) const override
    {
        return data->hasFormat(QLatin1String(kPhotoIdsMime)) || !localFiles(data).isEmpty();
    }

    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override
    {
        if (!canDropMimeData(data, action, row, column, parent))
            return false;
        if (!data->hasFormat(QLatin1String(kPhotoIdsMime))) {
            addFiles(localFiles(data));
            return true;
        }
        QList<qint64> ids;
        QDataStream in(data->data(QLatin1String(kPhotoIdsMime)));
        in >> ids;
        if (ids.size() != 1)
            return false; // only one photo moves at a time
        int from = -1;
        for (int r = 0; r < rowCount(); ++r) {
            if (idOfRow(r) == ids.first())
                from = r;
        }
        if (from < 0)
            return false;
        // Dropped on a photo: take its place; between photos: go there.
        int target = parent.isValid() ? parent.row() : (row < 0 ? rowCount() : row);
        if (!parent.isValid() && from < target)
            --target;
        target = qBound(0, target, rowCount() - 1);
        if (target != from)
            moveTo(ids.first(), target);
        return true;
    }
};

} // namespace

KalPhotoInfoDialog::KalPhotoInfoDialog(KalProject *project, qint64 defectId, QWidget *parent)
    : QDialog(parent)
    , m_project(project)
    , m_defectId(defectId)
    , m_model(project ? project->model(QStringLiteral("photo_info")) : nullptr)
    , m_ui(std::make_unique<Ui::KalPhotoInfoDialog>())
{
    m_ui->setupUi(this);
    setUpPreview();
    if (m_model)
        setUpList();
    else
        setEnabled(false);

    connect(m_ui->pbAddImages, &QPushButton::clicked, this, &KalPhotoInfoDialog::slotAddImages);
    connect(m_ui->pbRemoveImages, &QPushButton::clicked, this, &KalPhotoInfoDialog::slotRemoveImages);
    connect(m_ui->pbImageSize, &QPushButton::clicked, this, &KalPhotoInfoDialog::slotImageSize);
    connect(m_ui->pbStartPhotoEditor, &QPushButton::clicked, this, &KalPhotoInfoDialog::slotStartPhotoEditor);
    connect(m_ui->pbClose, &QPushButton::clicked, this, &QDialog::accept);

    const QByteArray geometry = QSettings().value(QLatin1String(kGeometryKey)).toByteArray();
    if (!geometry.isEmpty())
        restoreGeometry(geometry);
    updateButtons();
}

KalPhotoInfoDialog::~KalPhotoInfoDialog()
{
    restoreModel();
}

void KalPhotoInfoDialog::setUpList()
{
    m_previousFilter = m_model->filter();
    m_model->setFilter(QStringLiteral("defect_id = ") + QString::number(m_defectId));

    auto *proxy = new PhotoListProxy;
    proxy->setParent(this);
    proxy->idOfRow = [this](int row) {
        const QModelIndex source = m_proxy->mapToSource(m_proxy->index(row, 0));
        return m_model->data(m_model->index(source.row(), m_model->idColumn()), Qt::EditRole).toLongLong();
    };
    proxy->moveTo = [this](qint64 id, int newIndex) { moveRow(id, newIndex); };
    // Queued: the drop must finish before the list is read anew.
    proxy->addFiles = [this](const QStringList &files) {
        QMetaObject::invokeMethod(
            this, [this, files] { addFiles(files); }, Qt::QueuedConnection);
    };
    m_proxy = proxy;
    m_proxy->setSourceModel(m_model);
    m_proxy->setSortRole(Qt::EditRole);
    m_proxy->sort(m_model->fieldIndex(QStringLiteral("pos")), Qt::AscendingOrder);
    m_proxy->setDynamicSortFilter(true);

    KalTableView *view = m_ui->tvImageInfo;
    view->setModel(m_proxy);
    for (int column = 0; column < m_model->columnCount(); ++column) {
        const QString name = m_model->record().fieldName(column);
        const bool shown =
            name == QLatin1String("caption") || name == QLatin1String("comment") || name == QLatin1String("date");
        view->setColumnHidden(column, !shown);
    }
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view->setDragDropMode(QAbstractItemView::DragDrop);
    view->setDefaultDropAction(Qt::CopyAction);
    view->setDropIndicatorShown(true);
    view->setDragDropOverwriteMode(false);
    view->horizontalHeader()->setStretchLastSection(true);
    // The grid's own buttons would add and remove bare rows; here the
    // dialog's buttons do that, and Delete means "Fotos entfernen".
    for (QToolButton *button : {view->addButton(), view->deleteButton(), view->copyButton()})
        button->hide();
    view->installEventFilter(this);
    if (!view->restoreColumnWidths()) {
        view->setColumnWidth(m_model->fieldIndex(QStringLiteral("caption")), 200);
        view->setColumnWidth(m_model->fieldIndex(QStringLiteral("comment")), 260);
    }
    connect(view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &KalPhotoInfoDialog::slotCurrentChanged);
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this, &KalPhotoInfoDialog::updateButtons);
    if (m_proxy->rowCount() > 0)
        view->selectRow(0);
}

void KalPhotoInfoDialog::setUpPreview()
{
    m_scene = new QGraphicsScene(this);
    m_pixmapItem = m_scene->addPixmap(QPixmap());
    m_pixmapItem->setTransformationMode(Qt::SmoothTransformation);
    m_ui->gvImage->setScene(m_scene);
    m_ui->gvImage->setRenderHint(QPainter::SmoothPixmapTransform);

    const struct
    {
        const char *name;
        const char *text;
        void (KalPhotoInfoDialog::*slot)();
    } actions[] = {
        {"actionRotateImageLeft", QT_TR_NOOP("Bild um 90° nach links drehen"),
         &KalPhotoInfoDialog::slot_rotateImageLeft},
        {"actionRotateImageRight", QT_TR_NOOP("Bild um 90° nach rechts drehen"),
         &KalPhotoInfoDialog::slot_rotateImageRight},
        {"actionFlipImage", QT_TR_NOOP("Bild um 180° drehen"), &KalPhotoInfoDialog::slot_flipImage},
    };
    for (const auto &entry : actions) {
        auto *action = new QAction(tr(entry.text), m_ui->gvImage);
        action->setObjectName(QLatin1String(entry.name));
        connect(action, &QAction::triggered, this, entry.slot);
        m_ui->gvImage->addAction(action);
    }
}

QString KalPhotoInfoDialog::removeQuestionTitle(int count)
{
    return count == 1 ? tr("Foto löschen") : tr("Fotos löschen");
}

QString KalPhotoInfoDialog::removeQuestionText(int count)
{
    if (count == 1)
        return tr("Sie haben 1 Foto zum Löschen ausgewählt.\nSoll dieses Foto tatsächlich gelöscht werden?");
    return tr("Sie haben %1 Fotos zum Löschen ausgewählt.\nSollen diese Foto tatsächlich gelöscht werden?").arg(count);
}

QString KalPhotoInfoDialog::portraitNoticeText()
{
    return tr("Bitte nehmen Sie nur dann Fotos im Hochformat auf, wenn das Motiv es nicht anders zulässt. Die beste "
              "Platzausnutzung im Bericht erreichen Sie mit Fotos im Querformat. Hochformate mit Seitenverhältnissen "
              "größer 4:3 können aus Platzgründen zugeschnitten werden.");
}

int KalPhotoInfoDialog::photoCount() const
{
    if (!m_project || !m_project->isOpen())
        return 0;
    QSqlQuery query(m_project->database());
    query.prepare(QStringLiteral("SELECT COUNT(*) FROM photo_info WHERE defect_id = :id"));
    query.bindValue(QStringLiteral(":id"), m_defectId);
    return query.exec() && query.next() ? query.value(0).toInt() : 0;
}

qint64 KalPhotoInfoDialog::currentId() const
{
    const QModelIndex current = m_ui->tvImageInfo->currentIndex();
    if (!m_proxy || !current.isValid())
        return -1;
    const QModelIndex source = m_proxy->mapToSource(current);
    return m_model->data(m_model->index(source.row(), m_model->idColumn()), Qt::EditRole).toLongLong();
}

qint64 KalPhotoInfoDialog::imageIdOf(qint64 photoInfoId) const
{
    const int row = m_model ? m_model->findRowById(photoInfoId) : -1;
    if (row < 0)
        return -1;
    return m_model->data(m_model->index(row, m_model->fieldIndex(QStringLiteral("image_id"))), Qt::EditRole)
        .toLongLong();
}

// --- list ------------------------------------------------------------------------

void KalPhotoInfoDialog::reload(const QList<qint64> &selectIds)
{
    m_ui->tvImageInfo->finishEditing(true);
    m_model->select();
    if (!selectIds.isEmpty())
        m_ui->tvImageInfo->selectIds(selectIds);
    showPreview();
    updateButtons();
}

void KalPhotoInfoDialog::slotAddImages()
{
    const QStringList files =
        KalFileDialog::getOpenFileNames(this, KalSettings::ImageFiles, tr("Fotos auswählen"),
                                        tr("Fotos (*.png *.jpg  *.jpeg *.bmp *.gif *.tif *.tiff)"));
    if (!files.isEmpty())
        addFiles(files);
}

void KalPhotoInfoDialog::addFiles(const QStringList &files)
{
    if (!m_model || files.isEmpty())
        return;
    m_ui->tvImageInfo->finishEditing(true);
    const QList<qint64> added = importFiles(m_project, m_defectId, files);
    reload(added.isEmpty() ? QList<qint64>() : QList<qint64>{added.last()});
}

QList<qint64> KalPhotoInfoDialog::importFiles(KalProject *project, qint64 defectId, const QStringList &files)
{
    if (!project || !project->isOpen() || files.isEmpty())
        return {};
    // Progress and the message per failed file come from the import.
    const KalPhotoImport result = KalPhotos(project).addFiles(defectId, files);
    if (result.anyPortrait)
        KalPrompt::information(tr("Fotoimport"), portraitNoticeText());
    return result.photoInfoIds;
}

void KalPhotoInfoDialog::slotRemoveImages()
{
    if (!m_model)
        return;
    const QList<qint64> ids = m_ui->tvImageInfo->selectedIds();
    if (ids.isEmpty())
        return;
    KalPrompt::Message question;
    question.icon = KalPrompt::Question;
    question.title = removeQuestionTitle(ids.size());
    question.text = removeQuestionText(ids.size());
    question.buttons = {{KalPrompt::Ok, {}}, {KalPrompt::Abort, {}}};
    question.defaultButton = -1;
    question.escapeButton = 1;
    if (KalPrompt::ask(question) != 0)
        return;

    // The neighbour: the first photo after the removed ones, else the one before.
    int firstRow = m_proxy->rowCount();
    int lastRow = -1;
    for (const QModelIndex &index : m_ui->tvImageInfo->selectionModel()->selectedRows()) {
        firstRow = qMin(firstRow, index.row());
        lastRow = qMax(lastRow, index.row());
    }
    qint64 neighbour = -1;
    for (int row = lastRow + 1; row < m_proxy->rowCount() && neighbour < 0; ++row) {
        const qint64 id = static_cast<PhotoListProxy *>(m_proxy)->idOfRow(row);
        if (!ids.contains(id))
            neighbour = id;
    }
    for (int row = firstRow - 1; row >= 0 && neighbour < 0; --row) {
        const qint64 id = static_cast<PhotoListProxy *>(m_proxy)->idOfRow(row);
        if (!ids.contains(id))
            neighbour = id;
    }

    m_ui->tvImageInfo->finishEditing(true);
    QString error;
    if (!KalPhotos(m_project).remove(ids, &error))
        KalPrompt::critical(tr("Datenbankfehler"), error);
    reload(neighbour < 0 ? QList<qint64>() : QList<qint64>{neighbour});
}

void KalPhotoInfoDialog::moveRow(qint64 photoInfoId, int newIndex)
{
    QString error;
    m_ui->tvImageInfo->finishEditing(true);
    if (!KalPhotos(m_project).move(photoInfoId, newIndex, &error))
        KalPrompt::critical(tr("Datenbankfehler"), error);
    // After the drop has finished: the view still holds the drag's indexes.
    QMetaObject::invokeMethod(
        this, [this, photoInfoId] { reload({photoInfoId}); }, Qt::QueuedConnection);
}

void KalPhotoInfoDialog::slotImageSize()
{
    KalSettingsImageSizeDialog dialog(KalPictureStore::Kind::Photo, m_project, this);
    dialog.exec();
    showPreview();
}

void KalPhotoInfoDialog::slotStartPhotoEditor()
{
    // The photo editor is not part of the program yet (the button is disabled).
}

void KalPhotoInfoDialog::updateButtons()
{
    const bool any =
        m_model && m_ui->tvImageInfo->selectionModel() && m_ui->tvImageInfo->selectionModel()->hasSelection();
    m_ui->pbRemoveImages->setEnabled(any);
    m_ui->pbStartPhotoEditor->setEnabled(false);
    const bool hasPhoto = currentId() >= 0;
    for (QAction *action : m_ui->gvImage->actions())
        action->setEnabled(hasPhoto);
}

// --- preview and rotation -----------------------------------------------------------

void KalPhotoInfoDialog::slotCurrentChanged()
{
    showPreview();
    updateButtons();
}

void KalPhotoInfoDialog::showPreview()
{
    const qint64 imageId = imageIdOf(currentId());
    QImage picture;
    if (imageId >= 0) {
        QString error;
        picture = KalPictureStore(m_project->database(), KalPictureStore::Kind::Photo).load(imageId, &error);
    }
    m_pixmapItem->setPixmap(QPixmap::fromImage(picture));
    m_scene->setSceneRect(m_pixmapItem->boundingRect());
    fitPreview();
}

void KalPhotoInfoDialog::fitPreview()
{
    if (m_pixmapItem->pixmap().isNull())
        m_ui->gvImage->resetTransform();
    else
        m_ui->gvImage->fitInView(m_pixmapItem, Qt::KeepAspectRatio);
}

bool KalPhotoInfoDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_ui->tvImageInfo && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Delete &&
        static_cast<QKeyEvent *>(event)->modifiers() == Qt::NoModifier) {
        // Keys reach the view only while no cell editor is open.
        slotRemoveImages();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void KalPhotoInfoDialog::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    fitPreview();
}

void KalPhotoInfoDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    fitPreview();
}

void KalPhotoInfoDialog::rotate(int degrees)
{
    const qint64 id = currentId();
    if (id < 0)
        return;
    m_ui->tvImageInfo->finishEditing(true);
    QString error;
    if (!KalPhotos(m_project).rotate(id, degrees, &error))
        KalPrompt::critical(tr("Datenbankfehler"), error);
    reload({id});
}

void KalPhotoInfoDialog::slot_rotateImageLeft()
{
    rotate(270);
}

void KalPhotoInfoDialog::slot_rotateImageRight()
{
    rotate(90);
}

void KalPhotoInfoDialog::slot_flipImage()
{
    rotate(180);
}

// --- closing ---------------------------------------------------------------------------

void KalPhotoInfoDialog::restoreModel()
{
    if (m_restored || !m_model)
        return;
    m_restored = true;
    m_ui->tvImageInfo->finishEditing(true);
    m_ui->tvImageInfo->saveColumnWidths();
    m_ui->tvImageInfo->setModel(nullptr);
    m_model->setFilter(m_previousFilter);
}

void KalPhotoInfoDialog::done(int result)
{
    QSettings().setValue(QLatin1String(kGeometryKey), saveGeometry());
    restoreModel();
    QDialog::done(result);
}
