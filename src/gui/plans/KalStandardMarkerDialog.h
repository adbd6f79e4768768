#pragma once

#include <QColor>
#include <QDialog>

#include <memory>

class QGraphicsScene;

namespace Ui {
class KalStandardMarkerDialog;
}

// Type and fill colour given to new markers, with a preview drawn by the
// shared marker shapes (the status part grey, as it has no status here).
class KalStandardMarkerDialog : public QDialog
{
    Q_OBJECT

public:
    explicit KalStandardMarkerDialog(QWidget *parent = nullptr);
    ~KalStandardMarkerDialog() override;

    // The stored choices (factory values when none or unusable ones are stored).
    static int storedType();
    static QColor storedColor();
    static QString infoText();

    int type() const { return m_type; }
    QColor color() const { return m_color; }

protected:
    void showEvent(QShowEvent *event) override;

private slots:
    void slotMarkerType1Clicked();
    void slotMarkerType2Clicked();
    void slotMarkerType3Clicked();
    void slotMarkerType4Clicked();
    void slotColorClicked();
    void slotResetClicked();
    void slotAccepted();

private:
    void choose(int type, const QColor &color);
    void showPreview();

    int m_type = 1;
    QColor m_color;
    QGraphicsScene *m_scene = nullptr;
    std::unique_ptr<Ui::KalStandardMarkerDialog> m_ui;
};
