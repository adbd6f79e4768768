// The plan editor's rows: the picture and the markers and texts read from
// the models, and written back into them.
#include "KalPlanEditor.h"

#include "KalMarkerItem.h"
#include "KalMarkerTextItem.h"
#include "KalPlanGraphicsPicture.h"
#include "KalPlanGraphicsScene.h"
#include "KalPlanPictureCache.h"
#include "core/plans/KalMarkerShapes.h"
#include "core/plans/KalPlanTransform.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSqlTableModel.h"

#include <QSettings>
#include <QSqlError>
#include <QSqlQuery>
#include <algorithm>

namespace {

QVariant field(const KalSqlTableModel *model, int row, const char *name)
{
    return model->data(model->index(row, model->fieldIndex(QLatin1String(name))), Qt::EditRole);
}

void setField(KalSqlTableModel *model, int row, const char *name, const QVariant &value)
{
    model->setData(model->index(row, model->fieldIndex(QLatin1String(name))), value, Qt::EditRole);
}

// Rows removed but not yet written stay in a manual-submit model, marked "!".
bool isRemoved(const KalSqlTableModel *model, int row)
{
    return model->headerData(row, Qt::Vertical).toString() == QLatin1String("!");
}

KalPlanGeometry geometryOf(const KalSqlTableModel *model, int row)
{
    KalPlanGeometry g;
    g.pos = QPointF(field(model, row, "pos_x").toDouble(), field(model, row, "pos_y").toDouble());
    const QVariant scale = field(model, row, "scale_factor");
    g.scale = scale.isNull() ? 1.0 : scale.toDouble();
    g.rotation = field(model, row, "rotation_angle").toDouble();
    g.transformPoint =
        QPointF(field(model, row, "transform_point_x").toDouble(), field(model, row, "transform_point_y").toDouble());
    return g;
}

void place(QGraphicsItem *item, const KalPlanGeometry &g)
{
    item->setTransformOriginPoint(g.transformPoint);
    item->setPos(g.pos);
    item->setScale(g.scale);
    item->setRotation(g.rotation);
}

} // namespace

bool KalPlanEditor::loadPlan()
{
    QSqlDatabase db = m_project->database();
    QSqlQuery query(db);
    query.prepare(QStringLiteral("SELECT plan_id FROM plan_info WHERE id = :id"));
    query.bindValue(QStringLiteral(":id"), m_planInfoId);
    QString error;
    std::shared_ptr<KalPlanPictureLevels> picture;
    if (!query.exec()) {
        error = query.lastError().text();
    } else if (!query.next()) {
        error = tr("Der Plan %1 existiert nicht.").arg(m_planInfoId);
    } else {
        // The main window's panel usually shows this plan already: its copy
        // is shared, not decoded again.
        picture = KalPlanPictureCache::load(m_project, query.value(0).toLongLong(), &error);
    }
    if (!picture) {
        KalPrompt::Message message;
        message.icon = KalPrompt::Warning;
        message.title = tr("Planeditor");
        message.text = tr("Der Plan kann nicht angezeigt werden.");
        message.detailText = error;
        KalPrompt::ask(message);
        return false;
    }
    m_planSize = picture->levels.first().size();
    // Zooming paints reduced copies made from the one decoded picture.
    auto *background = new KalPlanGraphicsPicture(std::move(picture));
    background->setZValue(-1);
    m_scene->addItem(background);
    m_scene->setSceneRect(QRectF(QPointF(0, 0), m_planSize));
    return true;
}

void KalPlanEditor::loadRows()
{
    // Status colour and current plan of every defect: others' rows whose
    // defect went or moved to another plan are not shown.
    QHash<qint64, QColor> statusColors;
    QSqlQuery query(m_project->database());
    query.prepare(QStringLiteral("SELECT d.id, s.color FROM defect d LEFT JOIN status s ON s.id = d.status_id "
                                 "WHERE d.plan_info_id = :plan OR d.id = :defect"));
    query.bindValue(QStringLiteral(":plan"), m_planInfoId);
    query.bindValue(QStringLiteral(":defect"), m_defectId);
    if (query.exec()) {
        while (query.next()) {
            const QColor color(query.value(1).toString());
            statusColors.insert(query.value(0).toLongLong(), color.isValid() ? color : QColor());
        }
    }
    m_statusColor = statusColors.value(m_defectId);

    KalSqlTableModel *markers = m_project->model(QStringLiteral("marker"));
    KalSqlTableModel *texts = m_project->model(QStringLiteral("marker_text"));
    for (KalSqlTableModel *model : {markers, texts}) {
        if (!model)
            continue;
        model->fetchAll();
        for (int row = 0; row < model->rowCount(); ++row) {
            if (isRemoved(model, row) || field(model, row, "plan_info_id").toLongLong() != m_planInfoId)
                continue;
            const qint64 defect = field(model, row, "defect_id").toLongLong();
            const bool own = defect == m_defectId;
            const KalPlanGeometry g = geometryOf(model, row);
            if ((!own && !statusColors.contains(defect)) || !KalPlanTransform::isDrawable(g))
                continue;
            QGraphicsItem *item = nullptr;
            if (model == markers) {
                const int type = field(model, row, "type").toInt();
                if (!KalMarkerShapes::isKnownType(type))
                    continue;
                auto *marker = new KalMarkerItem(type);
                const QColor fill(field(model, row, "color1").toString());
                marker->setFillColor(fill.isValid() ? fill : QColor(Qt::yellow));
                const QColor outline(field(model, row, "color2").toString());
                marker->setOutline(outline.isValid() ? outline : QColor(Qt::black),
                                   qMax(0.0, field(model, row, "linewidth").toDouble()));
                marker->setStatusColor(statusColors.value(defect));
                marker->setHighlighted(own);
                item = marker;
            } else {
                auto *text = newTextItem();
                text->setFontFamily(field(model, row, "font_family").toString());
                text->setFontSize(qMax(1, field(model, row, "font_size").toInt()));
                text->setTextProperties(field(model, row, "text_properties").toInt());
                const QColor color(field(model, row, "color").toString());
                text->setTextColor(color.isValid() ? color : QColor(Qt::black));
                text->setPlainText(field(model, row, "text").toString());
                item = text;
            }
            place(item, g);
            m_scene->addItem(item);
            // Rows not yet written (a defect editor's pending ones) have no id
            // and are written anew.
            const QVariant id = field(model, row, "id");
            const qint64 rowId = id.isNull() ? -1 : id.toLongLong();
            if (auto *marker = qgraphicsitem_cast<KalMarkerItem *>(item))
                marker->setRowId(rowId);
            else
                static_cast<KalMarkerTextItem *>(item)->setRowId(rowId);
            if (own) {
                // Reopened, the defect's own markers are moved and changed
                // like new ones.
                item->setFlags(item->flags() | QGraphicsItem::ItemIsSelectable | QGraphicsItem::ItemIsMovable);
                m_created.append(item);
            } else {
                // Others' objects are context only.
                item->setFlags(item->flags() & ~(QGraphicsItem::ItemIsSelectable | QGraphicsItem::ItemIsMovable));
                item->setOpacity(0.6);
                item->setZValue(-0.5);
            }
        }
    }
}

QString KalPlanEditor::defectText(const QString &number, const QString &description)
{
    return number + QStringLiteral(": ") + description;
}

double KalPlanEditor::markerScaleFor(const QSize &planSize)
{
    return qMax(planSize.width(), planSize.height()) / 10.0 / 512.0;
}

void KalPlanEditor::addDefectTextIfMissing()
{
    for (QGraphicsItem *item : qAsConst(m_created)) {
        if (item->scene() && item->type() == KalMarkerTextItem::Type)
            return;
    }
    KalSqlTableModel *defects = m_project->model(QStringLiteral("defect"));
    const int row = defects ? defects->findRowById(m_defectId) : -1;
    if (row < 0)
        return;
    // Beside the defect's first marker, else at the middle of the plan.
    QPointF at(m_planSize.width() / 2.0, m_planSize.height() / 2.0);
    for (QGraphicsItem *item : qAsConst(m_created)) {
        if (item->scene() && item->type() == KalMarkerItem::Type) {
            at = item->mapToScene(item->transformOriginPoint()) +
                 QPointF(markerScaleFor(m_planSize) * 200, -markerScaleFor(m_planSize) * 300);
            break;
        }
    }
    const KalTextEditor::Values defaults = KalTextEditor::storedDefaults();
    KalMarkerTextItem *text = newTextItem();
    text->setFontFamily(m_newTextFamily);
    text->setFontSize(m_newTextSize);
    text->setTextProperties(defaults.properties);
    text->setTextColor(defaults.color);
    text->setPlainText(
        defectText(field(defects, row, "number").toString(), field(defects, row, "description").toString()));
    text->setPos(at);
    // Point sizes are small on a plan of thousands of pixels: texts grow
    // with the plan as markers do.
    text->setScale(markerScaleFor(m_planSize) * 8);
    pushAdd(text, tr("Mängeltext"));
}

namespace {

qint64 rowIdOf(const QGraphicsItem *item)
{
    if (auto *marker = qgraphicsitem_cast<const KalMarkerItem *>(item))
        return marker->rowId();
    if (auto *text = qgraphicsitem_cast<const KalMarkerTextItem *>(item))
        return text->rowId();
    return -1;
}

// Only real changes are written, so rows the user left alone are not touched.
void setChanged(KalSqlTableModel *model, int row, const char *name, const QVariant &value)
{
    const QVariant old = field(model, row, name);
    const bool same = value.type() == QVariant::Double ? !old.isNull() && old.toDouble() == value.toDouble()
                                                       : !old.isNull() && old.toString() == value.toString();
    if (!same)
        setField(model, row, name, value);
}

void writeItem(KalSqlTableModel *model, int row, const QGraphicsItem *item)
{
    const std::pair<const char *, QVariant> geometry[] = {
        {"pos_x", item->pos().x()},
        {"pos_y", item->pos().y()},
        {"scale_factor", item->scale()},
        {"rotation_angle", item->rotation()},
        {"transform_point_x", item->transformOriginPoint().x()},
        {"transform_point_y", item->transformOriginPoint().y()},
    };
    for (const auto &column : geometry)
        setChanged(model, row, column.first, column.second);
    if (auto *marker = qgraphicsitem_cast<const KalMarkerItem *>(item)) {
        setChanged(model, row, "type", marker->markerType());
        setChanged(model, row, "color1", marker->fillColor().name());
        setChanged(model, row, "color2", marker->outlineColor().name());
        setChanged(model, row, "linewidth", marker->lineWidth());
    } else if (auto *text = qgraphicsitem_cast<const KalMarkerTextItem *>(item)) {
        setChanged(model, row, "text", text->toPlainText());
        setChanged(model, row, "color", text->textColor().name());
        setChanged(model, row, "font_family", text->fontFamily());
        setChanged(model, row, "font_size", text->fontSize());
        setChanged(model, row, "text_properties", text->textProperties());
    }
}

} // namespace

bool KalPlanEditor::writeRows()
{
    KalSqlTableModel *markers = m_project->model(QStringLiteral("marker"));
    KalSqlTableModel *texts = m_project->model(QStringLiteral("marker_text"));
    if (!markers || !texts)
        return false;
    // The defect's rows keep their ids: rows of items still on the plan are
    // updated, those of removed items deleted, new items inserted.
    // Markers and texts count their ids apart: keyed by table and id.
    QHash<QPair<bool, qint64>, const QGraphicsItem *> kept;
    for (const QGraphicsItem *item : qAsConst(m_created)) {
        if (item->scene() && rowIdOf(item) > 0)
            kept.insert({item->type() == KalMarkerItem::Type, rowIdOf(item)}, item);
    }
    for (KalSqlTableModel *model : {markers, texts}) {
        model->fetchAll();
        // From the bottom up: dropping a pending row shifts those below it.
        for (int row = model->rowCount() - 1; row >= 0; --row) {
            if (isRemoved(model, row) || field(model, row, "plan_info_id").toLongLong() != m_planInfoId ||
                field(model, row, "defect_id").toLongLong() != m_defectId)
                continue;
            const QVariant id = field(model, row, "id");
            const QGraphicsItem *item = id.isNull() ? nullptr : kept.value({model == markers, id.toLongLong()});
            if (item)
                writeItem(model, row, item);
            else
                model->removeRows(row, 1, QModelIndex(), false);
        }
    }
    for (const QGraphicsItem *item : qAsConst(m_created)) {
        if (!item->scene() || rowIdOf(item) > 0)
            continue;
        KalSqlTableModel *model = item->type() == KalMarkerItem::Type ? markers : texts;
        const int row = model->rowCount();
        if (!model->insertRow(row))
            return false;
        setField(model, row, "plan_info_id", m_planInfoId);
        setField(model, row, "defect_id", m_defectId);
        writeItem(model, row, item);
    }
    if (m_saving == WriteModels)
        return true;
    // Markers and texts are written together or not at all.
    const bool inTransaction = m_project->beginTransaction();
    if (markers->submitWithNotification(true) && texts->submitWithNotification(true) &&
        (!inTransaction || m_project->commitTransaction()))
        return true;
    if (inTransaction)
        m_project->rollbackTransaction();
    // Nothing half-written stays pending; the items keep the user's work
    // for another try.
    for (KalSqlTableModel *model : {markers, texts}) {
        model->revertAll();
        model->select();
    }
    return false;
}
