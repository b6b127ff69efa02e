// A shop manager at work: the real program with its forms, over a staged program folder with the real tools
// and a bank of registers. Acts by menu entries, clicks and keys, looks at what registers and database hold.
#pragma once

#include "shell/FrmMain.h"
#include "tests/support/ProgramFolder.h"
#include "tests/support/RecordingBoxes.h"

#include <QList>

#include <functional>
#include <memory>

class QDialog;

namespace norvane::test
{

/// Numbers of boxes in the exchange dialog.
using BoxNumbers = QList<int>;

class Shop
{
public:
    /// Starts with a new customer. @p model is the index ECRModel.
    Shop(int model, int registers);

    /// Makes a second customer and goes on with it, as after a new start of the program.
    void startWith(const QString& customer);

    [[nodiscard]] ProgramFolder& folder() { return m_folder; }
    [[nodiscard]] const ApplicationValues& values() const { return m_values; }
    [[nodiscard]] RecordingBoxes& boxes() { return m_boxes; }

    /// Opens the exchange dialog, ticks @p boxes or, without any, all by "Select All", presses OK, leaves.
    /// @return the boxes still ticked after it.
    BoxNumbers upload(const BoxNumbers& boxes = {}) { return exchange("UploadVelmar", boxes); }
    BoxNumbers download(const BoxNumbers& boxes = {}) { return exchange("DownloadVelmar", boxes); }

    /// Chooses a menu entry that opens a form which is not modal. @return the form.
    QWidget& openForm(const char* entry);
    /// The form in front that is not modal, if any.
    [[nodiscard]] QWidget* front() const;
    /// Presses a button of a form.
    static void press(QWidget& form, const char* button);

    /// What a register holds in a file, as text lines split at the commas.
    [[nodiscard]] QList<QByteArrayList> recordsOf(int registerNumber, int file) const;
    [[nodiscard]] qint64 rowsOf(const char* table) const;
    /// Runs a statement on the customer's database, as another program at the same file would.
    void execute(const char* sql) const;

    /// Chooses a menu entry; @p act runs as soon as a modal dialog stands open.
    void choose(const char* entry, const std::function<void(QDialog&)>& act = {});

private:
    BoxNumbers exchange(const char* entry, const BoxNumbers& boxes);

    ProgramFolder m_folder;
    ApplicationValues m_values;
    RecordingBoxes m_boxes;
    std::unique_ptr<shell::FrmMain> m_main;
};

} // namespace norvane::test
