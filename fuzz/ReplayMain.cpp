// Runs a fuzz target with every file of the folders named on the command line, so that findings remain fixed
// in every build: the target ends the process if one does not.
#include "fuzz/Target.h"

#include <QDirIterator>
#include <QFile>

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace
{

int replay(const QString& folder)
{
    int count = 0;
    for (QDirIterator files(QDir(folder).absolutePath(), QDir::Files); files.hasNext(); ++count) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            norvane::fuzz::report(QStringLiteral("%1: %2").arg(file.fileName(), file.errorString()));
        // Shows which input ended the process.
        std::fprintf(stderr, "%s\n", qPrintable(file.fileName()));
        const QByteArray content = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(content.constData()),
                               static_cast<std::size_t>(content.size()));
    }
    return count;
}

} // namespace

int main(int argc, char** argv)
{
    int count = 0;
    for (int i = 1; i < argc; ++i)
        count += replay(QFile::decodeName(argv[i]));
    std::fprintf(stderr, "%d inputs\n", count);
    return count > 0 ? 0 : 1;
}
