// Feeds every file named on the command line (or found in a folder named
// there) to the fuzz entry point once: the regression corpus as a test of
// the normal build. Exit code 0 unless a file cannot be read; a fault the
// input triggers ends the process the way it would end the program.
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cstddef>
#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

int main(int argc, char **argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    QStringList files;
    for (int i = 1; i < argc; ++i) {
        const QString arg = QString::fromLocal8Bit(argv[i]);
        if (QFileInfo(arg).isDir()) {
            for (const QFileInfo &entry : QDir(arg).entryInfoList(QDir::Files, QDir::Name))
                files << entry.filePath();
        } else {
            files << arg;
        }
    }
    int replayed = 0;
    for (const QString &path : qAsConst(files)) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "cannot read %s\n", qPrintable(path));
            return 1;
        }
        const QByteArray data = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(data.constData()), size_t(data.size()));
        ++replayed;
    }
    std::printf("%d inputs replayed\n", replayed);
    return 0;
}
