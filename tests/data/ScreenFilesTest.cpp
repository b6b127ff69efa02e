// Holds every screen file that is installed against the table catalogue, against the columns of the register
// files and against the form that it makes. Complaints are in the words of somebody who has to mend the file.
#include "records/RegisterFiles.h"
#include "screens/FieldPanel.h"
#include "screens/OptionForm.h"
#include "screens/ScreenReader.h"
#include "store/Catalogue.h"
#include "store/Recordset.h"
#include "tests/platform/TestFolder.h"
#include "tests/support/RecordingBoxes.h"
#include "ui/Appearance.h"
#include "ui/TextBox.h"
#include "ui/ValueList.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QScrollBar>
#include <QSet>
#include <QTest>

#include <algorithm>

namespace norvane::screens
{
namespace
{

using store::FieldDefinition;
using store::FieldType;
using store::TableDefinition;

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

/// Pixels between a text and the edges of its box.
constexpr int boxMargins = 8;

bool sameName(const QString& left, const QString& right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

/// Prices are numbers held as text.
bool isPrice(const FieldDefinition& field)
{
    return isListed("PRICE1 PRICE2 PRICE3 PRICE4 PRICE5 EuroPrice*", field.name);
}

/// Whether a control of @p kind shows and stores what @p field holds.
bool canHold(const ControlDefinition& control, const FieldDefinition& field)
{
    switch (control.kind) {
    case ControlKind::Check:
        return field.type == FieldType::YesNo;
    case ControlKind::Integer:
    case ControlKind::Combo:
        return field.type == FieldType::Long;
    case ControlKind::Decimal:
        return field.type == FieldType::Long || field.type == FieldType::Double || isPrice(field) ||
               control.readOnly.value_or(false);
    case ControlKind::Text:
        return (field.type == FieldType::Text && !isPrice(field)) ||
               (field.type == FieldType::Digits && sameName(control.characters, QStringLiteral("NUMERIC")));
    default:
        return false;
    }
}

/// The column of a register file that sends @p field; nullptr when none does.
const records::Column* columnOf(const QString& table, const QString& field)
{
    for (const auto& file : records::registerFiles()) {
        if (!sameName(QLatin1String(file.table), table))
            continue;
        for (const auto& set : file.layout().sets) {
            for (const auto& column : set.columns) {
                if (sameName(QString::fromStdString(column.field), field))
                    return &column;
            }
        }
    }
    return nullptr;
}

/// What Maxvalue of @p control must be for @p column: the largest number, or the most characters. 0 where the
/// column's width does not say it.
Decimal largestOf(const ControlDefinition& control, const records::Column& column)
{
    constexpr int widestMessage = 40;
    const auto width = static_cast<std::int64_t>(column.isMessageLine ? widestMessage : column.width);
    const bool isWide = column.form == records::Form::Number || column.form == records::Form::Text;
    if (!isWide || sameName(control.dataField, QStringLiteral("ENDTIME"))) // a time of the day
        return {};
    if (control.kind == ControlKind::Text)
        return {width, 0};
    return Decimal::leading(std::string(static_cast<std::size_t>(width), '9')).shifted(-column.scale);
}

/// The catalogue's tables with one record of zeros and empty texts in each.
const QString& filledDatabase()
{
    static const test::TestFolder folder;
    static const QString path = [] {
        QString made = folder.path("velmar.mdb");
        store::Database::create(made, store::catalogue());
        store::Database database(made);
        for (const TableDefinition& table : store::catalogue()) {
            store::Recordset records = database.openTable(table.name);
            records.addNew();
            for (const FieldDefinition& field : table.fields) {
                if (field.type == FieldType::Text && !isPrice(field)) {
                    records.setValue(field.name, store::Value::text(std::string()));
                } else if (field.type != FieldType::Counter && field.type != FieldType::Date) {
                    records.setValue(field.name, store::Value::whole(0));
                }
            }
            if (std::none_of(table.fields.begin(), table.fields.end(),
                             [](const auto& field) { return field.type == FieldType::Date; }))
                records.update();
        }
        return made;
    }();
    return path;
}

/// One screen file with its complaints.
class ScreenFile : public testing::TestWithParam<std::string>
{
protected:
    ScreenFile()
        : m_name(QString::fromStdString(GetParam())), m_path(QStringLiteral(SCREEN_FILES "/") + m_name),
          m_screen(ScreenReader(m_path).whole()), m_table(store::catalogueTable(m_screen.table.table))
    {
        ui::applyAppearance(static_cast<QApplication&>(*QCoreApplication::instance()));
    }

    void TearDown() override
    {
        EXPECT_TRUE(m_complaints.isEmpty()) << m_complaints.join(u'\n').toStdString();
    }

    void complain(const QString& about, const char* text)
    {
        m_complaints += QStringLiteral("%1: %2").arg(about, QLatin1String(text));
    }
    void complain(const ControlDefinition& control, const char* text)
    {
        complain(QStringLiteral("[%1] %2%3").arg(control.section, control.description, control.dataField),
                 text);
    }

    [[nodiscard]] const FieldDefinition* fieldOf(const ControlDefinition& control) const
    {
        const auto isIt = [&](const FieldDefinition& field) {
            return sameName(field.name, control.dataField);
        };
        const auto found = std::find_if(m_table->fields.begin(), m_table->fields.end(), isIt);
        return found == m_table->fields.end() ? nullptr : &*found;
    }

    void checkKind(const ControlDefinition& control, const FieldDefinition& field);
    void checkLimit(const ControlDefinition& control, const FieldDefinition& field);
    void checkControl(const QWidget& control);
    void checkOrder(const QVector<QWidget*>& order);

    QString m_name;
    QString m_path;
    ScreenDefinition m_screen;
    const TableDefinition* m_table;

private:
    QStringList m_complaints;
};

TEST_P(ScreenFile, IsReadWhole)
{
    QFile file(m_path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    if (bytes.count('\n') != bytes.count("\r\n") || !bytes.endsWith("\r\n"))
        complain(m_name, "line ends are not CR LF throughout");
    if (bytes.count("\r\n[Field") != m_screen.controls.size())
        complain(m_name, "sections are numbered with a gap, or have no known control type");
    for (const QByteArray& line : bytes.split('\n')) {
        const qsizetype limit = line.startsWith("List=") ? profileListLimit : profileValueLimit;
        if (line.trimmed().size() - line.indexOf('=') - 1 > limit)
            complain(QString::fromLatin1(line.trimmed()), "too long to be read");
    }
    if (m_screen.window.name.isEmpty() || !m_screen.window.width || !m_screen.window.height)
        complain(m_name, "the window has no name or no size");
}

TEST_P(ScreenFile, BindsControlsToFieldsThatTheyCanHold)
{
    ASSERT_NE(m_table, nullptr) << m_screen.table.table.toStdString();
    for (const QString& index : {m_screen.table.firstIndex, m_screen.table.secondIndex}) {
        const auto hasName = [&](const store::IndexDefinition& definition) {
            return definition.names.contains(index, Qt::CaseInsensitive);
        };
        if (std::none_of(m_table->indexes.begin(), m_table->indexes.end(), hasName))
            complain(index, "the table has no such index");
    }
    QSet<QString> seen;
    for (const auto& control : m_screen.controls) {
        if (control.dataField.isEmpty())
            continue;
        if (seen.contains(control.dataField.toUpper()))
            complain(control, "stands twice on the screen");
        seen += control.dataField.toUpper();
        if (const FieldDefinition* const field = fieldOf(control)) {
            checkKind(control, *field);
            checkLimit(control, *field);
        } else {
            complain(control, "the table has no such field");
        }
    }
}

void ScreenFile::checkKind(const ControlDefinition& control, const FieldDefinition& field)
{
    if (!canHold(control, field))
        complain(control, "this kind of control cannot hold the field");
    const auto canBeEmpty = [&](const MayBeEmpty& row) {
        return m_table->name == QLatin1String(row.table) && isListed(row.fields, field.name);
    };
    if (control.kind == ControlKind::Integer &&
        std::any_of(std::begin(mayBeEmpty), std::end(mayBeEmpty), canBeEmpty))
        complain(control, "may be empty, which a box for whole numbers cannot show");
}

void ScreenFile::checkLimit(const ControlDefinition& control, const FieldDefinition& field)
{
    const bool isTyped = control.kind == ControlKind::Integer || control.kind == ControlKind::Decimal ||
                         control.kind == ControlKind::Text;
    if (!isTyped || control.readOnly.value_or(false) || !control.visible.value_or(false))
        return;
    if (!control.maximum || control.maximum->toDouble() < 1)
        return complain(control, "has no Maxvalue");
    const auto* const column = columnOf(m_table->name, field.name);
    const Decimal largest = column != nullptr ? largestOf(control, *column) : Decimal();
    if (!(largest == Decimal()) && !(*control.maximum == largest))
        complain(control, ("the register's column takes up to " + largest.text()).c_str());
    if (control.kind == ControlKind::Text && control.maximum->toDouble() > field.size)
        complain(control, "takes more characters than the field");
    if (control.kind == ControlKind::Decimal && control.maximum->scale() != control.decimals.value_or(-1))
        complain(control, "Maxvalue and DecimalNumbers differ");
    const int needed =
        QFontMetrics(QApplication::font()).horizontalAdvance(QString::fromStdString(control.maximum->text()));
    if (control.kind != ControlKind::Text && control.width.value_or(0) / twipsPerPixel < needed + boxMargins)
        complain(control, "is too narrow for its largest number");
}

TEST_P(ScreenFile, OffersWhatAUserMaySetAndNothingElse)
{
    const QString& key = m_table->indexes.first().field;
    QSet<QString> offered;
    QString queries;
    for (const auto& control : m_screen.controls) {
        if (!control.visible.value_or(false))
            continue;
        offered += control.dataField.toUpper();
        queries += control.sqlCriteria.toUpper();
        if (sameName(control.dataField, key) && !m_screen.buttons.add && !control.readOnly.value_or(false))
            complain(control, "is the number of the register's record");
    }
    const auto isLeftOut = [&](const QString& field) {
        return std::any_of(std::begin(leftOut), std::end(leftOut), [&](const LeftOut& row) {
            return sameName(m_table->name, QLatin1String(row.table)) && isListed(row.files, m_name) &&
                   isListed(row.fields, field);
        });
    };
    const bool hasGrid = std::any_of(m_screen.controls.begin(), m_screen.controls.end(),
                                     [](const auto& control) { return control.kind == ControlKind::Grid; });
    for (const auto& field : m_table->fields) {
        const QString name = field.name.toUpper();
        const bool isShown = offered.contains(name) || (hasGrid && queries.contains(name));
        // The number of an option table's only record tells the user nothing.
        const bool isOnlyRecord = field.name == key && !m_screen.buttons.next;
        if (!isShown && !isOnlyRecord && !isLeftOut(name))
            complain(field.name, "is not on the screen");
        if (offered.contains(name) && isLeftOut(name))
            complain(field.name, "is on the screen though it is listed as left out");
    }
    if (m_screen.buttons.add != (m_table->name == QLatin1String("PLUDATA") && m_screen.buttons.save) ||
        m_screen.buttons.add != m_screen.buttons.remove)
        complain(m_name, "only PLUs may be added and deleted");
    if (m_screen.buttons.next != m_screen.buttons.previous)
        complain(m_name, "has only one button of a pair");
}

void ScreenFile::checkControl(const QWidget& control)
{
    const QString name = QStringLiteral("%1 (%2)").arg(control.objectName(), control.accessibleDescription());
    const auto widthOf = [&](const QString& text) {
        return control.fontMetrics().horizontalAdvance(text);
    };
    int needed = 0;
    if (const auto* const label = qobject_cast<const QLabel*>(&control)) {
        needed = label->sizeHint().width();
    } else if (const auto* const check = qobject_cast<const QCheckBox*>(&control)) {
        needed = check->sizeHint().width();
    } else if (const auto* const box = qobject_cast<const ui::TextBox*>(&control)) {
        needed = boxMargins + control.fontMetrics().averageCharWidth() * qMin(box->maxLength(), 40);
    } else if (const auto* const list = qobject_cast<const ui::ValueList*>(&control)) {
        if (list->count() < 2)
            complain(name, "leaves nothing to pick");
        for (int row = 0; row < list->count(); ++row)
            needed = qMax(needed, widthOf(list->itemText(row)));
    }
    if (needed > control.width())
        complain(name, "is too narrow for its text");
}

/// Down a column and then the next one, or along a row and then the next one: nothing that is reached later
/// lies both above, or level, and to the left, or level.
void ScreenFile::checkOrder(const QVector<QWidget*>& order)
{
    for (qsizetype later = 0; later < order.size(); ++later) {
        const QRect place = order[later]->geometry();
        for (const QWidget* const earlier : order.mid(0, later)) {
            const QRect before = earlier->geometry();
            if (place.center().y() <= before.center().y() + 2 && place.left() <= before.left()) {
                complain(order[later]->objectName() + QStringLiteral(" after ") + earlier->objectName(),
                         "is not the order of reading");
            }
        }
    }
}

TEST_P(ScreenFile, MakesAFormThatCanBeRead)
{
    ApplicationValues values;
    values.databasePath = filledDatabase();
    values.screenFilePath = m_path;
    test::RecordingBoxes boxes;
    OptionForm form(values, boxes);
    form.show();
    QApplication::processEvents();
    auto& panel = *form.findChild<FieldPanel*>();
    if (panel.horizontalScrollBar()->maximum() > 0)
        complain(m_name, "the form is too narrow for its controls");
    QVector<QWidget*> controls =
        panel.widget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    controls.removeIf([](const QWidget* control) { return control->isHidden(); });
    for (qsizetype first = 0; first < controls.size(); ++first) {
        const QWidget& control = *controls[first];
        checkControl(control);
        if (!panel.widget()->rect().contains(control.geometry()))
            complain(control.objectName(), "is cut by the panel");
        for (const QWidget* const other : controls.mid(first + 1)) {
            if (control.geometry().intersects(other->geometry()))
                complain(control.objectName() + u' ' + other->objectName(), "overlap");
        }
    }
    QVector<QWidget*> order = panel.tabOrder();
    order.removeIf([](const QWidget* control) { return control->isHidden(); });
    checkOrder(order);
    for (const auto& control : m_screen.controls) {
        if (control.visible.value_or(false) && control.kind != ControlKind::Label && !control.tabIndex)
            complain(control, "has no Tabindex");
    }
}

TEST(InstalledScreens, TakeWhatTheRegistersOfTheModelHold)
{
    const struct {
        const char* file;
        const char* model;
        const char* box;
        QString typed;
        QString kept;
    } cases[] = {
        {"logomess.scn", "2", "TextControl_10", QString(50, u'x'), QString(40, u'x')},
        {"logomess.scn", "3", "TextControl_10", QString(50, u'x'), QString(32, u'x')},
        {"valdmess.scn", "3", "TextControl_1", QString(50, u'x'), QString(32, u'x')},
        {"chqenmes.scn", "3", "TextControl_10", QString(50, u'x'), QString(32, u'x')},
        {"gstchk.scn", "3", "TextControl_1", QString(50, u'x'), QString(32, u'x')},
        {"errmess.scn", "3", "TextControl_1", QString(50, u'x'), QString(30, u'x')},
        {"employee.scn", "3", "TextControl_2", QStringLiteral("0a-G 2D"), QStringLiteral("0a2D")},
    };
    for (const auto& [file, model, name, typed, kept] : cases) {
        const test::TestFolder customer;
        customer.write("setup.ini", QByteArray("[SetupOption]\r\nECRModel=") + model + "\r\n");
        ApplicationValues values;
        values.customerPath = customer.path();
        values.databasePath = filledDatabase();
        values.screenFilePath = QStringLiteral(SCREEN_FILES "/") + QLatin1String(file);
        test::RecordingBoxes boxes;
        const OptionForm form(values, boxes);
        auto* const box = form.findChild<ui::TextBox*>(QLatin1String(name));
        ASSERT_NE(box, nullptr) << file;
        QTest::keyClicks(box, typed);
        EXPECT_EQ(box->text(), kept) << file << ", model " << model;
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
