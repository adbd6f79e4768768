#include "KalCompanyImportSelectDialog.h"

#include "core/import/KalAddressFile.h"
#include "core/import/KalCompanyImport.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSettings.h"
#include "gui/import/KalCompanyImportDialog.h"
#include "gui/widgets/KalFileDialog.h"

#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QPushButton>
#include <QVBoxLayout>

KalCompanyImportSelectDialog::KalCompanyImportSelectDialog(KalProject *project, QWidget *parent)
    : QDialog(parent)
    , m_project(project)
{
    setObjectName(QStringLiteral("KalCompanyImportSelectDialog"));
    setWindowTitle(tr("Quelle wählen"));
    setWindowIcon(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-firmen-import.ico")));

    auto button = [this](const char *name, const QString &text) {
        auto *b = new QPushButton(text, this);
        b->setObjectName(QLatin1String(name));
        b->setStyleSheet(QStringLiteral("QPushButton {text-align: left;}"));
        b->setAutoDefault(false);
        b->setMinimumWidth(260);
        return b;
    };
    m_pbAddressFile = button("pbAddressFile", tr("&Externe Adress-Datei"));
    m_pbProjectFile = button("pbProjectFile", tr("Andere &Pellwick-Datei"));
    m_pbSiteJournal = button("pbSiteJournal", tr("Quellor &Bautagebuch"));
    m_pbCancel = button("pbCancel", tr("&Abbrechen"));

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_pbAddressFile);
    layout->addWidget(m_pbProjectFile);
    layout->addWidget(m_pbSiteJournal);
    layout->addSpacing(8);
    layout->addWidget(m_pbCancel);

    connect(m_pbAddressFile, &QPushButton::clicked, this, &KalCompanyImportSelectDialog::slotAddressFileClicked);
    connect(m_pbProjectFile, &QPushButton::clicked, this, &KalCompanyImportSelectDialog::slotProjectFileClicked);
    connect(m_pbSiteJournal, &QPushButton::clicked, this, &KalCompanyImportSelectDialog::slotSiteJournalClicked);
    connect(m_pbCancel, &QPushButton::clicked, this, &QDialog::reject);
}

QString KalCompanyImportSelectDialog::fileDialogTitle(Source source)
{
    switch (source) {
    case AddressFile:
        return tr("Zu importierende Adressdatei auswählen");
    case ProjectFile:
        return tr("Pellwick-Datei auswählen");
    case SiteJournal:
        return tr("Bautagebuch-Datei auswählen");
    }
    return QString();
}

QString KalCompanyImportSelectDialog::fileDialogFilter(Source source)
{
    switch (source) {
    case AddressFile:
        // "*asc" without the dot is the filter as the program always had it.
        return tr("Adressdateien (*.csv *.txt *asc *.tab *.prn);;alle Dateien (*.*)");
    case ProjectFile:
        return tr("Pellwick Projekt (*.pwp)");
    case SiteJournal:
        return tr("Bautagebuch (*.sjd)");
    }
    return QString();
}

void KalCompanyImportSelectDialog::slotAddressFileClicked()
{
    choose(AddressFile);
}

void KalCompanyImportSelectDialog::slotProjectFileClicked()
{
    choose(ProjectFile);
}

void KalCompanyImportSelectDialog::slotSiteJournalClicked()
{
    choose(SiteJournal);
}

void KalCompanyImportSelectDialog::choose(Source source)
{
    hide();
    m_insertedIds = importFrom(m_project, source, parentWidget());
    if (m_insertedIds.isEmpty())
        reject();
    else
        accept();
}

QVector<qint64> KalCompanyImportSelectDialog::importFrom(KalProject *project, Source source, QWidget *parent)
{
    if (!project)
        return {};
    // Address files have no remembered folder of their own; project and
    // site-journal files start where projects are opened from.
    const int kind = source == AddressFile ? 0 : KalSettings::ProjectOpen;
    const QString path =
        KalFileDialog::getOpenFileName(parent, kind, fileDialogTitle(source), fileDialogFilter(source));
    if (path.isEmpty())
        return {};
    if (source != AddressFile && QFileInfo(path) == QFileInfo(project->projectPath())) {
        KalPrompt::warning(tr("Info"), tr("Die Firmen können nicht aus dem geöffneten Projekt selbst importiert "
                                          "werden."));
        return {};
    }

    QString error;
    KalCompanyImportDialog dialog(project, parent);
    if (source == AddressFile) {
        auto file = std::make_shared<KalAddressFile>();
        if (!file->load(path, &error)) {
            KalPrompt::critical(tr("Dateifehler"), error);
            return {};
        }
        dialog.setAddressFile(file, QDir::toNativeSeparators(path));
    } else {
        QVector<KalCompanyRecord> companies;
        const bool ok = source == ProjectFile ? KalCompanyImport::readProjectFile(path, &companies, &error)
                                              : KalCompanyImport::readSiteJournal(path, &companies, &error);
        if (!ok) {
            KalPrompt::critical(tr("Dateifehler"), error);
            return {};
        }
        if (companies.isEmpty()) {
            KalPrompt::information(tr("Info"),
                                   tr("Die Datei %1 enthält keine Firmen.").arg(QDir::toNativeSeparators(path)));
            return {};
        }
        dialog.setCompanies(companies, QDir::toNativeSeparators(path));
    }
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return dialog.insertedIds();
}
