// The columns of the memory allocation text and their fields, and the procedure that stores them.
#include "exchange/MemoryFile.h"

#include "base/SharedRoutines.h"
#include "platform/FailurePlace.h"
#include "platform/FilePaths.h"
#include "platform/TextValues.h"
#include "records/ImportTransaction.h"
#include "records/RecordText.h"
#include "store/engine/CommitOnExit.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"

#include <array>
#include <string>
#include <string_view>

using namespace Qt::Literals::StringLiterals;

namespace norvane::exchange
{
namespace
{

const auto textName = u"52.txt"_s;

enum class Form { PassedOver, Text, Count, Flags };

/// Up to three yes/no fields in one digit, with the weights 4, 2 and 1.
using Digit = std::array<const char*, 3>;
constexpr std::array<int, 3> weights{4, 2, 1};

struct Column {
    Form form = Form::PassedOver;
    const char* field = nullptr;
    std::array<Digit, 2> digits{};
    bool newerGenerationOnly = false;
};

constexpr Column passedOver()
{
    return {};
}
constexpr Column text(const char* field, bool newerGenerationOnly = false)
{
    return {Form::Text, field, {}, newerGenerationOnly};
}
/// A count loses its leading zeros; nothing left is "0".
constexpr Column count(const char* field, bool newerGenerationOnly = false)
{
    return {Form::Count, field, {}, newerGenerationOnly};
}
constexpr Column flags(Digit left, Digit right = {})
{
    return {Form::Flags, nullptr, {left, right}, false};
}

// clang-format off
constexpr Column columns[] = {
    /*  1 */ text("reporttotals"),
    /*  2 */ text("REPORTCOUNTERS"),
    /*  3 */ count("PLU"),
    /*  4 */ count("PLUSTATUS"),
    /*  5 */ count("PRICELEVELS"),
    /*  6 */ count("EMPLOYEES"),
    /*  7 */ count("TIME/EMPLOYEE"),
    /*  8 */ text("LINES/SOFTCHECK"),
    /*  9 */ text("TRACKINGFILES"),
    /* 10 */ count("TRACK1"),
    /* 11 */ count("TRACK2"),
    /* 12 */ count("TRACK3"),
    /* 13 */ count("TRACK4"),
    /* 14 */ count("TIMEPERIOD"),
    /* 15 */ text("PRODUCTMIXGROUP"),
    /* 16 */ text("PRODUCTMIXTIME"),
    /* 17 */ count("WLU"),
    /* 18 */ count("LINES/PLU"),
    /* 19 */ count("RECIPE"),
    /* 20 */ count("INVENTORYINGREDIENT"),
    /* 21 */ count("LINE/EJ"),
    /* 22 */ text("PAIDRECALL"),
    /* 23 */ text("SUPER"),
    /* 24 */ count("LINES/TRANSACTIONS"),
    /* 25 */ flags({"PLUBYLEVEL", "GROUPBYEMPLOYEE", "CHECKTRACKSOFT"}, {"PROJECTIONS", "STOREBITMAP", "EATINTIMEPERIOD"}),
    /* 26 */ flags({"TAKEOUTTIMEPERIOD", "DRIVETHRUTIMEPERIOD", "TRACK1TIME"}, {"TRACK2TIME", "TRACK3TIME", "TRACK4TIME"}),
    /* 27 */ flags({"Z1GROUPTIME", "Z2GROUPTIME", "Z3GROUPTIME"}, {"Z4GROUPTIME", "Z5GROUPTIME"}),
    /* 28 */ flags({"Z1FINANCIAL", "Z2FINANCIAL", "Z3FINANCIAL"}, {"Z4FINANCIAL", "Z5FINANCIAL"}),
    /* 29 */ flags({"Z1EMPLOYEE", "Z2EMPLOYEE", "Z3EMPLOYEE"}, {"Z4EMPLOYEE", "Z5EMPLOYEE"}),
    /* 30 */ flags({"Z1PLU", "Z2PLU", "Z3PLU"}, {"Z4PLU", "Z5PLU"}),
    /* 31 */ passedOver(),
    /* 32 */ flags({"Z1GROUP", "Z2GROUP", "Z3GROUP"}, {"Z4GROUP", "Z5GROUP"}),
    /* 33 */ flags({"Z1TIME", "Z2TIME", "Z3TIME"}, {"Z4TIME", "Z5TIME"}),
    /* 34 */ flags({"Z1TIMEKEEP", "Z2TIMEKEEP", "Z3TIMEKEEP"}, {"Z4TIMEKEEP", "Z5TIMEKEEP"}),
    /* 35 */ text("MIX"),
    /* 36 */ flags({"CLERKINTERRUPT"}),
    /* 37 */ flags({"Z1MIX", "Z2MIX", "Z3MIX"}, {"Z4MIX", "Z5MIX"}),
    /* 38 */ count("CATEGORY", true),
    /* 39 */ text("HOTLIST", true),
};
// clang-format on

/// The register's generation is asked for once more after this column.
constexpr std::size_t generationAskedAfter = 37;

constexpr int newerGeneration = 3;
constexpr int olderGeneration = 2;

void storeFlags(store::Recordset& record, const Column& column, std::string_view value)
{
    const std::array<int, 2> digits = records::optionDigits(value);
    for (std::size_t place = 0; place < digits.size(); ++place) {
        for (std::size_t flag = 0; flag < weights.size(); ++flag) {
            if (const char* field = column.digits[place][flag]) {
                record.setValue(QLatin1String(field),
                                store::Value::yesNo(DigitFlagSet(digits[place], weights[flag])));
            }
        }
    }
}

void storeColumn(store::Recordset& record, const Column& column, std::string_view value)
{
    if (column.form == Form::PassedOver)
        return;
    records::checkLength(value);
    if (column.form == Form::Flags) {
        storeFlags(record, column, value);
        return;
    }
    const auto kept = column.form == Form::Count ? records::StripLeadingZero(value) : value;
    record.setValue(QLatin1String(column.field), store::Value::text(records::plainFromRegister(kept)));
}

void storeLine(store::Recordset& record, std::string_view line, qint64 number,
               const std::function<int()>& generation)
{
    int asked = 0;
    record.addNew();
    for (std::size_t column = 0; column < std::size(columns); ++column) {
        if (column == generationAskedAfter)
            asked = generation();
        const std::string_view value = records::takeField(line);
        const auto placed = [&](const QString& text) {
            return u"%1, line %2, column %3: "_s.arg(textName).arg(number).arg(column + 1) + text;
        };
        if (!columns[column].newerGenerationOnly || asked == newerGeneration)
            atPlace(placed, [&] { storeColumn(record, columns[column], value); });
    }
    record.update();
}

/// Replaces a table's rows by those of the text.
struct Reload {
    qint64 former = 0;
    qint64 read = 0;

    void operator()(store::Database& database, const std::function<int()>& generation)
    {
        store::Recordset record = database.openTable(u"memoryallocation"_s);
        former = database.execute(u"delete * from memoryallocation"_s);
        const QByteArray content = readWholeFile(textName);
        records::Lines lines(withoutEndMark({content.constData(), static_cast<std::size_t>(content.size())}));
        for (; !lines.atEnd(); ++read)
            storeLine(record, lines.next(), read + 1, generation);
    }
};

void reloadTable(const records::ProcedureContext& context, const std::function<int()>& generation)
{
    store::Database database(context.values.databasePath);
    store::CommitOnExit transaction(database);
    Reload reload;
    records::importOrPutBack(
        transaction, context.boxes,
        [&] { return records::keepRecordsQuestion(textName, reload.read, reload.former); },
        [&] { reload(database, generation); });
    transaction.commit();
}

} // namespace

bool FileMemory(const records::ProcedureContext& context)
{
    const auto generation = [&] {
        return GetFirmwareGeneration(context.values, context.boxes);
    };
    const QString operation = generation() == olderGeneration ? u"u52"_s : u"u352"_s;
    const QString line = u"convert w%1 fMEM.dat t52.txt %2"_s.arg(GetModelCode(context.values), operation);
    if (!context.convert({line, textName,
                          u"The memory allocation would be read from it, though it may be another "
                          u"register's."_s}))
        return false;
    reloadTable(context, generation);
    return true;
}

} // namespace norvane::exchange
