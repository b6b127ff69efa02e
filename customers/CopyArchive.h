// A zip archive that holds a copy of a customer.
#pragma once

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

/// Writes a new archive at @p path, to the disk and not only to the system's memory.
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
    /// Reads a file of the archive to its end and compares its sum. Its content goes to @p path unless this
    /// is empty. @throws RuntimeFailure with Failure::NotOurDatabase for damaged content, and what writing
    /// throws.
    void unpack(const QString& name, const QString& path, const std::function<void()>& goOn);

private:
    struct Closer {
        void operator()(void* zip) const;
    };
    void readNames();
    [[noreturn]] void failDamaged(const QString& reason) const;

    QString m_path;
    std::unique_ptr<void, Closer> m_zip;
    QStringList m_names;
};

} // namespace norvane::customers
