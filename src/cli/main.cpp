// pellwick-cli: project files from scripts and headless machines.
#include "cli/KalCli.h"
#include "cli/KalCliAddDefect.h"
#include "cli/KalCliAddPhoto.h"
#include "cli/KalCliExport.h"
#include "cli/KalCliExportPhotos.h"
#include "cli/KalCliExportPlan.h"
#include "cli/KalCliImportCompanies.h"
#include "cli/KalCliImportJournal.h"
#include "cli/KalCliImportPlan.h"
#include "cli/KalCliPrint.h"
#include "cli/KalCliProject.h"

int main(int argc, char **argv)
{
    // One line per command, in the order the help lists them.
    const QList<KalCli::Command> commands{
        {"new", "new FILE.pwp", "create a project file (an existing file is refused)", kalCliNew},
        {"info", "info FILE.pwp [--json]", "file version, integrity, rows per table, project name (read-only)",
         kalCliInfo},
        {"check", "check FILE.pwp", "integrity of the file and of each backup; exit 0 only when sound", kalCliCheck},
        {"add-defect",
         "add-defect FILE.pwp --description TEXT [--number N] [--room TEXT]\n"
         "             [--company ID] [--status ID] [--priority TEXT]",
         "add a defect, save with backups, print its id", kalCliAddDefect},
        {"add-photo", "add-photo FILE.pwp --defect NUMBER IMAGE...",
         "store images as photos of the defect with that number, save with backups; exit 1 when any failed",
         kalCliAddPhoto},
        {"export-photos", "export-photos FILE.pwp --defect NUMBER --output DIR",
         "write the defect's photos as \"01 Caption.jpg\" into DIR, never replacing a file (read-only)",
         kalCliExportPhotos},
        {"vacuum", "vacuum FILE.pwp", "compact the project and save it", kalCliVacuum},
        {"export-defects", "export-defects FILE.pwp [--output OUT.csv] [--columns compact|all]",
         "defect list as CSV (UTF-8, \";\"), to stdout without --output (read-only)", kalCliExportDefects},
        {"import-companies",
         "import-companies FILE.pwp ADDRESSES.csv [--dry-run] [--separator C]\n"
         "             [--encoding utf-8|windows-1252|utf-16]",
         "add the companies of an address file the project lacks; --dry-run only shows them", kalCliImportCompanies},
        {"import-journal", "import-journal FILE.pwp JOURNAL.sjd [--new-only]",
         "import defects, photos and companies from a site journal (linked on first use) or update them, "
         "save when anything changed; without --yes nothing is deleted or restored",
         kalCliImportJournal},
        {"import-plan", "import-plan FILE.pwp PLAN.(pdf|jpg|png) [--name TEXT]",
         "import a plan (a PDF's first page), save with backups, print its id", kalCliImportPlan},
        {"export-plan", "export-plan FILE.pwp --plan ID --output OUT.png",
         "the plan at its stored size with markers and texts as a picture (read-only)", kalCliExportPlan, true},
        {"print",
         "print FILE.pwp --output OUT.pdf [--layout compact|detailed]\n"
         "             [--filter-from-project] [--per-company DIR]",
         "defect list as PDF: every defect by number, or the project's saved filter with its pictures; "
         "--per-company writes one PDF per company into DIR (read-only)",
         kalCliPrint, true},
    };
    return KalCli::run(argc, argv, commands);
}
