#pragma once

#include "core/reports/KalLogos.h"

#include <QList>
#include <QWidget>
#include <memory>

namespace Ui {
class KalLogoPanel;
}

// One logo of the print header in the logo dialog: its picture, the buttons
// that replace or remove it and its alignment. Pictures it inserts are kept
// apart until the dialog ends, so that cancelling leaves the project as it
// was.
class KalLogoPanel : public QWidget
{
    Q_OBJECT

public:
    explicit KalLogoPanel(QWidget *parent = nullptr);
    ~KalLogoPanel() override;

    // Shows the stored logo; false when the master record could not be read.
    bool load(KalLogos *logos, KalLogos::Which which, const QString &title);
    KalLogo logo() const;

    // OK: writes id and alignment and drops the pictures no longer used;
    // settle() once the transaction holding that is committed.
    bool commit();
    void settle();
    // Cancel: removes the pictures inserted since load().
    void rollback();

private slots:
    void slotAppendClicked();
    void slotDeleteClicked();

private:
    void showImage();

    std::unique_ptr<Ui::KalLogoPanel> m_ui;
    KalLogos *m_logos = nullptr;
    KalLogos::Which m_which = KalLogos::First;
    qint64 m_storedId = -1;   // the id the master record holds
    qint64 m_imageId = -1;    // the id shown now
    QList<qint64> m_inserted; // rows this dialog added
};
