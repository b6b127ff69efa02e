// Reads written reports back with programs that are not ours.
#pragma once

#include <gtest/gtest.h>
#include <QImage>
#include <QProcess>
#include <QStringList>

namespace norvane::test
{

/// What @p program prints.
inline QByteArray outputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

/// The text of a PDF, line by line, its blanks simplified.
inline QStringList pdfLines(const QString& path)
{
    QStringList lines;
    const QByteArray text =
        outputOf(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), path, QStringLiteral("-")});
    for (const QString& line : QString::fromUtf8(text).split(u'\n'))
        lines << line.simplified();
    return lines;
}

/// A page of a PDF, counted from 1, with ten dots to the millimetre.
inline QImage pdfPage(const QString& path, int page)
{
    const QString number = QString::number(page);
    return QImage::fromData(outputOf(QStringLiteral("pdftoppm"),
                                     {QStringLiteral("-r"), QStringLiteral("254"), QStringLiteral("-f"),
                                      number, QStringLiteral("-l"), number, path}));
}

} // namespace norvane::test
