// An address file made of arbitrary bytes: loaded with every guess, then read
// again with each separator, encoding and header choice the preview offers.
#include "KalFuzzSupport.h"
#include "core/import/KalAddressFile.h"

#include <cstddef>
#include <cstdint>

namespace {

void readAll(const KalAddressFile &file)
{
    file.columnCaptions();
    file.problem();
    file.unmappedCaptions();
    for (int column = 0; column < file.columnCount(); ++column)
        file.columnNote(column);
    file.companies();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    KalFuzzSupport::initialize(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    KalAddressFile file;
    QString error;
    if (!file.loadData(QByteArray(reinterpret_cast<const char *>(data), int(size)), &error))
        return 0;
    readAll(file);
    // The last byte picks the choices a user makes in the preview.
    const uint8_t choice = size > 0 ? data[size - 1] : 0;
    file.setSeparator(KalAddressFile::separators().value(choice % 4));
    file.setEncoding(KalAddressFile::Encoding((choice / 4) % 3));
    if (choice & 0x10)
        file.setHasHeader(!file.hasHeader());
    if (file.columnCount() > 0)
        file.setMapping(choice % file.columnCount(), int(choice / 32) - 1);
    readAll(file);
    return 0;
}
