#include "KalPrivacyNotice.h"

#include "core/project/KalPrompt.h"

#include <QSettings>

QString KalPrivacyNotice::title()
{
    return tr("Erfassung personenbezogener Daten");
}

QString KalPrivacyNotice::text()
{
    return tr("<p>Wenn Sie hier personenbezogene Daten (gem. Art. 4 DSGVO) erfassen und Berichte mit diesen "
              "Daten veröffentlichen, benötigen Sie die Einwilligung der betroffenen Personen.</p>"
              "<p>Den Personenbezug können Sie vermeiden, indem Sie allgemeine Angaben wie "
              "&quot;Architekt&quot; oder Initialen statt Namen eintragen.</p>"
              "<p>Ein Muster für eine Einwilligungserklärung finden Sie unter "
              "<a href=\"https://www.quellor.de/einwilligung\">www.quellor.de/einwilligung</a>.</p>");
}

bool KalPrivacyNotice::isSuppressed()
{
    return QSettings().value(settingsKey(), false).toBool();
}

void KalPrivacyNotice::showIfWanted()
{
    if (isSuppressed())
        return;
    KalPrompt::Message m;
    m.icon = KalPrompt::Information;
    m.title = title();
    m.text = text();
    m.dontShowAgainKey = settingsKey();
    m.dontShowAgainText = tr("Diese Meldung nicht mehr anzeigen");
    KalPrompt::ask(m);
}
