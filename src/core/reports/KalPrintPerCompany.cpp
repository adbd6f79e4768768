#include "KalPrintPerCompany.h"

#include "core/project/KalCompanyFormat.h"
#include "core/reports/KalPrintTexts.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

QString KalPrintPerCompany::safeName(const QString &text, int maxLength)
{
    QString name;
    name.reserve(text.size());
    for (const QChar c : text) {
        if (c.category() == QChar::Other_Control || QStringLiteral("/\\:*?\"<>|").contains(c))
            name += QLatin1Char('_');
        else
            name += c;
    }
    name = name.simplified().left(qMax(1, maxLength));
    while (!name.isEmpty() && (name.endsWith(QLatin1Char('.')) || name.endsWith(QLatin1Char(' '))))
        name.chop(1);
    while (name.startsWith(QLatin1Char('.')))
        name.remove(0, 1);
    // Windows refuses these as names, with or without an extension.
    static const QRegularExpression reserved(QStringLiteral("^(CON|PRN|AUX|NUL|COM[0-9]|LPT[0-9])(\\..*)?$"),
                                             QRegularExpression::CaseInsensitiveOption);
    if (reserved.match(name).hasMatch())
        name.prepend(QLatin1Char('_'));
    return name.isEmpty() ? QStringLiteral("_") : name;
}

bool KalPrintPerCompany::plan(QSqlDatabase db, const QVector<qint64> &defectIds, QVector<Part> *parts, QString *error)
{
    parts->clear();
    QSqlQuery q(db);
    q.setForwardOnly(true);
    if (!q.exec(QStringLiteral("SELECT projectname FROM kal"))) {
        *error = q.lastError().text();
        return false;
    }
    const QString project = q.next() ? q.value(0).toString() : QString();
    QHash<qint64, qint64> companyOf;
    if (!q.exec(QStringLiteral("SELECT id, company_id FROM defect"))) {
        *error = q.lastError().text();
        return false;
    }
    while (q.next())
        companyOf.insert(q.value(0).toLongLong(), q.value(1).toLongLong());
    QHash<qint64, QString> names;
    if (!q.exec(QStringLiteral("SELECT * FROM company"))) {
        *error = q.lastError().text();
        return false;
    }
    const KalCompanyFormat format = KalCompanyFormat::load();
    while (q.next())
        names.insert(q.record().value(QStringLiteral("id")).toLongLong(),
                     format.text(q.record(), KalCompanyFormat::gridSeparator()).simplified());

    QHash<qint64, int> index;
    for (const qint64 id : defectIds) {
        if (!companyOf.contains(id))
            continue;
        qint64 company = companyOf.value(id);
        // A company that is gone counts as none.
        if (!names.contains(company))
            company = 0;
        if (!index.contains(company)) {
            Part part;
            part.companyId = company;
            part.companyText = company ? names.value(company) : KalPrintTexts::text(KalPrintTexts::WithoutCompany);
            if (part.companyText.isEmpty())
                part.companyText = QString::number(company);
            index.insert(company, parts->size());
            parts->append(part);
        }
        (*parts)[index.value(company)].defectIds << id;
    }
    const QString prefix = project.isEmpty() ? QString() : project + QLatin1Char(' ');
    for (Part &part : *parts)
        part.fileName = safeName(prefix + tr("Mängelliste - ") + part.companyText) + QStringLiteral(".pdf");
    return true;
}

bool KalPrintPerCompany::write(QSqlDatabase db, const QVector<qint64> &defectIds, const KalPrintOptions &options,
                               const QString &folder, QStringList *written, QString *error)
{
    QVector<Part> parts;
    if (!plan(db, defectIds, &parts, error))
        return false;
    const QDir dir(folder);
    if (!dir.exists()) {
        *error = tr("Der Ordner %1 existiert nicht.").arg(QDir::toNativeSeparators(folder));
        return false;
    }
    QSet<QString> taken; // case-folded: Windows and macOS do not tell the case apart
    for (const Part &part : qAsConst(parts)) {
        const QString base = part.fileName.chopped(4);
        QString name = part.fileName;
        for (int n = 2; taken.contains(name.toCaseFolded()) || dir.exists(name); ++n)
            name = QStringLiteral("%1 (%2).pdf").arg(base).arg(n);
        taken.insert(name.toCaseFolded());
        const QString path = dir.filePath(name);
        KalPrintDefects job(db, part.defectIds, options);
        if (!job.writePdf(path, error))
            return false;
        written->append(path);
    }
    return true;
}
