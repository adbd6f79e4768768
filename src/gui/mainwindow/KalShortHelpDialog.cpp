#include "KalShortHelpDialog.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

KalShortHelpDialog::KalShortHelpDialog(Topic topic, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("KalShortHelpDialog"));
    setWindowTitle(titleOf(topic));

    auto *layout = new QVBoxLayout(this);
    auto *row = new QHBoxLayout;
    auto *icon = new QLabel(this);
    icon->setObjectName(QStringLiteral("lblIcon"));
    icon->setPixmap(QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-help.ico")).pixmap(48, 48));
    icon->setAlignment(Qt::AlignTop);
    row->addWidget(icon);
    auto *text = new QLabel(textOf(topic), this);
    text->setObjectName(QStringLiteral("lblText"));
    text->setTextFormat(Qt::RichText);
    text->setWordWrap(true);
    text->setMinimumWidth(460);
    row->addWidget(text, 1);
    layout->addLayout(row);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    auto *close = new QPushButton(tr("Schließen"), this);
    close->setObjectName(QStringLiteral("pbClose"));
    close->setDefault(true);
    buttons->addWidget(close);
    layout->addLayout(buttons);
    connect(close, &QPushButton::clicked, this, &KalShortHelpDialog::closeClicked);
    connect(this, &KalShortHelpDialog::closeClicked, this, &QDialog::accept);
}

QString KalShortHelpDialog::titleOf(Topic topic)
{
    return topic == ImportFromSiteJournal ? tr("Anleitung für den Datenimport aus einem Bautagebuch")
                                          : tr("Anleitung für den Datenimport von einem Mobilgerät");
}

QString KalShortHelpDialog::textOf(Topic topic)
{
    if (topic == ImportFromSiteJournal) {
        return tr("<h3>Datenimport aus dem Bautagebuch für PC und Mac</h3>"
                  "<p>Das Bautagebuch ist die Datenquelle: Mängel, die Sie dort in Ihren Berichten erfassen, "
                  "werden mit ihren Mängelfotos und den beteiligten Firmen in das Pellwick-Projekt übernommen.</p>"
                  "<ol><li>Öffnen oder erstellen Sie das Pellwick-Projekt für die Baustelle.</li>"
                  "<li>Wählen Sie im Menü \"Datenimport\" den Eintrag \"Mängel und Firmen aus einem Bautagebuch "
                  "importieren\" und wählen Sie die Bautagebuch-Datei (*.sjd) aus.</li>"
                  "<li>Das Projekt bleibt mit dem Bautagebuch verbunden: Später übernehmen Sie neue und geänderte "
                  "Mängel mit \"Mängel und Firmen aus dem Bautagebuch aktualisieren\" oder automatisch.</li></ol>"
                  "<p>Mängel, die Sie im Pellwick-Projekt bearbeitet haben, werden beim Aktualisieren nicht "
                  "überschrieben.</p>");
    }
    return tr("<h3>Datenimport von einem Mobilgerät</h3>"
              "<p>Mängel, Mängelfotos und Firmen können Sie auf der Baustelle mit der Quellor App auf einem "
              "Smartphone oder Tablet erfassen und anschließend in das Pellwick-Projekt importieren.</p>"
              "<ol><li>Übertragen Sie die Datenbank der App auf Ihren Computer.</li>"
              "<li>Wählen Sie im Menü \"Datenimport\" den Eintrag \"Mängel und Firmen aus der Quellor App "
              "importieren\" und wählen Sie die übertragene Datei aus.</li>"
              "<li>Die Mängel werden mit ihren Fotos und Firmen in das geöffnete Projekt übernommen.</li></ol>");
}
