// Holds every screen file that is installed against the table catalogue and against the geometry of the form
// that shows it. Each check returns what is wrong in the words of somebody who has to mend the file.
#include "platform/RuntimeFailure.h"
#include "screens/ComboRows.h"
#include "screens/ScreenReader.h"
#include "store/Catalogue.h"
#include "store/Database.h"
#include "store/Recordset.h"
#include "tests/platform/TestFolder.h"

#include <gtest/gtest.h>
#include <QRectF>
#include <QSet>

#include <algorithm>

namespace norvane::screens
{
namespace
{

using store::FieldDefinition;
using store::FieldType;
using store::TableDefinition;

/// The form's own sizes, in twips.
constexpr double boxHeight = 360;
constexpr double checkHeight = 300;
constexpr double findWidth = 1200;
constexpr double findHeight = 360;
/// A control ends this far before the edge of the window.
constexpr double edge = 60;
/// The panel reaches this far below the largest Y that counts.
constexpr double panelMargin = 10;

/// Fields that a screen leaves out on purpose. A name that ends in "*" stands for all that begin so.
struct LeftOut {
    const char* files; ///< blanks between, "*" for all files over the table
    const char* table;
    const char* fields; ///< blanks between
    const char* why;
};

constexpr LeftOut leftOut[] = {
    {"plutble.scn", "PLUDATA",
     "GROUPNO PLUSTATUS WLUNUMBER PIECECOUNT RECIPENO INactive PRESET OVERRIDE pricechange printNV MIXNMATCH "
     "PRODUCTMIX STOCKLINK MODIFIER PRICE* POINT*",
     "the grid shows euro prices only"},
    {"*", "PLUDATA", "EuroPrice*", "they have a grid of their own"},
    {"PLUVelmarv2.scn", "PLUDATA", "POINT* printNV", "the model has neither points nor images"},
    {"PLUVelmarv2card.scn", "PLUDATA", "printNV", "the model stores no images"},
    {"PLUstatVelmarv2.scn PLUstatVelmarvcard.scn", "PLUSTATUS", "LINKEDNVIMAGE",
     "the models store no images"},
    {"GenFuncVelmarv2.scn", "GENERALFUNCTIONS",
     "AUDIBLETONEONHOTLIST ALLOWCARDISSUE CHECKCARDBIRTHDAY USESMARTCARDGROUP GELDKARTE REDEEM*",
     "the model knows no cards"},
    {"GenPrtOpVelmarv2.scn", "GENERALPRINTOPTION",
     "PRINTPOINTSACCRUED PRINTCARDHOLDERREF PRINTCATEGORY PRINTDEPARTMENT PRINTLOYALTYBALANCE "
     "PRINTCASHBALANCE PRINTMAXBALANCE PRINTNAME PRINTDOB PRINTOLDLOYALTY PRINTOLDCASHBALANCE",
     "the model knows no cards"},
    {"GenPrtOpVelmarv2.scn GenPrtOpVelmarv2card.scn", "GENERALPRINTOPTION", "prelogoimage* postlogoimage*",
     "the models store no images"},
    {"EJPRTv2.scn", "EJDETAILPRINT",
     "EJPOINTPAYMENT EJSUBTRACTPOINT EJADDPOINT EJSUBTRACTVALUE EJREDEEM EJPRINTCARD EJCARDSALE EJHOTLIST "
     "EJREMOVECARD CONDENSEDPRINT PRINTNEGLINES DISABLEREGDETAIL",
     "the older registers do not have these options"},
    {"*", "TAXRATES", "dummy*", "reserved by the register"},
};

/// Fields that an upload may leave empty. A box for whole numbers ends the program on an empty field; a
/// decimal box of no places shows 0.
struct MayBeEmpty {
    const char* table;
    const char* fields;
};

constexpr MayBeEmpty mayBeEmpty[] = {
    {"PLUDATA", "POINT*"},
    {"PLUSTATUS", "AUTOGRILLNo LINKEDNVIMAGE"},
    {"GENERALPRINTOPTION", "prelogoimage* postlogoimage*"},
};

bool isListed(const char* list, const QString& name)
{
    const QStringList words = QString::fromLatin1(list).split(u' ');
    return std::any_of(words.begin(), words.end(), [&](const QString& word) {
        return word.endsWith(u'*') ? name.startsWith(word.chopped(1), Qt::CaseInsensitive)
                                   : name.compare(word, Qt::CaseInsensitive) == 0;
    });
}

bool isNumber(const ControlDefinition& control)
{
    return control.kind == ControlKind::Integer || control.kind == ControlKind::Decimal;
}

/// The prices of PLUs are numbers held as text.
bool isPrice(const FieldDefinition& field)
{
    return isListed("PRICE1 PRICE2 PRICE3 PRICE4 PRICE5 EuroPrice*", field.name);
}

QRectF placeOf(const ControlDefinition& control)
{
    const bool find = control.kind == ControlKind::Find;
    const double ownHeight = find ? findHeight : control.kind == ControlKind::Check ? checkHeight : boxHeight;
    return {control.x.value_or(0), control.y.value_or(0), find ? findWidth : control.width.value_or(0),
            control.height.value_or(ownHeight)};
}

/// Height of the panel that carries the controls: check boxes and labels do not count, a grid counts with its
/// height.
double panelHeight(const QVector<ControlDefinition>& controls)
{
    double largest = 0;
    for (const auto& control : controls) {
        if (control.kind == ControlKind::Grid) {
            largest = qMax(largest, control.height.value_or(0));
        } else if (control.kind != ControlKind::Check && control.kind != ControlKind::Label) {
            largest = qMax(largest, control.y.value_or(0));
        }
    }
    return largest + panelMargin;
}

/// One screen file with its complaints.
class ScreenFile : public testing::TestWithParam<std::string>
{
protected:
    ScreenFile()
        : m_name(QString::fromStdString(GetParam())), m_path(QStringLiteral(SCREEN_FILES "/") + m_name),
          m_screen(ScreenReader(m_path).whole()), m_table(store::catalogueTable(m_screen.table.table))
    {
    }

    void TearDown() override
    {
        EXPECT_TRUE(m_complaints.isEmpty()) << m_complaints.join(u'\n').toStdString();
    }

    void complain(const QString& text) { m_complaints += text; }
    void complain(const ControlDefinition& control, const QString& text)
    {
        complain(QStringLiteral("[%1] %2%3: %4")
                     .arg(control.section, control.description, control.dataField, text));
    }

    [[nodiscard]] const FieldDefinition* fieldOf(const ControlDefinition& control) const
    {
        const auto sameName = [&](const FieldDefinition& field) {
            return field.name.compare(control.dataField, Qt::CaseInsensitive) == 0;
        };
        const auto found = std::find_if(m_table->fields.begin(), m_table->fields.end(), sameName);
        return found == m_table->fields.end() ? nullptr : &*found;
    }

    [[nodiscard]] QVector<ControlDefinition> visible() const
    {
        QVector<ControlDefinition> controls = m_screen.controls;
        controls.removeIf([](const auto& control) { return !control.visible.value_or(false); });
        return controls;
    }

    /// The catalogue's tables, all empty.
    static store::Database emptyDatabase()
    {
        static const test::TestFolder folder;
        const QString path = folder.path("velmar.mdb");
        store::Database::create(path, store::catalogue());
        return store::Database(path);
    }

    QString m_name;
    QString m_path;
    ScreenDefinition m_screen;
    const TableDefinition* m_table;

private:
    QStringList m_complaints;
};

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST_P(ScreenFile, IsReadWhole)
{
    const QByteArray bytes = bytesOf(m_path);
    if (bytes.count('\n') != bytes.count("\r\n") || !bytes.endsWith("\r\n"))
        complain(QStringLiteral("line ends are not CR LF throughout"));
    if (bytes.count("\r\n[Field") != m_screen.controls.size())
        complain(QStringLiteral("sections are numbered with a gap, or have no known control type"));
    for (const QByteArray& line : bytes.split('\n')) {
        const qsizetype limit = line.startsWith("List=") ? profileListLimit : profileValueLimit;
        if (line.trimmed().size() - line.indexOf('=') - 1 > limit)
            complain(QStringLiteral("too long to be read: ") + QString::fromLatin1(line.trimmed()));
    }
    if (m_screen.window.name.isEmpty() || !m_screen.window.width || !m_screen.window.height)
        complain(QStringLiteral("the window has no name or no size"));
}

TEST_P(ScreenFile, NamesWhatTheDatabaseHas)
{
    ASSERT_NE(m_table, nullptr) << m_screen.table.table.toStdString();
    for (const QString& index : {m_screen.table.firstIndex, m_screen.table.secondIndex}) {
        const auto hasName = [&](const store::IndexDefinition& definition) {
            return definition.names.contains(index, Qt::CaseInsensitive);
        };
        if (std::none_of(m_table->indexes.begin(), m_table->indexes.end(), hasName))
            complain(QStringLiteral("the table has no index ") + index);
    }
    QSet<QString> seen;
    for (const auto& control : m_screen.controls) {
        if (control.dataField.isEmpty())
            continue;
        if (!fieldOf(control))
            complain(control, QStringLiteral("the table has no such field"));
        if (seen.contains(control.dataField.toUpper()))
            complain(control, QStringLiteral("stands twice on the screen"));
        seen += control.dataField.toUpper();
    }
}

TEST_P(ScreenFile, HasControlsThatHoldWhatTheirFieldsHold)
{
    for (const auto& control : m_screen.controls) {
        const FieldDefinition* field = fieldOf(control);
        if (!field)
            continue;
        const FieldType type = field->type;
        const bool digits = control.characters.compare(QLatin1String("NUMERIC"), Qt::CaseInsensitive) == 0;
        const bool fits =
            control.kind == ControlKind::Check     ? type == FieldType::YesNo
            : control.kind == ControlKind::Integer ? type == FieldType::Long
            : control.kind == ControlKind::Combo   ? type == FieldType::Long
            : control.kind == ControlKind::Decimal
                ? type == FieldType::Long || type == FieldType::Double || isPrice(*field)
                : (type == FieldType::Text && !isPrice(*field)) || (type == FieldType::Digits && digits);
        if (!fits)
            complain(control, QStringLiteral("this kind of control cannot hold the field"));
        const bool canBeEmpty =
            std::any_of(std::begin(mayBeEmpty), std::end(mayBeEmpty), [&](const MayBeEmpty& row) {
                return m_table->name == QLatin1String(row.table) && isListed(row.fields, field->name);
            });
        if (canBeEmpty && control.kind == ControlKind::Integer)
            complain(control, QStringLiteral("may be empty, which a box for whole numbers cannot show"));
    }
}

TEST_P(ScreenFile, LimitsWhatIsTypedToTheField)
{
    for (const auto& control : visible()) {
        const FieldDefinition* field = fieldOf(control);
        if (!field || (!isNumber(control) && control.kind != ControlKind::Text))
            continue;
        if (!control.maximum || control.maximum->toDouble() < 1) {
            complain(control, QStringLiteral("has no Maxvalue"));
        } else if (control.kind == ControlKind::Text) {
            if (control.maximum->toDouble() > field->size)
                complain(control, QStringLiteral("takes more characters than the field"));
        } else if (control.kind == ControlKind::Integer) {
            // No register column of whole numbers that end in a box has more than nine digits.
            if (control.maximum->toDouble() > 999999999)
                complain(control, QStringLiteral("takes more digits than a whole number field"));
        } else if (control.maximum->scale() > control.decimals.value_or(-1)) {
            complain(control, QStringLiteral("Maxvalue and DecimalNumbers differ"));
        } else if (isPrice(*field) && !(*control.maximum == Decimal(99999999, 2))) {
            complain(control, QStringLiteral("a price has six digits before the point and two behind"));
        }
    }
}

TEST_P(ScreenFile, KeepsRecordNumbersFromBeingChanged)
{
    const QString key = m_table->indexes.first().field;
    for (const auto& control : visible()) {
        const bool isKey = control.dataField.compare(key, Qt::CaseInsensitive) == 0;
        if (isKey && !m_screen.buttons.add && !control.readOnly.value_or(false))
            complain(control, QStringLiteral("is the number of the register's record"));
    }
    if (m_screen.buttons.add != (m_table->name == QLatin1String("PLUDATA") && m_screen.buttons.save))
        complain(QStringLiteral("only PLUs may be added"));
    if (m_screen.buttons.add != m_screen.buttons.remove || m_screen.buttons.next != m_screen.buttons.previous)
        complain(QStringLiteral("has only one button of a pair"));
}

TEST_P(ScreenFile, OffersEveryFieldThatAUserMaySet)
{
    QSet<QString> offered;
    QString queries;
    for (const auto& control : visible()) {
        offered += control.dataField.toUpper();
        if (control.kind == ControlKind::Grid)
            queries += control.sqlCriteria.toUpper();
    }
    const auto isLeftOut = [&](const QString& field) {
        return std::any_of(std::begin(leftOut), std::end(leftOut), [&](const LeftOut& row) {
            return m_table->name.compare(QLatin1String(row.table), Qt::CaseInsensitive) == 0 &&
                   isListed(row.files, m_name) && isListed(row.fields, field);
        });
    };
    // The number of an option table's only record tells the user nothing.
    const QString& key = m_table->indexes.first().field;
    for (const auto& field : m_table->fields) {
        const QString name = field.name.toUpper();
        const bool onlyRecord = field.name == key && !m_screen.buttons.next;
        if (!offered.contains(name) && !queries.contains(name) && !onlyRecord && !isLeftOut(name))
            complain(field.name + QStringLiteral(" is not on the screen"));
        if (offered.contains(name) && isLeftOut(name))
            complain(field.name + QStringLiteral(" is on the screen though it is listed as left out"));
    }
}

TEST_P(ScreenFile, OverlapsNothingAndStaysInsideThePanel)
{
    const auto controls = visible();
    const QRectF panel(0, 0, m_screen.window.width.value_or(0) - edge, panelHeight(m_screen.controls));
    for (qsizetype first = 0; first < controls.size(); ++first) {
        const QRectF place = placeOf(controls[first]);
        if (place.isEmpty())
            complain(controls[first], QStringLiteral("has no size"));
        if (!panel.contains(place))
            complain(controls[first], QStringLiteral("is cut by the panel or the form"));
        for (const auto& second : controls.mid(first + 1)) {
            if (place.intersects(placeOf(second)))
                complain(controls[first], QStringLiteral("overlaps ") + second.section);
        }
    }
}

/// Down a column and then the next one, or along a row and then the next one: nothing that is reached later
/// lies both above, or level, and to the left, or level.
TEST_P(ScreenFile, IsWalkedInReadingOrder)
{
    auto controls = visible();
    controls.removeIf([](const auto& control) { return control.kind == ControlKind::Label; });
    for (qsizetype later = 0; later < controls.size(); ++later) {
        const QRectF place = placeOf(controls[later]);
        if (controls[later].tabIndex != static_cast<int>(later) + 1)
            complain(controls[later], QStringLiteral("Tabindex is not the place in the file"));
        for (qsizetype earlier = 0; earlier < later; ++earlier) {
            const QRectF before = placeOf(controls[earlier]);
            if (place.center().y() <= before.center().y() + 30 && place.left() <= before.left())
                complain(controls[later], QStringLiteral("is reached after ") + controls[earlier].section);
        }
    }
}

TEST_P(ScreenFile, ListsWhatCanBePicked)
{
    auto database = emptyDatabase();
    for (const auto& control : visible()) {
        if (control.kind == ControlKind::Grid) {
            EXPECT_EQ(database.openQuery(control.sqlCriteria).fieldCount(), control.gridColumns.size());
        } else if (control.kind == ControlKind::Combo) {
            const bool isFixed = control.sqlCriteria.isEmpty();
            const auto rows = isFixed ? rowsOfList(control.list) : rowsOfQuery(database, control.sqlCriteria);
            if (isFixed && rows.size() < 2)
                complain(control, QStringLiteral("leaves nothing to pick"));
            for (const QStringList& row : rows) {
                if (row.size() != 2 || row.last().isEmpty())
                    complain(control, QStringLiteral("a row is not a value and its text"));
            }
            if (control.columnWidths.count(u';') != 1 || control.valueColumn != QLatin1String("0"))
                complain(control, QStringLiteral("does not say how the two columns are shown"));
        }
    }
}

std::vector<std::string> screenFiles()
{
    std::vector<std::string> names;
    const QDir folder(QStringLiteral(SCREEN_FILES));
    for (const QString& name : folder.entryList({QStringLiteral("*.scn")}, QDir::Files))
        names.push_back(name.toStdString());
    return names;
}

INSTANTIATE_TEST_SUITE_P(Installed, ScreenFile, testing::ValuesIn(screenFiles()),
                         [](const auto& screen) { return screen.param.substr(0, screen.param.find('.')); });

} // namespace
} // namespace norvane::screens
