// See Target.h.
#include "fuzz/Target.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace norvane::fuzz
{

void report(const QString& what)
{
    std::fprintf(stderr, "finding: %s\n", qPrintable(what));
    std::abort();
}

const QString& scratchFolder()
{
    static const QTemporaryDir folder;
    static const QString path = [] {
        QDir::setCurrent(folder.path());
        return folder.path();
    }();
    return path;
}

QString scratchFile(const QString& name, std::string_view content)
{
    QString path = scratchFolder() + u'/' + name;
    QFile file(path);
    const auto size = static_cast<qint64>(content.size());
    // A full disk must stop the run, not pass for an empty file.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || file.write(content.data(), size) != size)
        report(file.errorString());
    return path;
}

} // namespace norvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    norvane::fuzz::tryInput({reinterpret_cast<const char*>(data), size});
    return 0;
}
