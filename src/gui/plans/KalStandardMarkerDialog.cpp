#include "KalStandardMarkerDialog.h"
#include "ui_KalStandardMarkerDialog.h"

#include "core/plans/KalMarkerShapes.h"
#include "gui/plans/KalTextEditor.h"

#include <QGraphicsPixmapItem>
#include <QGraphicsScene>
#include <QPainter>
#include <QPushButton>
#include <QSettings>

namespace {

const char *const kTypeKey = "Marker/StandardMarkerType";
const char *const kColorKey = "Marker/StandardMarkerColor";
const int kFactoryType = 1;
const QColor kFactoryColor = QColor(Qt::yellow);

// The marker as it would stand on a plan, fitted into `side` pixels.
QPixmap markerPicture(int type, const QColor &color, int side)
{
    KalMarkerRow row;
    row.type = type;
    row.color1 = color.name();
    row.color2 = QStringLiteral("#000000");
    row.lineWidth = 8.0;
    const QRectF bounds = KalMarkerShapes::paths(type).body.boundingRect().adjusted(-8, -8, 8, 8);
    QPixmap picture(side, side);
    picture.fill(Qt::white);
    if (bounds.isEmpty())
        return picture;
    QPainter painter(&picture);
    const double scale = side / qMax(bounds.width(), bounds.height());
    painter.translate(side / 2.0, side / 2.0);
    painter.scale(scale, scale);
    painter.translate(-bounds.center());
    KalMarkerShapes::PaintOptions options;
    options.statusColor = QColor(Qt::gray);
    KalMarkerShapes::paintMarker(painter, row, options);
    return picture;
}

} // namespace

KalStandardMarkerDialog::KalStandardMarkerDialog(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::KalStandardMarkerDialog>())
{
    m_ui->setupUi(this);
    m_ui->lbInfo->setText(infoText());
    m_scene = new QGraphicsScene(this);
    m_ui->gvMarker->setScene(m_scene);
    m_ui->gvMarker->setRenderHint(QPainter::SmoothPixmapTransform);

    QPushButton *const typeButtons[] = {m_ui->pbMarkerType1, m_ui->pbMarkerType2, m_ui->pbMarkerType3,
                                        m_ui->pbMarkerType4};
    for (int i = 0; i < 4; ++i) {
        typeButtons[i]->setIcon(QIcon(markerPicture(i + 1, kFactoryColor, 48)));
        typeButtons[i]->setIconSize(QSize(32, 32));
    }
    connect(m_ui->pbMarkerType1, &QPushButton::clicked, this, &KalStandardMarkerDialog::slotMarkerType1Clicked);
    connect(m_ui->pbMarkerType2, &QPushButton::clicked, this, &KalStandardMarkerDialog::slotMarkerType2Clicked);
    connect(m_ui->pbMarkerType3, &QPushButton::clicked, this, &KalStandardMarkerDialog::slotMarkerType3Clicked);
    connect(m_ui->pbMarkerType4, &QPushButton::clicked, this, &KalStandardMarkerDialog::slotMarkerType4Clicked);
    connect(m_ui->pbMarkerColor, &QPushButton::clicked, this, &KalStandardMarkerDialog::slotColorClicked);
    connect(m_ui->pbReset, &QPushButton::clicked, this, &KalStandardMarkerDialog::slotResetClicked);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &KalStandardMarkerDialog::slotAccepted);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    choose(storedType(), storedColor());
}

KalStandardMarkerDialog::~KalStandardMarkerDialog() = default;

QString KalStandardMarkerDialog::infoText()
{
    return tr("Für die grauen Bereiche der Marker können Sie keine Farbe einstellen.\nDiese Bereiche werden im Plan "
              "in der Statusfarbe des Mangels angezeigt.\nDie Statusfarben können Sie im Statusdialog "
              "(Einstellungen->Status) einstellen.\nDer Marker des aktuell ausgewählten Mangels wird im Plan durch "
              "rote Linien/Ränder gekennzeichnet.\n");
}

int KalStandardMarkerDialog::storedType()
{
    bool ok = false;
    const int type = QSettings().value(QLatin1String(kTypeKey), kFactoryType).toInt(&ok);
    return ok && KalMarkerShapes::isKnownType(type) ? type : kFactoryType;
}

QColor KalStandardMarkerDialog::storedColor()
{
    const QColor color(QSettings().value(QLatin1String(kColorKey), kFactoryColor.name()).toString());
    return color.isValid() ? color : kFactoryColor;
}

void KalStandardMarkerDialog::choose(int type, const QColor &color)
{
    m_type = type;
    m_color = color;
    QPushButton *const typeButtons[] = {m_ui->pbMarkerType1, m_ui->pbMarkerType2, m_ui->pbMarkerType3,
                                        m_ui->pbMarkerType4};
    typeButtons[qBound(1, type, 4) - 1]->setChecked(true);
    showPreview();
}

void KalStandardMarkerDialog::showPreview()
{
    m_scene->clear();
    QGraphicsPixmapItem *item = m_scene->addPixmap(markerPicture(m_type, m_color, 400));
    item->setTransformationMode(Qt::SmoothTransformation);
    m_scene->setSceneRect(item->boundingRect());
    m_ui->gvMarker->fitInView(item, Qt::KeepAspectRatio);
}

void KalStandardMarkerDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    m_ui->gvMarker->fitInView(m_scene->sceneRect(), Qt::KeepAspectRatio);
}

void KalStandardMarkerDialog::slotMarkerType1Clicked()
{
    choose(1, m_color);
}

void KalStandardMarkerDialog::slotMarkerType2Clicked()
{
    choose(2, m_color);
}

void KalStandardMarkerDialog::slotMarkerType3Clicked()
{
    choose(3, m_color);
}

void KalStandardMarkerDialog::slotMarkerType4Clicked()
{
    choose(4, m_color);
}

void KalStandardMarkerDialog::slotColorClicked()
{
    const QColor color = KalTextEditor::chooseColor(m_color, this, tr("Markerfarbe wählen"));
    if (color.isValid())
        choose(m_type, color);
}

void KalStandardMarkerDialog::slotResetClicked()
{
    choose(kFactoryType, kFactoryColor);
}

void KalStandardMarkerDialog::slotAccepted()
{
    QSettings settings;
    settings.setValue(QLatin1String(kTypeKey), m_type);
    settings.setValue(QLatin1String(kColorKey), m_color.name());
    accept();
}
