// Menu entries, clicks and keys; see Shop.h.
#include "tests/road/Shop.h"

#include "platform/FilePaths.h"
#include "platform/ProfileFile.h"
#include "shell/CustomerFolders.h"
#include "shell/FrmCustomer.h"
#include "shell/Openers.h"
#include "shell/SharedRoutines.h"
#include "store/Database.h"
#include "store/Recordset.h"
#include "store/Upgrade.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QProcess>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <numeric>

namespace norvane::test
{
namespace
{

constexpr int boxCount = 37;
constexpr int pluNumberWidth = 18;

template <typename Control>
Control& child(const QWidget& form, const QString& name)
{
    auto* const found = form.findChild<Control*>(name);
    if (found == nullptr)
        throw std::runtime_error("no control " + name.toStdString());
    return *found;
}

void click(QAbstractButton& button)
{
    QTest::mouseClick(&button, Qt::LeftButton);
}

/// Runs @p act on the next modal dialog that opens.
void onDialog(const std::function<void(QDialog&)>& act)
{
    QTimer::singleShot(0, qApp, [act] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        act(*dialog);
    });
}

/// Element numbers count from 1 within each kind of control.
QString elementName(const ProfileFile& screen, const QString& field)
{
    QHash<QString, int> elements;
    for (int section = 1;; ++section) {
        const QString name = QStringLiteral("Field%1").arg(section);
        const QString kind = screen.value(name, QStringLiteral("ControlType"));
        if (kind.isEmpty())
            throw std::runtime_error("no field " + field.toStdString());
        const int element = ++elements[kind.toUpper()];
        if (screen.value(name, QStringLiteral("Datafield")).compare(field, Qt::CaseInsensitive) == 0)
            return QStringLiteral("%1_%2").arg(kind).arg(element);
    }
}

} // namespace

Shop::Shop(int model, int registers) : m_folder(model, registers)
{
    m_values.appPath = m_folder.appPath();
    shell::FrmCustomer dialog(m_values, m_boxes);
    QTest::keyClicks(&child<QLineEdit>(dialog, QStringLiteral("text1")), QStringLiteral("Corner Shop"));
    click(child<QPushButton>(dialog, QStringLiteral("CSCmdBtn1")));
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    m_boxes.shown.clear();
    m_values.databasePath = shell::customerDatabase(m_values.customerPath);
    store::UpgradeUnitDescription(m_values.databasePath);
    m_main = std::make_unique<shell::FrmMain>(m_values, m_boxes, shell::makeOpeners(m_values, m_boxes));
    m_main->show();
}

void Shop::choose(const char* entry, const std::function<void(QDialog&)>& act)
{
    if (act)
        onDialog(act);
    child<QAction>(*m_main, QString::fromLatin1(entry)).trigger();
}

BoxNumbers Shop::everyBox()
{
    BoxNumbers all(boxCount);
    std::iota(all.begin(), all.end(), 0);
    return all;
}

BoxNumbers Shop::exchange(const char* entry, const BoxNumbers& boxes)
{
    BoxNumbers left;
    choose(entry, [&](QDialog& dialog) {
        const auto box = [&dialog](int index) -> QCheckBox& {
            return child<QCheckBox>(dialog, QStringLiteral("check1_%1").arg(index));
        };
        if (boxes == everyBox()) {
            click(child<QPushButton>(dialog, QStringLiteral("CSCmdBtn2")));
        } else {
            for (const int index : boxes)
                box(index).click();
        }
        click(child<QPushButton>(dialog, QStringLiteral("Communicate")));
        for (int index = 0; index < boxCount; ++index) {
            if (box(index).isChecked())
                left << index;
        }
        click(child<QPushButton>(dialog, QStringLiteral("CSCmdBtn1")));
    });
    return left;
}

QWidget& Shop::openForm(const char* entry)
{
    choose(entry);
    QMdiSubWindow* const window = child<QMdiArea>(*m_main, QString()).activeSubWindow();
    if (window == nullptr)
        throw std::runtime_error(std::string("no form behind ") + entry);
    return *window->widget();
}

QWidget& Shop::openScreen(const char* entry)
{
    QWidget& form = openForm(entry);
    if (form.objectName() != QLatin1String("OptionForm"))
        throw std::runtime_error(std::string("no screen behind ") + entry);
    return form;
}

void Shop::press(QWidget& form, const char* button)
{
    click(child<QPushButton>(form, QString::fromLatin1(button)));
}

void Shop::find(QWidget& form, const char* text)
{
    onDialog([text](QDialog& dialog) {
        QTest::keyClicks(&child<QLineEdit>(dialog, QStringLiteral("SearchData")), QString::fromLatin1(text));
        click(child<QPushButton>(dialog, QStringLiteral("ExitControl_0")));
    });
    press(form, "FindControl_1");
}

QWidget& Shop::control(QWidget& form, const char* field)
{
    const ProfileFile screen(existingPath(m_values.screenFilePath));
    return child<QWidget>(form, elementName(screen, QString::fromLatin1(field)));
}

void Shop::type(QWidget& form, const char* field, const char* text)
{
    QWidget& box = control(form, field);
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&box, QString::fromLatin1(text));
}

QList<QByteArrayList> Shop::recordsOf(int registerNumber, int file) const
{
    const TestFolder elsewhere;
    const QString source = QStringLiteral("%1.dat").arg(file);
    EXPECT_TRUE(QFile::copy(m_folder.registerFile(registerNumber, file), elsewhere.path(qPrintable(source))));
    QProcess convert;
    convert.setWorkingDirectory(elsewhere.path());
    convert.start(m_folder.appFile(QStringLiteral("convert")),
                  {QStringLiteral("w") + GetModelCode(m_values), QStringLiteral("f") + source,
                   QStringLiteral("tout.txt"), QStringLiteral("u%1").arg(file, 2, 10, QLatin1Char('0'))});
    EXPECT_TRUE(convert.waitForFinished(-1));
    EXPECT_EQ(convert.exitCode(), 0) << convert.readAllStandardError().toStdString();
    QList<QByteArrayList> records;
    for (const QByteArray& line : elsewhere.read("out.txt").split('\n')) {
        if (!line.isEmpty())
            records << line.chopped(1).split(',');
    }
    return records;
}

QByteArrayList Shop::recordOf(int registerNumber, int file, const QByteArray& key) const
{
    for (const QByteArrayList& record : recordsOf(registerNumber, file)) {
        if (record.first() == key.rightJustified(pluNumberWidth, '0'))
            return record;
    }
    ADD_FAILURE() << "register " << registerNumber << " has no record " << key.constData();
    return {};
}

QString Shop::stored(const char* table, const char* field, const QString& key) const
{
    store::Database database(m_values.databasePath);
    store::Recordset records = database.openTable(QString::fromLatin1(table));
    if (!key.isEmpty() && !records.seek(store::Seek::Equal, store::Value::text(key))) {
        ADD_FAILURE() << "no record " << qPrintable(key) << " in " << table;
        return {};
    }
    return records.value(QString::fromLatin1(field)).toText();
}

qint64 Shop::rowsOf(const char* table) const
{
    store::Database database(m_values.databasePath);
    return database.openTable(QString::fromLatin1(table)).recordCount();
}

void Shop::execute(const char* sql) const
{
    store::Database database(m_values.databasePath);
    database.execute(QString::fromLatin1(sql));
}

} // namespace norvane::test
