// Days at the till, from the first customer to the text of the reports.
#pragma once

#include "base/ApplicationValues.h"
#include "scripts/demoshop/ShopCalendar.h"

#include <QString>
#include <QStringList>

namespace demo
{

/// Runs a program in @p folder to its end. @throws std::runtime_error when it failed
void runIn(const QString& folder, const QString& program, const QStringList& words);

/// A separate register, and a folder in which the tools work as in the program's folder. The programs are not
/// copied there: on some machines no program may run from a folder for temporary files.
class TillDays
{
public:
    /// @param folder to make; @param program folder with the program's tools and settings;
    /// @param tools folder with makebank and ringsales; @param database that the days are stored in
    TillDays(QString folder, QString program, QString tools, const QString& database);

    /// Rings the day and collects it: poll190.txt and its like are in the folder of values() afterwards.
    void bringHome(const TradeDay& day) const;
    /// The values of a program that works in the folder.
    [[nodiscard]] const norvane::ApplicationValues& values() const { return m_values; }

private:
    void run(const QString& commandLine) const;

    QString m_folder;
    QString m_program;
    QString m_tools;
    norvane::ApplicationValues m_values;
};

} // namespace demo
