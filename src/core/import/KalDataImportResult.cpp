#include "KalDataImportResult.h"

QString KalDataImportResult::companyWord(int count)
{
    return count == 1 ? tr("Firma") : tr("Firmen");
}

QString KalDataImportResult::defectWord(int count)
{
    return count == 1 ? tr("Mangel") : tr("Mängel");
}

QString KalDataImportResult::photoWord(int count)
{
    return count == 1 ? tr("Foto") : tr("Fotos");
}

QString KalDataImportResult::text() const
{
    QString out;
    if (update) {
        out = tr("Die Daten wurden aktualisiert.");
    } else {
        const int c = companies.added + companies.restored;
        const int d = defects.added + defects.restored;
        const int p = photos.added + photos.restored;
        // One pass over the pattern: the words never hold placeholders, but
        // the numbers come before them and must not be read as one.
        out = tr("Es wurden %1 %2 und %3 %4 mit %5 %6 importiert.");
        const QStringList values = {QString::number(c), companyWord(c),     QString::number(d),
                                    defectWord(d),      QString::number(p), photoWord(p)};
        for (int i = values.size(); i >= 1; --i)
            out.replace(QStringLiteral("%") + QString::number(i), values.at(i - 1));
    }
    if (!notUpdatedDefects.isEmpty()) {
        out += tr("\n\nFolgende Mängel wurden nicht aktualisiert, da sie bereits im Pellwick geändert wurden:\n\n");
        out += notUpdatedDefects.join(QLatin1Char('\n'));
    }
    if (!notUpdatedCompanies.isEmpty()) {
        out += tr("\nFolgende Firmen wurden nicht aktualisiert, da sie bereits im Pellwick geändert wurden:\n\n");
        out += notUpdatedCompanies.join(QLatin1Char('\n'));
    }
    if (notUpdatedPhotos == 1)
        out += tr("\n1 Foto wurde nicht aktualisiert, da es bereits im Pellwick geändert wurde.\n");
    else if (notUpdatedPhotos > 1)
        out += tr("\n%1 Fotos wurden nicht aktualisiert, da sie bereits im Pellwick geändert wurden.\n")
                   .arg(notUpdatedPhotos);
    if (!skippedPhotos.isEmpty()) {
        out += tr("\n\nFolgende Fotos konnten nicht übernommen werden:\n\n");
        out += skippedPhotos.join(QLatin1Char('\n'));
    }
    return out;
}
