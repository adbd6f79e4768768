#pragma once

// Each test class runs through one of these; main() runs them all.
int runCompanyFormatTests(int argc, char **argv);
int runDefectCsvTests(int argc, char **argv);
int runCompanyImportTests(int argc, char **argv);
