#include "KalCliImportCompanies.h"

#include "cli/KalCli.h"
#include "core/import/KalAddressFile.h"
#include "core/import/KalCompanyImport.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <cstdio>

namespace {

using KalCli::Failed;
using KalCli::fileMissing;
using KalCli::out;
using KalCli::Success;
using KalCli::tr;
using KalCli::usageError;

int fail(const QString &title, const QString &text)
{
    KalPrompt::critical(title, text);
    return Failed;
}

struct Encoding
{
    const char *name;
    KalAddressFile::Encoding encoding;
};
const Encoding s_encodings[] = {
    {"utf-8", KalAddressFile::Utf8}, {"windows-1252", KalAddressFile::Windows1252}, {"utf-16", KalAddressFile::Utf16}};

QString encodingName(KalAddressFile::Encoding encoding)
{
    for (const Encoding &e : s_encodings) {
        if (e.encoding == encoding)
            return QString::fromLatin1(e.name).toUpper();
    }
    return QString();
}

QString separatorName(QChar separator)
{
    return separator == QLatin1Char('\t') ? QStringLiteral("tab") : QStringLiteral("\"%1\"").arg(separator);
}

struct ImportOptions
{
    QString project;
    QString addresses;
    bool dryRun = false;
    QChar separator;
    int encoding = -1;
};

// Empty on success, else the usage error. `args` starts with the address file.
QString parse(const QStringList &args, ImportOptions *options)
{
    QStringList positional{options->project};
    for (int i = 0; i < args.size(); ++i) {
        const QString &arg = args.at(i);
        if (arg == QLatin1String("--dry-run")) {
            options->dryRun = true;
        } else if (arg == QLatin1String("--separator") || arg == QLatin1String("--encoding")) {
            if (i + 1 >= args.size() || args.at(i + 1).isEmpty())
                return QStringLiteral("%1 needs a value").arg(arg);
            const QString value = args.at(++i);
            if (arg == QLatin1String("--separator")) {
                const QString sep = value == QLatin1String("tab") || value == QLatin1String("\\t") ? "\t" : value;
                if (sep.size() != 1)
                    return QStringLiteral("--separator takes one character or \"tab\", not '%1'").arg(value);
                options->separator = sep.at(0);
            } else {
                for (const Encoding &e : s_encodings) {
                    if (value.compare(QLatin1String(e.name), Qt::CaseInsensitive) == 0)
                        options->encoding = e.encoding;
                }
                if (options->encoding < 0)
                    return QStringLiteral("--encoding takes utf-8, windows-1252 or utf-16, not '%1'").arg(value);
            }
        } else if (arg.startsWith(QLatin1String("--"))) {
            return QStringLiteral("unknown argument '%1'").arg(arg);
        } else {
            positional << arg;
        }
    }
    if (positional.size() != 2)
        return QStringLiteral("import-companies needs a project file and an address file");
    options->project = positional.at(0);
    options->addresses = positional.at(1);
    return QString();
}

void printPlan(const KalAddressFile &file, const QVector<KalCompanyRecord> &companies,
               const QVector<int> &duplicateList)
{
    const QSet<int> duplicates(duplicateList.begin(), duplicateList.end());
    out(QStringLiteral("Separator: %1").arg(separatorName(file.separator())));
    out(QStringLiteral("Encoding:  %1").arg(encodingName(file.encoding())));
    out(QStringLiteral("Header:    %1").arg(file.hasHeader() ? QStringLiteral("yes") : QStringLiteral("no")));
    out(QStringLiteral("Columns:"));
    const QStringList captions = file.columnCaptions();
    for (int column = 0; column < file.columnCount(); ++column) {
        const QString note = file.columnNote(column);
        out(QStringLiteral("  %1 \"%2\" -> %3%4")
                .arg(column + 1)
                .arg(captions.at(column), KalAddressFile::fieldCaption(file.mapping().at(column)),
                     note.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(note)));
    }
    if (file.longRows() > 0)
        out(QStringLiteral("Rows with more fields than captions: %1").arg(file.longRows()));
    out(QStringLiteral("Records: %1, already in the project: %2").arg(companies.size()).arg(duplicates.size()));
    for (int i = 0; i < companies.size(); ++i) {
        out(QStringLiteral("  %1%2").arg(companies.at(i).displayText(),
                                         duplicates.contains(i) ? QStringLiteral("  [skipped: already in the project]")
                                                                : QString()));
    }
}

// Reads the address file with the user's overrides; false after a message.
bool readAddresses(const ImportOptions &options, KalAddressFile *file)
{
    QString error;
    if (!file->load(options.addresses, &error)) {
        KalPrompt::critical(tr("Dateifehler"), error);
        return false;
    }
    if (options.encoding >= 0 && options.encoding != file->encoding())
        file->setEncoding(KalAddressFile::Encoding(options.encoding));
    if (!options.separator.isNull() && options.separator != file->separator())
        file->setSeparator(options.separator);
    const QString nativePath = QDir::toNativeSeparators(options.addresses);
    if (!file->problem().isEmpty()) {
        KalPrompt::critical(tr("Dateifehler"),
                            tr("Die Datei\n%1\nkann nicht importiert werden:\n%2").arg(nativePath, file->problem()));
        return false;
    }
    if (file->companies().isEmpty()) {
        KalPrompt::critical(tr("Dateifehler"), tr("Die Datei\n%1\nenthält keine Adressen, die einem Feld zugeordnet "
                                                  "sind.")
                                                   .arg(nativePath));
        return false;
    }
    return true;
}

int importInto(const QString &projectFile, const QVector<KalCompanyRecord> &companies)
{
    KalProject project;
    if (!project.openProject(projectFile))
        return Failed;
    const KalCompanyImport::Result result = KalCompanyImport::insertCompanies(project, companies);
    if (!result.ok) {
        project.closeProject();
        return fail(tr("Fehler"), result.errorText);
    }
    // Nothing new: the file stays as it was, without a new backup.
    const int saved = result.insertedIds.isEmpty() ? int(KalProject::Saved) : project.saveProject();
    project.closeProject();
    if (saved != KalProject::Saved)
        return Failed;
    out(QStringLiteral("Added: %1").arg(result.insertedIds.size()));
    out(QStringLiteral("Skipped (already in the project): %1").arg(result.duplicates.size()));
    for (const KalCompanyRecord &record : result.duplicates)
        out(QStringLiteral("  %1").arg(record.displayText()));
    return Success;
}

} // namespace

int kalCliImportCompanies(const QString &projectFile, const QStringList &args)
{
    ImportOptions options;
    options.project = projectFile;
    const QString usage = parse(args, &options);
    if (!usage.isEmpty())
        return usageError(usage);
    if (fileMissing(options.project))
        return Failed;

    KalAddressFile file;
    if (!readAddresses(options, &file))
        return Failed;
    const QVector<KalCompanyRecord> companies = file.companies();
    if (!options.dryRun)
        return importInto(options.project, companies);

    // Read-only: a dry run never leaves a working copy or changes a byte.
    QVector<KalCompanyRecord> existing;
    QString error;
    if (!KalCompanyImport::readProjectFile(options.project, &existing, &error, true))
        return fail(tr("Dateifehler"), error);
    printPlan(file, companies, KalCompanyImport::findDuplicates(existing, companies));
    return Success;
}
