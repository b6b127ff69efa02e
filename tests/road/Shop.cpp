// Menu entries, clicks and keys; see Shop.h.
#include "tests/road/Shop.h"

#include "base/SharedRoutines.h"
#include "platform/FilePaths.h"
#include "shell/Openers.h"
#include "store/Database.h"
#include "store/Recordset.h"

#include <QTest>
#include <QtWidgets>

namespace norvane::test
{
namespace
{

constexpr int boxCount = 37;

template <typename Control>
Control& child(const QWidget& form, const QString& name)
{
    auto* const found = form.findChild<Control*>(name);
    if (found == nullptr)
        throw std::runtime_error("no control " + name.toStdString());
    return *found;
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

} // namespace

Shop::Shop(int model, int registers)
    : m_folder(model, registers), m_values(m_folder.makeCustomer(u"Corner Shop"_s))
{
    m_main = std::make_unique<shell::FrmMain>(m_values, m_boxes, shell::makeOpeners(m_values, m_boxes));
    m_main->show();
}

void Shop::startWith(const QString& customer)
{
    m_values = m_folder.makeCustomer(customer);
    m_main->showCustomer();
}

void Shop::choose(const char* entry, const std::function<void(QDialog&)>& act)
{
    if (act)
        onDialog(act);
    child<QAction>(*m_main, QString::fromLatin1(entry)).trigger();
}

BoxNumbers Shop::exchange(const char* entry, const BoxNumbers& boxes)
{
    BoxNumbers left;
    choose(entry, [&](QDialog& dialog) {
        const auto box = [&dialog](int index) -> QCheckBox& {
            return child<QCheckBox>(dialog, u"check1_%1"_s.arg(index));
        };
        if (boxes.isEmpty())
            press(dialog, "CSCmdBtn2");
        for (const int index : boxes)
            box(index).click();
        press(dialog, "Communicate");
        for (int index = 0; index < boxCount; ++index) {
            if (box(index).isChecked())
                left << index;
        }
        press(dialog, "CSCmdBtn1");
    });
    return left;
}

QWidget& Shop::openForm(const char* entry)
{
    choose(entry);
    QWidget* const form = front();
    if (form == nullptr)
        throw std::runtime_error(std::string("no form behind ") + entry);
    return *form;
}

QWidget* Shop::front() const
{
    QMdiSubWindow* const window = child<QMdiArea>(*m_main, QString()).activeSubWindow();
    return window ? window->widget() : nullptr;
}

void Shop::press(QWidget& form, const char* button)
{
    QTest::mouseClick(&child<QPushButton>(form, QString::fromLatin1(button)), Qt::LeftButton);
}

QList<QByteArrayList> Shop::recordsOf(int registerNumber, int file) const
{
    const QString source = m_folder.registerFile(registerNumber, file);
    const QString text = joinPath(m_folder.bankPath(), u"out.txt"_s);
    QProcess convert;
    convert.setWorkingDirectory(QFileInfo(source).path());
    convert.start(m_folder.appFile(u"convert"_s), {u"w"_s + GetModelCode(m_values), u"f%1.dat"_s.arg(file),
                                                   u"t../out.txt"_s, u"u%1"_s.arg(file, 2, 10, QChar(u'0'))});
    EXPECT_TRUE(convert.waitForFinished(-1));
    EXPECT_EQ(convert.exitCode(), 0) << convert.readAllStandardError().toStdString();
    QList<QByteArrayList> records;
    for (const QByteArray& line : readWholeFile(text).split('\n')) {
        if (!line.isEmpty())
            records << line.chopped(1).split(',');
    }
    return records;
}

qint64 Shop::rowsOf(const char* table) const
{
    store::Database database(m_values.databasePath);
    return database.openTable(QString::fromLatin1(table)).recordCount();
}

void Shop::execute(const char* sql) const
{
    store::Database(m_values.databasePath).execute(QString::fromLatin1(sql));
}

} // namespace norvane::test
