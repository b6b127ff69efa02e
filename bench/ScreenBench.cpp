// Opening a screen of 100 fields beside creating and laying out the same widgets bare; a keystroke in the
// list beside a screen of 100,000 PLUs beside the engine's own search.
#include "bench/Shop.h"
#include "bench/WidgetMain.h"
#include "screens/OptionForm.h"
#include "screens/RecordList.h"
#include "screens/ScreenReader.h"
#include "store/engine/CommitOnExit.h"
#include "store/engine/Recordset.h"
#include "ui/DecimalBox.h"
#include "ui/IntegerBox.h"
#include "ui/MessageBoxes.h"
#include "ui/TextBox.h"
#include "ui/ValueList.h"

#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QTableView>

#include <algorithm>
#include <array>
#include <memory>

namespace
{

using namespace norvane;
using bench::require;

constexpr int fieldCount = 100;
constexpr int groupCount = 20;

/// Controls in the mixture of a real screen: every second one a label.
const char* kindOf(int number)
{
    constexpr std::array kinds{"TextControl", "IntegerNumberControl", "CheckControl", "DecimalNumberControl",
                               "ComboControl"};
    return number % 2 == 0 ? "LabelControl" : kinds.at(static_cast<std::size_t>(number / 2 % 5));
}

const char* fieldOf(const QByteArray& kind)
{
    if (kind == "TextControl")
        return "DESCRIPTION";
    return kind == "CheckControl" ? "addtogrouptotal" : "GROUPNO";
}

QPoint placeOf(int number)
{
    return {10 + number % 4 * 170, 10 + number / 4 * 27};
}

QByteArray screenText()
{
    QByteArray text(
        "[Database]\r\ntable=GROUPS\r\nIndex1=groupno\r\n[FormName]\r\nWidth=12000\r\nHeight=9000\r\n"
        "[visiblekeys]\r\nShownextrecord=YES\r\nShowpreviousrecord=YES\r\n");
    for (int number = 0; number < fieldCount; ++number) {
        const QByteArray kind(kindOf(number));
        text += "[Field" + QByteArray::number(number + 1) + "]\r\nControlType=" + kind +
                "\r\nVisible=True\r\nWidth=2400\r\nDescription=Field\r\nMaxvalue=99\r\nX=" +
                QByteArray::number(placeOf(number).x() * 15) +
                "\r\nY=" + QByteArray::number(placeOf(number).y() * 15) +
                "\r\nTabindex=" + QByteArray::number(number) + "\r\nDatafield=" + fieldOf(kind) +
                "\r\nSQLCriteria=select GROUPNO, DESCRIPTION from GROUPS order by GROUPNO\r\n";
    }
    return text;
}

class Shop : public bench::Shop
{
public:
    Shop()
        : bench::Shop("insert into GROUPS (GROUPNO, DESCRIPTION) " + bench::numbersTo(groupCount) +
                      "select i, 'Drinks' from n")
    {
        QFile screen(screenFilePath);
        require(screen.open(QIODevice::WriteOnly) && screen.write(screenText()) > 0, "screen file");
    }

    const QString screenFilePath = file("screen.scn");
};

QWidget* bareControl(const QByteArray& kind, QWidget* parent)
{
    if (kind == "LabelControl")
        return new QLabel(QStringLiteral("Field"), parent);
    if (kind == "CheckControl")
        return new QCheckBox(QStringLiteral("Field"), parent);
    if (kind == "IntegerNumberControl")
        return new ui::IntegerBox(parent);
    if (kind == "DecimalNumberControl")
        return new ui::DecimalBox(parent);
    if (kind == "TextControl")
        return new ui::TextBox(parent);
    auto* const list = new ui::ValueList(parent);
    QVector<QStringList> rows;
    for (int row = 0; row <= groupCount; ++row)
        rows += {QString::number(row), QStringLiteral("Drinks")};
    list->setRows(rows);
    return list;
}

void openBare()
{
    QWidget form;
    form.resize(800, 600);
    auto* const column = new QVBoxLayout(&form);
    auto* const panel = new QScrollArea(&form);
    auto* const picture = new QWidget;
    for (int number = 0; number < fieldCount; ++number)
        bareControl(kindOf(number), picture)->setGeometry(QRect(placeOf(number), QSize(160, 24)));
    picture->resize(700, 700);
    panel->setWidget(picture);
    column->addWidget(panel);
    auto* const row = new QHBoxLayout;
    for (int button = 0; button < 4; ++button)
        row->addWidget(new QPushButton(QStringLiteral("&Next"), &form));
    column->addLayout(row);
    form.show();
    QApplication::processEvents();
    require(form.isVisible(), "the bare form shows");
}

void openScreen(benchmark::State& state)
{
    Shop shop;
    ui::MessageBoxes boxes;
    require(screens::ScreenReader(shop.screenFilePath).controls().size() == fieldCount, "100 fields");
    bench::compare(
        state,
        [&] {
            screens::OptionForm form(shop.screenFilePath, shop.values, boxes);
            form.show();
            QApplication::processEvents();
            require(form.isVisible(), "the screen shows");
            require(form.findChild<QLineEdit*>(QStringLiteral("TextControl_10"))->text() ==
                        QStringLiteral("Drinks"),
                    "the screen shows its record");
        },
        openBare);
}

constexpr int pluCount = 100000;

void fillPlus(store::Database& database)
{
    const store::CommitOnExit transaction(database);
    store::Recordset plus = database.openTable(QStringLiteral("PLUDATA"));
    for (int number = 1; number <= pluCount; ++number) {
        plus.addNew();
        plus.setValue(QStringLiteral("PLUNUMBER"), store::Value::text(bench::pluNumber(number * 37LL)));
        plus.setValue(QStringLiteral("DESCRIPTION"),
                      store::Value::text(QStringLiteral("Article %1").arg(number % 977)));
        plus.update();
    }
}

qint64 countLike(store::Database& database, const QString& part)
{
    const QString sql = QStringLiteral("select count(*) from PLUDATA where PLUNUMBER like '%%1%' or "
                                       "DESCRIPTION like '%%1%'");
    return database.openQuery(QString(sql).replace(QStringLiteral("%1"), part))
        .value(0)
        .toText()
        .toLongLong();
}

/// Replaces the filter, or adds to it, as a typist does, and lets the list paint.
void typeKey(QLineEdit& box, int stroke)
{
    static const QString keys = QStringLiteral("art123");
    const QChar key = keys[stroke % keys.size()];
    if (stroke % 3 == 0)
        box.selectAll();
    QKeyEvent press(QEvent::KeyPress, key.unicode(), Qt::NoModifier, QString(key));
    QApplication::sendEvent(&box, &press);
    QApplication::processEvents();
}

void filterList(benchmark::State& state)
{
    Shop shop;
    const auto database = std::make_shared<store::Database>(shop.database());
    fillPlus(*database);
    QWidget form;
    screens::RecordList list(database,
                             {QStringLiteral("PLUDATA"), QStringLiteral("plunumber"),
                              QStringLiteral("PLUNUMBER"), QStringLiteral("DESCRIPTION")},
                             &form);
    form.resize(280, 500);
    list.resize(form.size());
    form.show();
    state.counters["open_ms"] =
        1e3 * bench::secondsOf([&] {
            list.toggle();
            QApplication::processEvents(); // or the first keystroke would paint the list
        });
    auto* const box = list.findChild<QLineEdit*>();
    const auto* const rows = list.findChild<QTableView*>()->model();
    require(rows->rowCount() == pluCount, "all PLUs");
    int stroke = 0;
    double worst = 0;
    bench::compare(
        state, [&] { worst = std::max(worst, bench::processorSecondsOf([&] { typeKey(*box, stroke++); })); },
        [&] { benchmark::DoNotOptimize(countLike(*database, QStringLiteral("12"))); });
    require(rows->rowCount() > 0 && rows->rowCount() < pluCount, "the list is filtered");
    state.counters["worst_ms"] = worst * 1e3;
}

} // namespace

BENCHMARK(filterList)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(60);
BENCHMARK(openScreen)->UseManualTime()->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    return norvane::bench::runWithWidgets(argc, argv);
}
