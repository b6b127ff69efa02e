// An overlay designer with boxes and dialogs that answer as a test says, and a printer that prints into a
// file.
#pragma once

#include "overlay/OverlayForm.h"
#include "store/catalogue/Catalogue.h"
#include "tests/overlay/RecordingDialogs.h"
#include "tests/store/StoreFolder.h"
#include "tests/support/FormTest.h"

#include <QPrinter>

namespace norvane::overlay
{

class OverlayFormTest : public testing::Test
{
protected:
    OverlayFormTest()
    {
        m_values.appPath = u"/app"_s;
        m_values.customerPath = m_folder.folder().path();
        m_values.databasePath = m_folder.path();
    }

    void open(Keyboard keyboard)
    {
        m_form.emplace(keyboard, m_values, m_boxes, m_dialogs, m_printer);
        m_form->show();
        QApplication::setActiveWindow(&*m_form);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&*m_form));
    }
    /// A printer that prints into a file.
    [[nodiscard]] std::unique_ptr<QPrinter> makePrinter() const
    {
        if (m_printFile.isEmpty())
            return nullptr;
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setOutputFileName(m_printFile);
        return printer;
    }
    [[nodiscard]] QString path(const char* name) const { return m_folder.folder().path(name); }
    /// By way of the event loop, whose handler keeps a failure.
    void choose(const char* entry)
    {
        auto* const action = m_form->findChild<QAction*>(QLatin1StringView(entry));
        QMetaObject::invokeMethod(action, &QAction::trigger, Qt::QueuedConnection);
        QCoreApplication::processEvents();
    }
    [[nodiscard]] QLineEdit& cell(int index)
    {
        return *m_form->findChild<QLineEdit*>(u"RichTextBox1_%1"_s.arg(index));
    }
    void type(int index, const char* text)
    {
        cell(index).setFocus();
        cell(index).selectAll();
        for (const QChar letter : QString::fromUtf8(text))
            QTest::sendKeyEvent(QTest::Click, &cell(index), Qt::Key_unknown, QString(letter), Qt::NoModifier);
    }
    void click(int index) { QTest::mouseClick(&cell(index), Qt::LeftButton); }
    /// As a mouse does: the first press is a click.
    void doubleClick(int index)
    {
        click(index);
        QTest::mouseDClick(&cell(index), Qt::LeftButton);
        QTest::mouseRelease(&cell(index), Qt::LeftButton);
    }
    /// The colour of a cell as it is seen, beside its text.
    [[nodiscard]] std::string colourOf(int index)
    {
        return cell(index).grab().toImage().pixelColor(4, 4).name().toStdString();
    }
    /// The lines of a cell in the file that Save writes.
    [[nodiscard]] std::string saved(int index)
    {
        m_dialogs.files = {path("look.sav")};
        m_boxes.answers = {true};
        choose("Save");
        const QByteArrayList lines = m_folder.folder().read("look.sav").split('\n');
        QByteArray all = lines.mid(qsizetype{7} * index, 7).join('|');
        return all.replace("\r", "").toStdString();
    }
    [[nodiscard]] int focused() const
    {
        return QApplication::focusWidget()->objectName().section(u'_', 1).toInt();
    }
    [[nodiscard]] std::string title() const { return m_form->windowTitle().toStdString(); }
    [[nodiscard]] QString status() const { return m_form->findChild<QStatusBar*>()->currentMessage(); }

    store::test::StoreFolder m_folder{store::catalogue()};
    ApplicationValues m_values;
    test::RecordingBoxes m_boxes;
    test::RecordingDialogs m_dialogs;
    QString m_printFile;
    std::optional<PrinterChoice> m_chosen;
    PrinterInUse m_printer{{}, [this](const PrinterChoice& choice) {
                               m_chosen = choice;
                               return makePrinter();
                           }};
    std::optional<OverlayForm> m_form;
};

} // namespace norvane::overlay
