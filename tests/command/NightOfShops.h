// Shops with registers of their own, for tests of nights.
#pragma once

#include "platform/ProfileFile.h"
#include "tests/command/CommandTest.h"
#include "tests/store/Rows.h"
#include "tests/support/OtherPrograms.h"

#include <QDir>

#include <array>
#include <map>

namespace norvane::test
{

/// The speed of a shop's line leads the transfer tool to a bank of its own.
inline constexpr auto speeds = std::to_array({"1200", "2400", "9600", "19200"});

inline constexpr auto toOwnBank =
    R"sh(case $1 in s2) r=1200 ;; s4) r=2400 ;; s9) r=9600 ;; s1) r=19200 ;; *) r=$1 ;; esac
printf '[Bank]\r\nFolder=../registers-%s\r\n' "$r" > registers.ini
if [ -f midnight-at ] && case "$*" in *"$(cat midnight-at)"*) true ;; *) false ;; esac; then touch midnight; fi
if [ -f kill ] && read -r when what < kill && case " $*" in *"$what"*) true ;; *) false ;; esac; then
    rm kill
    [ "$when" = before ] || "$0.real" "$@"
    kill -9 $PPID
    exit 1
fi)sh";

class NightOfShops : public CommandTest
{
protected:
    NightOfShops() { m_folder.precede("VELMARCOMM", toOwnBank); }

    void makeShop(const QString& name)
    {
        const auto line = m_shops.size();
        m_shops[name] = m_folder.makeCustomer(name);
        m_lines[name] = QString::fromLatin1(speeds.at(line));
        ProfileFile::write(joinPath(m_shops[name].customerPath, u"setup.ini"_s), u"SetupOption"_s, u"Baud"_s,
                           QString::number(line));
        EXPECT_EQ(QProcess::execute(u"cp"_s, {u"-r"_s, m_folder.bankPath(), bankOf(name)}), 0);
    }
    [[nodiscard]] QString bankOf(const QString& shop) const
    {
        return m_folder.bankPath() + u'-' + m_lines.at(shop);
    }
    /// @return the takings as the register prints them.
    double ring(const QString& shop, int seed = 5) const
    {
        const QByteArray said =
            outputOf(QString::fromUtf8(RINGSALES_TOOL), {bankOf(shop), u"--seed"_s, QString::number(seed)});
        double takings = 0;
        for (const QByteArray& line : said.split('\n'))
            takings += line.mid(line.lastIndexOf(' ') + 1).toDouble() * (line.contains("net sales") ? 1 : 0);
        return takings;
    }
    void setFaults(const QString& shop, const QByteArray& sections) const
    {
        writeWholeFile(joinPath(bankOf(shop), u"faults.ini"_s), sections);
    }
    void writeApp(const QString& name, const QByteArray& text) const
    {
        writeWholeFile(m_folder.appFile(name), text);
    }
    /// "30/11/2026|1234.5" for each day.
    [[nodiscard]] std::string takings(const QString& shop) const
    {
        return rowsOf(m_shops.at(shop).databasePath,
                      u"select SALESDATE, round(sum(VALUE), 2) from FINANCIALSALES where ID = 2 group by "
                      "SALESDATE order by SALESDATE"_s);
    }
    [[nodiscard]] double total(const QString& shop) const
    {
        return QByteArray::fromStdString(rowsOf(m_shops.at(shop).databasePath,
                                                u"select sum(VALUE) from FINANCIALSALES where ID = 2"_s))
            .toDouble();
    }
    [[nodiscard]] QStringList reports() const
    {
        return QDir(m_folder.appFile(u"out"_s)).entryList(QDir::Files, QDir::Name);
    }

    std::map<QString, ApplicationValues> m_shops;
    std::map<QString, QString> m_lines;
};

} // namespace norvane::test
