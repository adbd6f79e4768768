#include "KalLogoPanel.h"
#include "ui_KalLogoPanel.h"

#include "core/project/KalPrompt.h"
#include "core/project/KalSettings.h"
#include "gui/widgets/KalFileDialog.h"

#include <QDir>

KalLogoPanel::KalLogoPanel(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::KalLogoPanel>())
{
    m_ui->setupUi(this);
    connect(m_ui->pbAppend, &QPushButton::clicked, this, &KalLogoPanel::slotAppendClicked);
    connect(m_ui->pbDelete, &QPushButton::clicked, this, &KalLogoPanel::slotDeleteClicked);
}

KalLogoPanel::~KalLogoPanel() = default;

bool KalLogoPanel::load(KalLogos *logos, KalLogos::Which which, const QString &title)
{
    m_logos = logos;
    m_which = which;
    m_ui->gbxLogo->setTitle(title);
    KalLogo stored;
    const bool ok = logos->read(which, &stored);
    m_storedId = m_imageId = stored.imageId;
    QRadioButton *const buttons[] = {m_ui->rbLeft, m_ui->rbCenter, m_ui->rbRight};
    buttons[stored.align]->setChecked(true);
    showImage();
    return ok;
}

KalLogo KalLogoPanel::logo() const
{
    KalLogo result;
    result.imageId = m_imageId;
    result.align = m_ui->rbCenter->isChecked()  ? KalLogo::Center
                   : m_ui->rbRight->isChecked() ? KalLogo::Right
                                                : KalLogo::Left;
    return result;
}

void KalLogoPanel::showImage()
{
    const QImage image = m_logos ? m_logos->image(m_imageId) : QImage();
    if (image.isNull()) {
        m_ui->lblImage->setPixmap(QPixmap());
        m_ui->lblImage->setText(tr("Kein Logo"));
    } else {
        const QSize box = m_ui->lblImage->minimumSize();
        m_ui->lblImage->setPixmap(QPixmap::fromImage(image.scaled(box, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
    }
    m_ui->pbDelete->setEnabled(m_imageId > 0);
}

void KalLogoPanel::slotAppendClicked()
{
    const QString path = KalFileDialog::getOpenFileName(this, KalSettings::LogoFile, tr("Logo auswählen"),
                                                        tr("Bilder (*.png *.jpg  *.jpeg *.bmp *.gif *.tif *.tiff)"));
    if (path.isEmpty())
        return;
    QString error;
    const qint64 id = m_logos->append(path, &error);
    if (id < 0) {
        KalPrompt::warning(
            tr("Logo auswählen"),
            tr("Die Datei\n%1\nkann nicht als Logo verwendet werden:\n%2").arg(QDir::toNativeSeparators(path), error));
        return;
    }
    m_inserted.append(id);
    m_imageId = id;
    showImage();
}

void KalLogoPanel::slotDeleteClicked()
{
    // The row goes when the dialog is confirmed; until then "Abbrechen"
    // brings the logo back.
    m_imageId = -1;
    showImage();
}

bool KalLogoPanel::commit()
{
    if (!m_logos->write(m_which, logo()))
        return false;
    for (qint64 id : qAsConst(m_inserted)) {
        if (id != m_imageId && !m_logos->remove(id))
            return false;
    }
    if (m_storedId > 0 && m_storedId != m_imageId)
        return m_logos->remove(m_storedId);
    return true;
}

void KalLogoPanel::settle()
{
    m_inserted.clear();
    m_storedId = m_imageId;
}

void KalLogoPanel::rollback()
{
    for (qint64 id : qAsConst(m_inserted))
        m_logos->remove(id);
    m_inserted.clear();
    m_imageId = m_storedId;
}
