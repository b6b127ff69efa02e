// Checks every screen file that is installed against the table catalogue, the columns of the register files
// and the form that it makes.
#include "paper/Length.h"
#include "screens/FieldPanel.h"
#include "screens/OptionForm.h"
#include "screens/ScreenReader.h"
#include "shell/FrmMain.h"
#include "store/catalogue/Catalogue.h"
#include "store/engine/Recordset.h"
#include "tests/data/FieldRules.h"
#include "tests/platform/TestFolder.h"
#include "tests/support/FormTest.h"
#include "ui/Appearance.h"
#include "ui/TextBox.h"
#include "ui/ValueList.h"

#include <algorithm>

namespace norvane::screens
{
namespace
{

using store::FieldDefinition, store::FieldType, store::TableDefinition;

/// Pixels between a text and the edges of its box.
constexpr int boxMargins = 8;

/// The catalogue's tables with one record in each: zeros, empty texts, and names as long as they can be.
/// hold.
const QString& filledDatabase()
{
    static const test::TestFolder folder;
    static const QString path = folder.path("velmar.mdb");
    if (QFile::exists(path))
        return path;
    store::Database::create(path, store::catalogue());
    store::Database database(path);
    for (const TableDefinition& table : store::catalogue()) {
        // The sales tables, which have dates, have no screen.
        if (std::ranges::find(table.fields, FieldType::Date, &FieldDefinition::type) != table.fields.end())
            continue;
        store::Recordset records = database.openTable(table.name);
        records.addNew();
        for (const FieldDefinition& field : table.fields) {
            if (field.type == FieldType::Text && !isPrice(field)) {
                const bool isName = field.name.compare(u"DESCRIPTION"_s, Qt::CaseInsensitive) == 0;
                const auto letters = static_cast<std::size_t>(isName ? field.size : 0);
                records.setValue(field.name, store::Value::text(std::string(letters, 'M')));
            } else if (field.type != FieldType::Counter) {
                records.setValue(field.name, store::Value::whole(0));
            }
        }
        records.update();
    }
    return path;
}

/// One screen file. Complaints are worded for somebody who has to correct it.
class ScreenFile : public testing::TestWithParam<std::string>
{
protected:
    ScreenFile()
    {
        ui::applyAppearance(static_cast<QApplication&>(*QCoreApplication::instance()));
        m_values.databasePath = filledDatabase();
    }

    static void complain(const QString& about, const QString& text)
    {
        ADD_FAILURE() << qPrintable(about) << ": " << qPrintable(text);
    }
    static void complain(const ControlDefinition& control, const QString& text)
    {
        complain(u"[%1] %2%3"_s.arg(control.section, control.description, control.dataField), text);
    }
    void checkField(const ControlDefinition& control, const FieldDefinition& field) const;
    void checkLimit(const ControlDefinition& control, const FieldDefinition& field) const;
    [[nodiscard]] QStringList offeredFields() const;
    static void checkPlaces(const QWidget& picture, const QList<QWidget*>& controls);
    static void checkOrder(const QVector<QWidget*>& order);
    static void checkWidth(const QWidget& control);

    const QString m_name = QString::fromStdString(GetParam());
    const QString m_path = QStringLiteral(SCREEN_FILES "/") + m_name;
    const ScreenReader m_screen{m_path};
    const QVector<ControlDefinition> m_fields = m_screen.controls();
    const TableDefinition* m_table = store::catalogueTable(m_screen.table().table);
    ApplicationValues m_values;
    test::RecordingBoxes m_boxes;
};

TEST_P(ScreenFile, IsReadCompletely)
{
    QFile file(m_path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.count('\n') == bytes.count("\r\n") && bytes.endsWith("\r\n"))
        << "line ends are not CR LF";
    EXPECT_EQ(bytes.count("\r\n[Field"), m_fields.size())
        << "sections are numbered with a gap, or have no known control type";
    for (const QByteArray& line : bytes.split('\n')) {
        const qsizetype limit = line.startsWith("List=") ? profileListLimit : profileValueLimit;
        EXPECT_LE(line.trimmed().size() - line.indexOf('=') - 1, limit) << line.data();
    }
    const ScreenWindow window = m_screen.window();
    EXPECT_TRUE(!window.name.isEmpty() && window.width && window.height)
        << "the window has no name or no size";
}

TEST_P(ScreenFile, BindsControlsToFieldsThatTheyCanHold)
{
    ASSERT_NE(m_table, nullptr) << m_screen.table().table.toStdString();
    store::Database database(filledDatabase());
    database.openTable(m_table->name).setIndex(m_screen.table().secondIndex);
    QSet<QString> seen;
    for (const auto& control : m_fields) {
        if (control.dataField.isEmpty())
            continue;
        if (seen.contains(control.dataField.toUpper()))
            complain(control, u"is twice on the screen"_s);
        seen += control.dataField.toUpper();
        const auto isIt = [&](const auto& field) {
            return field.name.compare(control.dataField, Qt::CaseInsensitive) == 0;
        };
        const auto field = std::ranges::find_if(m_table->fields, isIt);
        if (field != m_table->fields.end()) {
            checkField(control, *field);
        } else {
            complain(control, u"the table has no such field"_s);
        }
    }
}

void ScreenFile::checkField(const ControlDefinition& control, const FieldDefinition& field) const
{
    if (!canHold(control, field))
        complain(control, u"this kind of control cannot hold the field"_s);
    if (control.kind == ControlKind::Integer && mayBeEmpty(m_table->name, field.name))
        complain(control, u"may be empty, which a box for whole numbers cannot show"_s);
    const bool isText = control.kind == ControlKind::Text;
    const bool isTyped =
        isText || control.kind == ControlKind::Integer || control.kind == ControlKind::Decimal;
    if (!isTyped || control.readOnly.value_or(false) || !control.visible.value_or(false))
        return;
    if (!control.maximum || control.maximum->toDouble() < 1)
        return complain(control, u"has no Maxvalue"_s);
    checkLimit(control, field);
}

void ScreenFile::checkLimit(const ControlDefinition& control, const FieldDefinition& field) const
{
    const bool isText = control.kind == ControlKind::Text;
    const QString maximum = QString::fromStdString(control.maximum->text());
    const Decimal largest = largestOf(control, m_table->name);
    if (!(largest == Decimal()) && !(*control.maximum == largest))
        complain(control, u"the register's column takes up to "_s + QString::fromStdString(largest.text()));
    if (isText && control.maximum->toDouble() > field.size)
        complain(control, u"takes more characters than the field"_s);
    if (control.kind == ControlKind::Decimal && control.maximum->scale() != control.decimals.value_or(-1))
        complain(control, u"Maxvalue and DecimalNumbers differ"_s);
    const int needed = boxMargins + QFontMetrics(QApplication::font()).horizontalAdvance(maximum);
    if (!isText && paper::screenPixels(paper::twips(control.width.value_or(0))) < needed)
        complain(control, u"is too narrow for its largest number"_s);
}

QStringList ScreenFile::offeredFields() const
{
    QStringList offered;
    for (const auto& control : m_fields) {
        if (!control.visible.value_or(false))
            continue;
        offered += control.dataField;
        if (control.kind == ControlKind::Grid) // the names of its query
            offered += control.sqlCriteria.split(QRegularExpression(u"\\W+"_s));
    }
    return offered;
}

TEST_P(ScreenFile, OffersWhatAUserMaySetAndNothingElse)
{
    const QStringList offered = offeredFields();
    for (const auto& field : m_table->fields) {
        // The number of an option table's only record is of no use to the user.
        const bool isOnlyRecord = field.name == m_table->indexes.first().field && !m_screen.buttons().next;
        const bool isOffered = offered.contains(field.name, Qt::CaseInsensitive);
        if (isOffered == isLeftOut(m_name, m_table->name, field.name) && !isOnlyRecord) {
            complain(field.name,
                     isOffered ? u"is on the screen though listed as left out"_s : u"is not on the screen"_s);
        }
    }
}

TEST_P(ScreenFile, LetsOnlyPlusBeAddedAndDeleted)
{
    const ScreenButtons buttons = m_screen.buttons();
    EXPECT_EQ(buttons.add, m_table->name == u"PLUDATA" && buttons.save) << "only PLUs may be added";
    EXPECT_EQ(buttons.remove, buttons.add);
    EXPECT_EQ(buttons.previous, buttons.next);
    const QString& key = m_table->indexes.first().field;
    for (const auto& control : m_fields) {
        const bool isKey = control.dataField.compare(key, Qt::CaseInsensitive) == 0;
        if (isKey && control.visible.value_or(false) && !buttons.add && !control.readOnly.value_or(false))
            complain(control, u"is the number of the register's record"_s);
    }
}

void ScreenFile::checkWidth(const QWidget& control)
{
    int needed = 0;
    if (qobject_cast<const QLabel*>(&control) != nullptr ||
        qobject_cast<const QCheckBox*>(&control) != nullptr) {
        needed = control.sizeHint().width();
    } else if (const auto* const box = qobject_cast<const ui::TextBox*>(&control)) {
        needed = boxMargins + control.fontMetrics().averageCharWidth() * qMin(box->maxLength(), 40);
    } else if (const auto* const list = qobject_cast<const ui::ValueList*>(&control)) {
        EXPECT_GE(list->count(), 2) << qPrintable(control.objectName()) << " leaves nothing to pick";
        QStyleOptionComboBox option;
        option.initFrom(list);
        const int room =
            list->style()
                ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, list)
                .width();
        for (int row = 0; row < list->count(); ++row) {
            const int text = control.fontMetrics().horizontalAdvance(list->itemText(row));
            needed = qMax(needed, text + list->width() - room);
        }
    }
    if (needed > control.width()) {
        complain(control.objectName() + u' ' + control.accessibleName(), u"is too narrow for its text"_s);
    }
}

TEST_P(ScreenFile, MakesAFormThatCanBeRead)
{
    OptionForm form(m_path, m_values, m_boxes);
    form.show();
    QApplication::processEvents();
    auto& panel = *form.findChild<FieldPanel*>();
    EXPECT_EQ(panel.horizontalScrollBar()->maximum(), 0) << "the form is too narrow for its controls";
    const auto isHidden = [](const QWidget* control) {
        return control->isHidden();
    };
    auto controls = panel.widget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    controls.removeIf(isHidden);
    checkPlaces(*panel.widget(), controls);
    QVector<QWidget*> order;
    for (QWidget* next = panel.nextInFocusChain(); next != &panel; next = next->nextInFocusChain()) {
        if (controls.contains(next) && !qobject_cast<QLabel*>(next))
            order += next;
    }
    checkOrder(order);
}

void ScreenFile::checkPlaces(const QWidget& picture, const QList<QWidget*>& controls)
{
    for (const QWidget* const control : controls) {
        checkWidth(*control);
        if (!picture.rect().contains(control->geometry()))
            complain(control->objectName(), u"is cut by the panel"_s);
        for (const QWidget* const other : controls) {
            if (other != control && control->geometry().intersects(other->geometry()))
                complain(control->objectName() + u' ' + other->objectName(), u"overlap"_s);
        }
    }
}

/// Down a column and then the next one, or along a row and then the next one: no later control is both above,
/// or level, and to the left, or level.
void ScreenFile::checkOrder(const QVector<QWidget*>& order)
{
    for (qsizetype later = 0; later < order.size(); ++later) {
        const QRect place = order[later]->geometry();
        for (const QWidget* const earlier : order.mid(0, later)) {
            const QRect before = earlier->geometry();
            if (place.center().y() <= before.center().y() + 2 && place.left() <= before.left()) {
                complain(order[later]->objectName() + u" after "_s + earlier->objectName(),
                         u"is not the order of reading"_s);
            }
        }
    }
}

TEST_P(ScreenFile, FitsOrScrollsOnTheSmallestDesktop)
{
    shell::FrmMain main(m_values, m_boxes, {});
    main.resize(1024, 738);
    main.show();
    auto* const form = new OptionForm(m_path, m_values, m_boxes);
    const auto& child = main.showChild(form);
    QApplication::processEvents();
    EXPECT_TRUE(child.parentWidget()->rect().contains(child.geometry()));
    for (const auto* const button : form->findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (button->isVisible() && !form->rect().contains(button->geometry()))
            complain(button->objectName(), u"is out of sight"_s);
    }
    const auto& panel = *form->findChild<FieldPanel*>();
    EXPECT_EQ(panel.horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(panel.verticalScrollBar()->maximum(),
              qMax(0, panel.widget()->height() - panel.viewport()->height()));
}

const QString long50(50, u'x');
const struct {
    QString file;
    QByteArray model;
    const char* box;
    QString typed;
    QString kept;
} modelLimits[] = {{u"logomess.scn"_s, "2", "TextControl_10", long50, long50.left(40)},
                   {u"logomess.scn"_s, "3", "TextControl_10", long50, long50.left(32)},
                   {u"valdmess.scn"_s, "3", "TextControl_1", long50, long50.left(32)},
                   {u"chqenmes.scn"_s, "3", "TextControl_10", long50, long50.left(32)},
                   {u"gstchk.scn"_s, "3", "TextControl_1", long50, long50.left(32)},
                   {u"employee.scn"_s, "3", "TextControl_2", u"0a-G 2D"_s, u"0a2D"_s}};

/// The form of a screen file for a customer with registers of that model.
std::unique_ptr<OptionForm> formOf(const QString& file, const QByteArray& model)
{
    static const test::TestFolder customer;
    static ApplicationValues values;
    static test::RecordingBoxes boxes;
    customer.write("setup.ini", "[SetupOption]\r\nECRModel=" + model + "\r\n");
    values.customerPath = customer.path();
    values.databasePath = filledDatabase();
    return std::make_unique<OptionForm>(QStringLiteral(SCREEN_FILES "/") + file, values, boxes);
}

TEST(InstalledScreens, TakeWhatTheRegistersOfTheModelHold)
{
    for (const auto& [file, model, name, typed, kept] : modelLimits) {
        const auto form = formOf(file, model);
        auto* const box = form->findChild<ui::TextBox*>(QLatin1String(name));
        ASSERT_NE(box, nullptr) << qPrintable(file);
        QTest::keyClicks(box, typed);
        EXPECT_EQ(box->text(), kept) << qPrintable(file) << ", model " << model.data();
    }
}

TEST(InstalledScreens, ShowTimesOfTheDayInFourDigits)
{
    ApplicationValues values;
    values.databasePath = filledDatabase();
    test::RecordingBoxes boxes;
    const OptionForm form(QStringLiteral(SCREEN_FILES "/timeperd.scn"), values, boxes);
    auto* const end = form.findChild<QLineEdit*>(u"IntegerNumberControl_2"_s);
    ASSERT_NE(end, nullptr);
    EXPECT_EQ(end->text(), u"0000");
    end->clear();
    QTest::keyClicks(end, u"930\r"_s);
    EXPECT_EQ(end->text(), u"0930");
}

TEST(InstalledScreens, OfferCardOptionsToModelsWithCards)
{
    for (const QByteArray model : {"0", "1", "2"}) {
        const auto form = formOf(u"EJPRT.scn"_s, model);
        const auto boxes = form->findChildren<QCheckBox*>();
        const auto enabled = std::ranges::count_if(boxes, [](const QCheckBox* box) {
            return box->text() == u"Payment by points" && box->isEnabled();
        });
        EXPECT_EQ(enabled, model == "0" ? 0 : 1) << model.data();
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
