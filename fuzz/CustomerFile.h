// A customer's database for the fuzz targets, made once for a process.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"
#include "store/engine/Database.h"

#include <functional>

namespace norvane::fuzz
{

/// The values of a customer in scratchFolder(), whose folder is the program's folder too. The database holds
/// all tables of the catalogue, empty.
[[nodiscard]] const ApplicationValues& customer();

/// The same with a database of one table: a procedure that opens it need not read the definitions of all
/// others.
[[nodiscard]] const ApplicationValues& customerWith(const QString& table);

/// The database of customer(), opened once.
[[nodiscard]] store::Database& customerDatabase();

/// Runs @p work and undoes its changes to customerDatabase(): an input must not see the changes of another.
/// The recordsets that @p work opens must be destroyed at its end.
void undone(const std::function<void()>& work);

/// The setting for the kind of register, 0 to 3.
void setModel(int model);

/// Boxes without a user: every question gets the answer that loses nothing.
class SilentBoxes : public Boxes
{
public:
    void message(const QString& /*text*/, const QString& /*title*/, BoxIcon /*icon*/) override {}
    bool ask(const QString& /*text*/, const QString& /*title*/, BoxIcon /*icon*/,
             BoxAnswer /*preset*/) override
    {
        return false;
    }
    QString input(const QString& /*prompt*/, const QString& /*title*/, const QString& /*initial*/) override
    {
        return {};
    }
    QString fileToOpen(const FileRequest& /*request*/) override { return {}; }
    QString fileToSave(const FileRequest& /*request*/) override { return {}; }
    void beep() override {}
};

} // namespace norvane::fuzz
