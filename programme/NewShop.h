// Makes a new customer's folder like that of another customer.
#pragma once

#include "customers/SettingWords.h"
#include "platform/Boxes.h"

#include <QStringList>

namespace norvane::programme
{

/// What to make.
///
/// Everything that is not taken comes from the templates, as for any new customer. Sales, points of PLUs, the
/// log, safety copies and the notes of runs are never taken, nor is the telephone number of the registers: a
/// download to the new shop would go to the other one.
///
/// Tables that the registers of another model cannot hold (PartRules.h) are not taken for it.
///
/// Register files without a table follow from what is taken. Nobody can look into them, and they name records
/// of the tables by number (a macro presses keys, a printer table routes groups): so they are taken only with
/// the whole programme, and only for the same model. The stock of the
/// PLUs is never taken. The
/// memory allocation, without which no look-up can be edited, goes with the look-ups to a shop of the same
/// model, until the first upload replaces it.
struct NewShop {
    QString appPath;
    QString name;     ///< as typed
    QString likePath; ///< folder of the other customer; empty: all comes from the templates
    bool takesSettings = true;
    QStringList tables; ///< of the programme to take, spelled as in the catalogue
    bool takesOverlays = true;
    QList<customers::StoredSetting> settings; ///< in place of those that the new shop would have
};

/// All tables of the programme.
[[nodiscard]] QStringList allProgrammeTables();

/// What a new shop has from the other one.
struct TakenOver {
    bool settings = false;
    qint64 records = 0;
    qsizetype registerFiles = 0;
    qsizetype overlays = 0;
    bool lacksTelephone = false; ///< the other one has a number
};

/// What to do about a number that is lacking.
[[nodiscard]] QString telephoneNotice();

/// "settings, 2345 records, 21 register files, 2 overlay documents", "nothing".
[[nodiscard]] QString inWords(const TakenOver& taken);

enum class NewShopProblem {
    BadName,  ///< as chooseCustomer() refuses it
    Exists,   ///< there is a folder or file of this name, in any case
    NoSource, ///< the other customer has no database
    Former,   ///< that database was made by the former program
    Damaged,
    Busy, ///< the other customer's folder is locked; a box said so
};

/// Why there is no new shop; the text is empty for Busy.
class NewShopError : public TextError
{
public:
    NewShopError(NewShopProblem problem, const QString& text) : TextError(text), m_problem(problem) {}
    [[nodiscard]] NewShopProblem problem() const { return m_problem; }

private:
    NewShopProblem m_problem;
};

/// Makes the folder, completely or not at all: until it is complete it has a name that no list shows, also
/// after this was killed. The other customer's folder is locked meanwhile, and not changed.
/// @throws NewShopError; RuntimeFailure with Failure::PathOrFileAccess, Failure::DiskFull,
/// Failure::FileNotFound for a missing template, and what the database of the other customer reports.
TakenOver makeNewShop(const NewShop& shop, Boxes& boxes);

/// What it means for the new shop that its registers are of another model than those of the other customer;
/// empty if they are of the same.
[[nodiscard]] QString modelNotice(const NewShop& shop);

} // namespace norvane::programme
