// A shop manager at work: the real program with its forms, over a staged program folder with the real tools
// and a bank of registers. Acts by menu entries, clicks and keys, looks at what registers and database hold.
#pragma once

#include "base/CustomerSettings.h"
#include "platform/FilePaths.h"
#include "shell/FrmMain.h"
#include "shell/Openers.h"
#include "tests/store/Rows.h"
#include "tests/support/FormTest.h"
#include "tests/support/ProgramFolder.h"

namespace norvane::test
{

/// Numbers of boxes in the exchange dialog.
using BoxNumbers = QList<int>;

class Shop
{
public:
    /// Starts with a new customer. @p model is the index ECRModel.
    Shop(int model, int registers)
        : m_folder(model, registers), m_values(m_folder.makeCustomer(u"Corner Shop"_s))
    {
        m_main = std::make_unique<shell::FrmMain>(m_values, m_boxes, shell::makeOpeners(m_values, m_boxes));
        m_main->show();
    }

    /// Creates a second customer and continues with it, as after a restart of the program.
    void startWith(const QString& customer)
    {
        m_values = m_folder.makeCustomer(customer);
        m_main->showCustomer();
    }

    [[nodiscard]] ProgramFolder& folder() { return m_folder; }
    [[nodiscard]] const ApplicationValues& values() const { return m_values; }
    [[nodiscard]] RecordingBoxes& boxes() { return m_boxes; }

    /// Opens the exchange dialog, ticks @p boxes or, without any, all by "Select All", presses OK, leaves.
    /// @return the boxes still ticked after it.
    BoxNumbers upload(const BoxNumbers& boxes = {}) { return exchange("UploadVelmar", boxes); }
    BoxNumbers download(const BoxNumbers& boxes = {}) { return exchange("DownloadVelmar", boxes); }

    /// Chooses a menu entry that opens a form which is not modal. @return the form.
    QWidget& openForm(const char* entry)
    {
        choose(entry);
        QWidget* const form = front();
        if (form == nullptr)
            throw std::runtime_error(std::string("no form opens for ") + entry);
        return *form;
    }
    /// The form in front that is not modal, if any.
    [[nodiscard]] QWidget* front() const
    {
        QMdiSubWindow* const window = child<QMdiArea>(*m_main, QString()).activeSubWindow();
        return window ? window->widget() : nullptr;
    }

    /// What a register holds in a file, as text lines split at the commas.
    [[nodiscard]] QList<QByteArrayList> recordsOf(int registerNumber, int file) const
    {
        const QString source = m_folder.registerFile(registerNumber, file);
        const QString text = joinPath(m_folder.bankPath(), u"out.txt"_s);
        QProcess convert;
        convert.setWorkingDirectory(QFileInfo(source).path());
        convert.start(m_folder.appFile(u"convert"_s),
                      {u"w"_s + GetModelCode(m_values), u"f%1.dat"_s.arg(file), u"t../out.txt"_s,
                       u"u%1"_s.arg(file, 2, 10, QChar(u'0'))});
        EXPECT_TRUE(convert.waitForFinished(-1));
        EXPECT_EQ(convert.exitCode(), 0) << convert.readAllStandardError().toStdString();
        QList<QByteArrayList> records;
        for (const QByteArray& line : readWholeFile(text).split('\n')) {
            if (!line.isEmpty())
                records << line.chopped(1).split(',');
        }
        return records;
    }
    [[nodiscard]] qint64 rowsOf(const char* table) const
    {
        store::Database database(m_values.databasePath);
        return database.openTable(QString::fromLatin1(table)).recordCount();
    }
    /// Runs a statement on the customer's database, as another program at the same file would.
    void execute(const char* sql) const
    {
        store::Database(m_values.databasePath).execute(QString::fromLatin1(sql));
    }

    /// Chooses a menu entry; @p act runs as soon as a modal dialog is open.
    void choose(const char* entry, const std::function<void(QDialog&)>& act = {})
    {
        if (act)
            onDialog(act);
        child<QAction>(*m_main, entry).trigger();
    }

private:
    /// Runs @p act on the next modal dialog that opens.
    static void onDialog(const std::function<void(QDialog&)>& act)
    {
        QTimer::singleShot(0, qApp, [act] {
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            act(*dialog);
        });
    }
    BoxNumbers exchange(const char* entry, const BoxNumbers& boxes)
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

    static constexpr int boxCount = 37;
    ProgramFolder m_folder;
    ApplicationValues m_values;
    RecordingBoxes m_boxes;
    std::unique_ptr<shell::FrmMain> m_main;
};

} // namespace norvane::test
