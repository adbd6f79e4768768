#include "KalSettingsImageSizeDialog.h"
#include "ui_KalSettingsImageSizeDialog.h"

#include "core/photos/KalShrinkBackup.h"
#include "core/plans/KalPlans.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QIcon>
#include <QPushButton>
#include <QSettings>

namespace {

// The texts of both modes; the German words differ in more than one place.
struct ModeTexts
{
    const char *title;
    const char *label;
    const char *plural;
    const char *question;
    const char *questionTitle;
    const char *shrinkButton;
    const char *progress;
    const char *icon;
};

const ModeTexts &modeTexts(KalPictureStore::Kind kind)
{
    static const ModeTexts photos{
        QT_TRANSLATE_NOOP("KalSettingsImageSizeDialog", "Bildgröße Fotos"),
        QT_TRANSLATE_NOOP("KalSettingsImageSizeDialog", "Fotos komprimieren auf:"),
        QT_TRANSLATE_NOOP("KalSettingsImageSizeDialog", "Fotos"),
        QT_TRANSLATE_NOOP("KalSettingsImageSizeDialog",
                          "<html><head/><body><p><br>Sie haben die Größe für den Import von Fotos reduziert.</p>%1 "
                          "bestehende Fotos sind größer als die aktuelle Einstellung. Sollen diese Fotos verkleinert "
                          "werden?<p><span style=\" font-weight:600;\">Achtung: <br>Dieser Vorgang kann nicht "
                          "rückgängig gemacht werden. </span>Es wird daher empfohlen, ein Backup der Datei mit der "
                          "bisherigen Auflösung zu erstellen.</p></body></html>"),
        QT_TRANSLATE_NOOP("KalSettingsImageSizeDialog", "Fotogröße"),
        QT_TRANSLATE_NOOP("KalSettingsImageSizeDialog", "Bestehende Fotos verkleinern"),
        QT_TRANSLATE_NOOP("KalSettingsImageSizeDialog", "Die Fotos werden bearbeitet."),
        ":/KalMainWindow/Resources/icon-fotogroesse.ico"};
    static const ModeTexts plans{
        QT_TRANSLATE_NOOP("KalSettingsImageSizeDialog", "Bildgröße Pläne"),
        QT_TRANSLATE_NOOP("KalSettingsImageSizeDialog", "Pläne komprimieren auf:"),
        QT_TRANSLATE_NOOP("KalSettingsImageSizeDialog", "Pläne"),
        QT_TRANSLATE_NOOP("KalSettingsImageSizeDialog",
                          "<html><head/><body><p><br>Sie haben die Größe für den Import von Plänen reduziert.</p>%1 "
                          "bestehende Pläne sind größer als die aktuelle Einstellung. Sollen diese Pläne verkleinert "
                          "werden?<p><span style=\" font-weight:600;\">Achtung: <br>Dieser Vorgang kann nicht "
                          "rückgängig gemacht werden. </span>Es wird daher empfohlen, ein Backup der Datei mit der "
                          "bisherigen Auflösung zu erstellen.</p></body></html>"),
        QT_TRANSLATE_NOOP("KalSettingsImageSizeDialog", "Plangröße"),
        QT_TRANSLATE_NOOP("KalSettingsImageSizeDialog", "Bestehende Pläne verkleinern"),
        QT_TRANSLATE_NOOP("KalSettingsImageSizeDialog", "Die Pläne werden bearbeitet."),
        ":/KalMainWindow/Resources/icon-plangroesse.ico"};
    return kind == KalPictureStore::Kind::Photo ? photos : plans;
}

// The reports after shrinking, photo and plan wording side by side.
struct ReportTexts
{
    const char *allFailed;
    const char *someFailed;
    const char *doneWithBackup;
    const char *done;
};

const ReportTexts &reportTexts(KalPictureStore::Kind kind)
{
    static const ReportTexts photos{
        QT_TRANSLATE_NOOP(
            "KalSettingsImageSizeDialog",
            "Es ist ein Fehler aufgetreten.\nDie Größe der bestehenden Fotos konnte nicht geändert werden."),
        QT_TRANSLATE_NOOP("KalSettingsImageSizeDialog",
                          "Es ist sind Fehler aufgetreten.\nDie Größe von %1 bestehenden Fotos konnte nicht geändert "
                          "werden."),
        QT_TRANSLATE_NOOP("KalSettingsImageSizeDialog",
                          "Die Größe der bestehenden Fotos wurde erfolgreich geändert.\nDie Backup-Datei %1 wurde "
                          "erstellt."),
        QT_TRANSLATE_NOOP("KalSettingsImageSizeDialog", "Die Größe der bestehenden Fotos wurde erfolgreich geändert.")};
    static const ReportTexts plans{
        QT_TRANSLATE_NOOP(
            "KalSettingsImageSizeDialog",
            "Es ist ein Fehler aufgetreten.\nDie Größe der bestehenden Pläne konnte nicht geändert werden."),
        QT_TRANSLATE_NOOP("KalSettingsImageSizeDialog",
                          "Es ist sind Fehler aufgetreten.\nDie Größe von %1 bestehenden Plänen konnte nicht geändert "
                          "werden."),
        QT_TRANSLATE_NOOP("KalSettingsImageSizeDialog",
                          "Die Größe der bestehenden Pläne wurde erfolgreich geändert.\nDie Backup-Datei %1 wurde "
                          "erstellt."),
        QT_TRANSLATE_NOOP("KalSettingsImageSizeDialog", "Die Größe der bestehenden Pläne wurde erfolgreich geändert.")};
    return kind == KalPictureStore::Kind::Photo ? photos : plans;
}

} // namespace

KalSettingsImageSizeDialog::KalSettingsImageSizeDialog(Kind kind, KalProject *project, QWidget *parent)
    : QDialog(parent)
    , m_kind(kind)
    , m_project(project)
    , m_ui(std::make_unique<Ui::KalSettingsImageSizeDialog>())
{
    m_ui->setupUi(this);
    const ModeTexts &texts = modeTexts(kind);
    setWindowTitle(tr(texts.title));
    setWindowIcon(QIcon(QLatin1String(texts.icon)));
    m_ui->lblImageSize->setText(tr(texts.label));
    m_ui->lblExplanation->setText(tr("Hier können Sie festlegen auf welche Pixelanzahl große %1 komprimiert werden "
                                     "sollen.\nMit höheren Werten steigt sowohl die Bildqualität als auch die "
                                     "Dateigröße.\nDie Komprimierung erfolgt nur für neu hinzugefügte %2.")
                                      .arg(tr(texts.plural), tr(texts.plural)));
    m_ui->sbImageSize->setValue(KalPictureStore::sizeLimit(kind));

    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &KalSettingsImageSizeDialog::slotAccepted);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_ui->pbDefault, &QPushButton::clicked, this, &KalSettingsImageSizeDialog::slotDefault);
}

KalSettingsImageSizeDialog::~KalSettingsImageSizeDialog() = default;

QString KalSettingsImageSizeDialog::shrinkQuestionText(Kind kind, int count)
{
    return tr(modeTexts(kind).question).arg(count);
}

QString KalSettingsImageSizeDialog::backupCheckBoxText()
{
    return tr("Backup der Datei mit bisheriger Auflösung erstellen");
}

void KalSettingsImageSizeDialog::slotDefault()
{
    m_ui->sbImageSize->setValue(KalPictureStore::defaultSizeLimit(m_kind));
}

void KalSettingsImageSizeDialog::slotAccepted()
{
    const int before = KalPictureStore::sizeLimit(m_kind);
    const int size = m_ui->sbImageSize->value();
    QSettings().setValue(KalPictureStore::sizeKey(m_kind), size);
    accept();
    if (size < before && m_project && m_project->isOpen())
        shrinkStoredPictures(size);
}

void KalSettingsImageSizeDialog::shrinkStoredPictures(int size)
{
    const ModeTexts &texts = modeTexts(m_kind);
    KalPictureStore store(m_project->database(), m_kind);
    store.setTransactions(&m_project->transactions());
    if (m_kind == Kind::Plan)
        store.setShrinkHook(KalPlans::shrinkHook(m_project->database()));
    QString error;
    const int count = store.countLargerThan(size, &error);
    if (count < 0 || !error.isEmpty()) {
        KalPrompt::critical(tr("Datenbankfehler"), error);
        return;
    }
    if (count == 0)
        return;

    bool backup = true;
    KalPrompt::Message question;
    question.icon = KalPrompt::Question;
    question.title = tr(texts.questionTitle);
    question.text = shrinkQuestionText(m_kind, count);
    question.checkBoxText = backupCheckBoxText();
    question.checkBoxChecked = &backup;
    question.buttons = {{KalPrompt::AcceptCustom, tr(texts.shrinkButton)}, {KalPrompt::Cancel, {}}};
    question.defaultButton = -1;
    question.escapeButton = 1;
    if (KalPrompt::ask(question) != 0)
        return;

    QString backupName;
    if (backup && !makeBackup(&backupName))
        return;

    const KalShrinkResult result = store.shrink(size);
    if (result.done > 0)
        m_project->setModified(true);
    const ReportTexts &reports = reportTexts(m_kind);
    if (result.canceled) {
        // Shrinking commits as it goes: what was done stays done.
        KalPrompt::information(tr(texts.questionTitle),
                               tr("Das Verkleinern wurde abgebrochen.\n%1 von %2 Bildern wurden verkleinert und "
                                  "bleiben es; die übrigen sind unverändert.")
                                   .arg(result.done)
                                   .arg(result.total));
        return;
    }
    if (result.failed > 0 && result.done == 0) {
        KalPrompt::critical(tr("Fehler"), tr(reports.allFailed));
        return;
    }
    if (result.failed > 0) {
        KalPrompt::critical(tr("Fehler"), tr(reports.someFailed).arg(result.failed));
        return;
    }
    const QString done =
        backupName.isEmpty() ? tr(reports.done) : tr(reports.doneWithBackup).arg(QDir::toNativeSeparators(backupName));
    KalPrompt::information(tr(texts.questionTitle),
                           done + tr("\n\nKlicken Sie im Hauptfenster auf 'Datei->Datenbank bereinigen', um die "
                                     "Dateigröße zu reduzieren."));
}

bool KalSettingsImageSizeDialog::makeBackup(QString *backupName)
{
    const QString projectPath = m_project->isUntitled() ? QString() : m_project->projectPath();
    QString error;
    if (KalShrinkBackup::create(projectPath, &error)) {
        *backupName = KalShrinkBackup::fileName(projectPath);
        return true;
    }
    QString text = error;
    if (!projectPath.isEmpty()) {
        text = tr("Die Backup-Datei %1 konnte nicht erstellt werden.")
                   .arg(QDir::toNativeSeparators(KalShrinkBackup::fileName(projectPath))) +
               QLatin1Char('\n') + error;
    }
    KalPrompt::critical(tr("Dateifehler"), text);
    return false;
}
