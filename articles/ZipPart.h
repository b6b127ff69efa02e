// A part of a zip archive that came from outside.
#pragma once

#include <QIODevice>
#include <QString>

#include <memory>

namespace norvane::articles
{

/// Unpacks a part while it is read. A part that unpacks to more than mostBytes, or has more than longestRun
/// bytes without a "<", ends with a fault: a small file can be made that fills all memory.
class ZipPart : public QIODevice
{
public:
    static constexpr qint64 mostBytes = qint64{512} * 1024 * 1024;
    static constexpr qint64 longestRun = qint64{1024} * 1024;

    /// Opens part @p name, in any case, of the archive @p path; isOpen() is false if there is none.
    /// @throws SpreadsheetError for a file that is not an archive and for an encrypted part.
    ZipPart(const QString& path, const QString& name);
    ~ZipPart() override;

    [[nodiscard]] bool isSequential() const override { return true; }
    /// Why reading ended too early; empty if it did not.
    [[nodiscard]] const QString& fault() const { return m_fault; }

protected:
    qint64 readData(char* data, qint64 most) override;
    qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }

private:
    struct Closer {
        void operator()(void* zip) const;
    };
    void noteSize(const char* data, qint64 size);

    std::unique_ptr<void, Closer> m_zip;
    QString m_fault;
    qint64 m_size = 0;
    qint64 m_run = 0; ///< bytes since the last "<"
};

} // namespace norvane::articles
