#include "KalFontCheck.h"

#include "core/project/KalPrompt.h"

#include <QFont>
#include <QFontDatabase>
#include <QFontInfo>
#include <QHash>
#include <QRawFont>
#include <QVector>

namespace {

// Metric-compatible families that stand in for the Windows fonts.
const QHash<QString, QStringList> &substitutes()
{
    static const QHash<QString, QStringList> table{
        {QStringLiteral("arial"), {QStringLiteral("Liberation Sans"), QStringLiteral("Arimo")}},
        {QStringLiteral("times new roman"), {QStringLiteral("Liberation Serif"), QStringLiteral("Tinos")}},
        {QStringLiteral("courier new"), {QStringLiteral("Liberation Mono"), QStringLiteral("Cousine")}},
    };
    return table;
}

bool familyListed(const QString &family)
{
    const QStringList families = QFontDatabase().families();
    for (const QString &known : families) {
        // The database may list foundry variants as "Family [Foundry]".
        if (known.compare(family, Qt::CaseInsensitive) == 0 ||
            known.startsWith(family + QLatin1String(" ["), Qt::CaseInsensitive))
            return true;
    }
    return false;
}

} // namespace

QStringList KalFontCheck::requiredFamilies()
{
    return {QStringLiteral("Arial"), QStringLiteral("Wingdings"), QStringLiteral("Lucida Sans Unicode")};
}

bool KalFontCheck::isInstalled(const QString &family)
{
    if (family.trimmed().isEmpty())
        return false;
    if (familyListed(family))
        return true;
    const QStringList stand = substitutes().value(family.toLower());
    const QString served = QFontInfo(QFont(family)).family();
    for (const QString &candidate : stand) {
        if (served.compare(candidate, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

QStringList KalFontCheck::missingFamilies(const QStringList &families)
{
    QStringList missing;
    for (const QString &family : families) {
        if (!isInstalled(family))
            missing.append(family);
    }
    return missing;
}

QStringList KalFontCheck::warnAboutMissing(const QStringList &families)
{
    const QStringList missing = missingFamilies(families);
    if (missing.isEmpty())
        return missing;
    KalPrompt::Message message;
    message.icon = KalPrompt::Warning;
    message.title = tr("Fehlende Schriften im Fotoeditor");
    message.text = tr("Folgende Schriften sind auf Ihrem System nicht installiert:") + QLatin1Char('\n') +
                   missing.join(QLatin1Char('\n')) + QLatin1Char('\n') +
                   tr("\nSie müssen diese Schriften installieren, um den vollen Funktionsumfang des Fotoeditors "
                      "nutzen zu können.");
    message.dontShowAgainKey = QStringLiteral("Messages/DontShowMissingFontsMsg");
    message.dontShowAgainText = tr("Diese Meldung nicht mehr anzeigen");
    KalPrompt::ask(message);
    return missing;
}

bool KalFontCheck::canRender(const QString &family, const QString &text)
{
    if (!isInstalled(family))
        return false;
    QFont font(family);
    font.setStyleStrategy(QFont::NoFontMerging);
    const QRawFont raw = QRawFont::fromFont(font);
    if (!raw.isValid())
        return false;
    const QVector<uint> codes = text.toUcs4();
    for (uint code : codes) {
        if (!raw.supportsCharacter(code))
            return false;
    }
    return !codes.isEmpty();
}

QString KalFontCheck::familyFor(const QString &text, const QStringList &preferred)
{
    for (const QString &family : preferred) {
        if (canRender(family, text))
            return family;
    }
    const QStringList families = QFontDatabase().families();
    for (const QString &family : families) {
        if (canRender(family, text))
            return family;
    }
    return QString();
}
