// A project file made of arbitrary bytes: read as pellwick-cli reads it
// (integrity, CSV export without a working copy), then opened as the program
// opens it (probe, working copy, models) and exported from the models.
#include "KalFuzzSupport.h"
#include "cli/KalCliProject.h"
#include "core/project/KalCompanyFormat.h"
#include "core/project/KalDefectCsv.h"
#include "core/project/KalProject.h"

#include <QFile>
#include <QSqlDatabase>
#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    KalFuzzSupport::initialize(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString file = KalFuzzSupport::freshFolder() + QStringLiteral("/bau.pwp");
    {
        QFile out(file);
        if (!out.open(QIODevice::WriteOnly))
            return 0;
        out.write(reinterpret_cast<const char *>(data), qint64(size));
    }
    kalCliReadOnly(file, [](QSqlDatabase &db) {
        if (!db.isOpen())
            return;
        KalProject::checkIntegrity(db.connectionName());
        QByteArray csv;
        QString error;
        KalDefectCsv::fromDatabase(db, KalDefectCsv::All, KalCompanyFormat::factoryDefaults(), &csv, &error);
    });
    KalProject project;
    if (project.openProject(file)) {
        KalDefectCsv::fromModel(project.model(QStringLiteral("defect")), KalDefectCsv::All);
        project.closeProject();
    }
    return 0;
}
