// A zip archive that holds a copy of a customer.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace norvane::customers
{

/// A file on its way into an archive, with its name there: "SHOP/velmar.mdb".
struct ArchivedFile {
    QString path;
    QString name;
};

/// The file of an archive that lists the SHA-256 sums of the others, as sha256sum does. The format protects
/// the content of each file only, not which files there are and what they are called.
inline constexpr QLatin1StringView sumsFileName("norvane.sums");

/// Writes a new archive at @p path with the sums, to the disk and not only to the system's memory.
/// @param files not empty; all in one folder of the archive.
/// @param goOn called between pieces; may throw. @throws RuntimeFailure with Failure::PathOrFileAccess,
/// Failure::DiskFull.
void writeArchive(const QString& path, const QList<ArchivedFile>& files, const std::function<void()>& goOn);

/// Reads an archive. What comes out of it was written by somebody: no name leads out of the folder that it is
/// unpacked to.
class CopyArchive
{
public:
    /// @throws RuntimeFailure with Failure::FileNotFound, Failure::NotOurDatabase for a file that is not an
    /// archive, is cut off, or has a name that leads elsewhere.
    explicit CopyArchive(const QString& path);
    ~CopyArchive();
    CopyArchive(const CopyArchive&) = delete;
    CopyArchive& operator=(const CopyArchive&) = delete;

    /// Names of the files.
    [[nodiscard]] const QStringList& names() const { return m_names; }
    /// Reads all files to their end and compares them with the sums. The content of each is written to the
    /// path that @p target gives for its name, and not at all if that is empty.
    /// @throws RuntimeFailure with Failure::NotOurDatabase if anything is not as it was written, and what
    /// writing throws.
    void unpack(const std::function<QString(const QString& name)>& target, const std::function<void()>& goOn);

private:
    struct Closer {
        void operator()(void* zip) const;
    };
    void readNames();
    void read(const QString& name, const std::function<void(QByteArrayView piece)>& take);
    [[nodiscard]] QByteArray unpackFile(const QString& name, const QString& path,
                                        const std::function<void()>& goOn);
    [[noreturn]] void failDamaged(const QString& reason) const;

    QString m_path;
    std::unique_ptr<void, Closer> m_zip;
    QStringList m_names;
};

} // namespace norvane::customers
