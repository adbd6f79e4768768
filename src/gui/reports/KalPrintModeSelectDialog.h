#pragma once

#include "core/reports/KalPrintDefects.h"

#include <QDialog>
#include <memory>

namespace Ui {
class KalPrintModeSelectDialog;
}

// "Druckformat wählen": the compact or the detailed list, or nothing.
class KalPrintModeSelectDialog : public QDialog
{
    Q_OBJECT

public:
    explicit KalPrintModeSelectDialog(QWidget *parent = nullptr);
    ~KalPrintModeSelectDialog() override;

    KalPrintOptions::Layout layout() const { return m_layout; }

    // Asks; false when the user cancelled.
    static bool choose(QWidget *parent, KalPrintOptions::Layout *layout);

private slots:
    void pbPrintModeShort_clicked();
    void pbPrintModeLong_clicked();

private:
    std::unique_ptr<Ui::KalPrintModeSelectDialog> m_ui;
    KalPrintOptions::Layout m_layout = KalPrintOptions::Compact;
};
