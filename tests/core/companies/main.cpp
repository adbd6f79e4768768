#include "CompanyTests.h"
#include "support/KalTestSettings.h"

#include <QCoreApplication>
#include <QLocale>

// Company output format, defect CSV export (also through pellwick-cli) and
// the company imports: headless, one executable.
int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    KalTestSettings::isolate();
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    int failed = 0;
    failed += runCompanyFormatTests(argc, argv);
    failed += runDefectCsvTests(argc, argv);
    failed += runCompanyImportTests(argc, argv);
    return failed;
}
