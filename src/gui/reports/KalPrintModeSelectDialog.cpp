#include "KalPrintModeSelectDialog.h"
#include "ui_KalPrintModeSelectDialog.h"

KalPrintModeSelectDialog::KalPrintModeSelectDialog(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::KalPrintModeSelectDialog>())
{
    m_ui->setupUi(this);
    connect(m_ui->pbPrintModeShort, &QPushButton::clicked, this, &KalPrintModeSelectDialog::pbPrintModeShort_clicked);
    connect(m_ui->pbPrintModeLong, &QPushButton::clicked, this, &KalPrintModeSelectDialog::pbPrintModeLong_clicked);
    connect(m_ui->pbCancel, &QPushButton::clicked, this, &QDialog::reject);
}

KalPrintModeSelectDialog::~KalPrintModeSelectDialog() = default;

void KalPrintModeSelectDialog::pbPrintModeShort_clicked()
{
    m_layout = KalPrintOptions::Compact;
    accept();
}

void KalPrintModeSelectDialog::pbPrintModeLong_clicked()
{
    m_layout = KalPrintOptions::Detailed;
    accept();
}

bool KalPrintModeSelectDialog::choose(QWidget *parent, KalPrintOptions::Layout *layout)
{
    KalPrintModeSelectDialog dialog(parent);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    *layout = dialog.layout();
    return true;
}
