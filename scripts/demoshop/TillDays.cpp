// The real tools, one after another, on a bank of one register; see TillDays.h.
#include "scripts/demoshop/TillDays.h"

#include "base/CustomerSettings.h"
#include "link/CommandLines.h"
#include "platform/ChildProcess.h"
#include "platform/FilePaths.h"
#include "platform/ProfileFile.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <stdexcept>

using namespace Qt::Literals::StringLiterals;
using namespace norvane;

namespace demo
{
namespace
{

void copyInto(const QString& folder, const QString& file)
{
    if (!QFile::copy(file, joinPath(folder, QFileInfo(file).fileName())))
        throw std::runtime_error("cannot copy " + file.toStdString());
}

} // namespace

void runIn(const QString& folder, const QString& program, const QStringList& words)
{
    QProcess child;
    child.setWorkingDirectory(folder);
    child.setProcessChannelMode(QProcess::MergedChannels);
    child.start(program, words);
    child.waitForFinished(-1);
    if (child.error() != QProcess::UnknownError || child.exitCode() != 0) {
        throw std::runtime_error((program + u' ' + words.join(u' ')).toStdString() + ": " +
                                 child.readAll().toStdString());
    }
}

TillDays::TillDays(QString folder, QString program, QString tools, const QString& database)
    : m_folder(std::move(folder)), m_program(std::move(program)), m_tools(std::move(tools))
{
    QDir().mkpath(m_folder);
    copyInto(m_folder, joinPath(m_program, u"setup.ini"_s));
    ProfileFile::write(joinPath(m_folder, u"setup.ini"_s), u"SetupOption"_s, u"NoOfECRs"_s, u"0"_s);
    ProfileFile::write(joinPath(m_folder, u"registers.ini"_s), u"Bank"_s, u"Folder"_s, u"registers"_s);
    runIn(m_folder, joinPath(m_tools, u"makebank"_s), {u"registers"_s});
    m_values.appPath = m_folder;
    m_values.customerPath = m_folder; // its settings
    m_values.databasePath = database;
}

void TillDays::run(const QString& commandLine) const
{
    QStringList words = commandWords(commandLine);
    const QString tool = words.takeFirst();
    runIn(m_folder, joinPath(m_program, tool), words);
}

void TillDays::bringHome(const TradeDay& day) const
{
    const auto link = link::readLinkSettings(m_values);
    const QString model = GetModelCode(m_values);
    runIn(m_folder, joinPath(m_tools, u"ringsales"_s),
          {u"registers"_s, u"--tickets"_s, QString::number(day.customers), u"--seed"_s,
           day.date.toString(u"yyyyMMdd"_s)});
    run(link::salesLine(link, u" P0001010100010000000000000000000000000000000000000000000100 -Z"_s));
    run(link::salesLine(link, u" -P 190 191 192 194 218"_s));
    for (const int report : {190, 191, 192, 194, 218})
        run(u"convert w%1 fpoll%2.dll tPOLL%2.txt S%2"_s.arg(model).arg(report));
    run(link::salesLine(link, u" -C"_s));
}

} // namespace demo
