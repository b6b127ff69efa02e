// See CopyArchive.h.
#include "customers/CopyArchive.h"

#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <minizip/unzip.h>
#include <minizip/zip.h>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

using namespace Qt::Literals::StringLiterals;

namespace norvane::customers
{
namespace
{

constexpr qint64 piece = qint64{256} * 1024;
/// Sales are mostly digits and zeros: the quickest level already leaves a tenth.
constexpr int compression = 1;
/// Names are in UTF-8.
constexpr uLong unicodeNames = 1U << 11U;
constexpr uLong madeByUnix = 3U << 8U;

[[noreturn]] void failWriting(const QString& path)
{
    throw RuntimeFailure(Failure::DiskFull,
                         u"%1 could not be written to its end. Is the disk full?"_s.arg(path));
}

zip_fileinfo detailsOf(const QString& path)
{
    const QDateTime written = QFileInfo(path).lastModified();
    const QDate day = written.date();
    const QTime time = written.time();
    const auto plain = [](int number) {
        return static_cast<uInt>(number);
    };
    zip_fileinfo details{};
    details.tmz_date = {plain(time.second()), plain(time.minute()),   plain(time.hour()),
                        plain(day.day()),     plain(day.month() - 1), plain(day.year())};
    return details;
}

/// A line of sha256sum.
QByteArray sumLine(const QCryptographicHash& sum, const QString& name)
{
    return sum.result().toHex() + "  " + name.toUtf8() + '\n';
}

class ArchiveWriter
{
public:
    explicit ArchiveWriter(const QString& path) : m_path(path), m_zip(open(path))
    {
        if (m_zip == nullptr)
            throw RuntimeFailure(Failure::PathOrFileAccess, u"%1 cannot be written."_s.arg(path));
    }
    ~ArchiveWriter()
    {
        if (m_zip != nullptr)
            zipClose(m_zip, nullptr);
    }
    ArchiveWriter(const ArchiveWriter&) = delete;
    ArchiveWriter& operator=(const ArchiveWriter&) = delete;

    void add(const ArchivedFile& file, const std::function<void()>& goOn)
    {
        const auto source = openToRead(file.path);
        QCryptographicHash sum(QCryptographicHash::Sha256);
        begin(file.name, detailsOf(file.path));
        while (!source->atEnd()) {
            goOn();
            const QByteArray bytes = source->read(piece);
            if (bytes.isEmpty())
                throw RuntimeFailure(Failure::PathOrFileAccess, u"%1 cannot be read."_s.arg(file.path));
            sum.addData(bytes);
            write(bytes);
        }
        end();
        m_sums += sumLine(sum, file.name);
    }
    /// Adds the sums of all files to their folder.
    void finish(const QString& folder)
    {
        begin(folder + u'/' + sumsFileName, {});
        write(m_sums);
        end();
        if (zipClose(std::exchange(m_zip, nullptr), nullptr) != ZIP_OK)
            failWriting(m_path);
    }

private:
    static zipFile open(const QString& path)
    {
        return zipOpen64(QFile::encodeName(path).constData(), APPEND_STATUS_CREATE);
    }
    void begin(const QString& name, const zip_fileinfo& details)
    {
        constexpr int zip64 = 1;
        if (zipOpenNewFileInZip4_64(m_zip, name.toUtf8().constData(), &details, nullptr, 0, nullptr, 0,
                                    nullptr, Z_DEFLATED, compression, 0, -MAX_WBITS, DEF_MEM_LEVEL,
                                    Z_DEFAULT_STRATEGY, nullptr, 0, madeByUnix, unicodeNames,
                                    zip64) != ZIP_OK)
            failWriting(m_path);
    }
    void write(const QByteArray& bytes)
    {
        if (zipWriteInFileInZip(m_zip, bytes.constData(), static_cast<unsigned>(bytes.size())) != ZIP_OK)
            failWriting(m_path);
    }
    void end()
    {
        if (zipCloseFileInZip(m_zip) != ZIP_OK)
            failWriting(m_path);
    }

    QByteArray m_sums;
    QString m_path;
    zipFile m_zip;
};

void syncToDisk(const QString& path)
{
#ifdef Q_OS_UNIX
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite) || ::fsync(file.handle()) != 0)
        failWriting(path);
#endif
}

/// The parts of a name that no other program reads as a way out.
bool staysInFolder(const QString& name)
{
    const QStringList parts = name.split(u'/');
    return !name.contains(u'\\') && !name.contains(u':') && !name.contains(QChar::Null) &&
           std::ranges::none_of(parts, [](const QString& part) {
               return part.isEmpty() || part == u"."_s || part == u".."_s;
           });
}

} // namespace

void writeArchive(const QString& path, const QList<ArchivedFile>& files, const std::function<void()>& goOn)
{
    ArchiveWriter writer(path);
    for (const ArchivedFile& file : files)
        writer.add(file, goOn);
    writer.finish(files.front().name.section(u'/', 0, 0));
    syncToDisk(path);
}

void CopyArchive::Closer::operator()(void* zip) const
{
    unzClose(zip);
}

CopyArchive::CopyArchive(const QString& path) : m_path(path)
{
    if (!QFileInfo::exists(path))
        throw RuntimeFailure(Failure::FileNotFound, u"There is no file %1."_s.arg(path));
    m_zip.reset(unzOpen64(QFile::encodeName(path).constData()));
    if (m_zip == nullptr)
        failDamaged(u"it is not a copy, or was cut off."_s);
    readNames();
}

CopyArchive::~CopyArchive() = default;

void CopyArchive::failDamaged(const QString& reason) const
{
    throw RuntimeFailure(Failure::NotOurDatabase, u"The copy %1 is damaged: %2"_s.arg(m_path, reason));
}

void CopyArchive::readNames()
{
    constexpr int longest = 4096;
    for (int result = unzGoToFirstFile(m_zip.get()); result != UNZ_END_OF_LIST_OF_FILE;
         result = unzGoToNextFile(m_zip.get())) {
        QByteArray name(longest, '\0');
        unz_file_info64 details{};
        if (result != UNZ_OK || unzGetCurrentFileInfo64(m_zip.get(), &details, name.data(), longest - 1,
                                                        nullptr, 0, nullptr, 0) != UNZ_OK)
            failDamaged(u"its list of files cannot be read."_s);
        m_names << QString::fromUtf8(name.constData());
        if (!staysInFolder(m_names.last()))
            failDamaged(u"it has a file named \"%1\"."_s.arg(m_names.last()));
    }
}

void CopyArchive::read(const QString& name, const std::function<void(QByteArrayView piece)>& take)
{
    constexpr int exactCase = 1;
    if (unzLocateFile(m_zip.get(), name.toUtf8().constData(), exactCase) != UNZ_OK ||
        unzOpenCurrentFile(m_zip.get()) != UNZ_OK)
        failDamaged(u"%1 cannot be read."_s.arg(name));
    QByteArray bytes(piece, '\0');
    int count = 0;
    while ((count = unzReadCurrentFile(m_zip.get(), bytes.data(), static_cast<unsigned>(bytes.size()))) > 0)
        take(QByteArrayView(bytes).first(count));
    if (unzCloseCurrentFile(m_zip.get()) != UNZ_OK || count < 0)
        failDamaged(u"%1 has other content than was written."_s.arg(name));
}

/// @return its line of the sums.
QByteArray CopyArchive::unpackFile(const QString& name, const QString& path,
                                   const std::function<void()>& goOn)
{
    QFile target(path);
    if (!path.isEmpty() && !target.open(QIODevice::WriteOnly))
        throw RuntimeFailure(Failure::PathOrFileAccess, u"%1 cannot be written."_s.arg(path));
    QCryptographicHash sum(QCryptographicHash::Sha256);
    read(name, [&](QByteArrayView bytes) {
        goOn();
        sum.addData(bytes);
        if (!path.isEmpty() && target.write(bytes.data(), bytes.size()) != bytes.size())
            failWriting(path);
    });
    if (!path.isEmpty() && !target.flush())
        failWriting(path);
    return sumLine(sum, name);
}

/// The files are read in the order in which they were written.
void CopyArchive::unpack(const std::function<QString(const QString& name)>& target,
                         const std::function<void()>& goOn)
{
    QByteArray written;
    QByteArray found;
    for (const QString& name : m_names) {
        if (name.endsWith(u'/' + sumsFileName)) {
            read(name, [&written](QByteArrayView bytes) { written += bytes; });
        } else {
            found += unpackFile(name, target(name), goOn);
        }
    }
    if (written != found)
        failDamaged(u"its files are not those that were written."_s);
}

} // namespace norvane::customers
