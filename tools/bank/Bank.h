// The bank of registers that the tools use: a folder with one sub-folder for each register.
//
// registers.ini, in the working directory or beside the tool, says in [Bank] Folder= where the bank is,
// relative to itself. Each register's folder is its number from 1 and contains register.ini, the binary files
// NN.dat and its sales (Totals.h).
#pragma once

#include "tools/bank/Model.h"

#include <QByteArrayList>
#include <QList>

#include <optional>

namespace bank
{

struct Register {
    int number = 0;
    QString folder;
    Model model = Model::Velmarn;
    int generation = 3; ///< of the firmware, 2 or 3: decides the length of the memory file
    bool cards = true;  ///< has the files of the card functions (71, 85, 86)
    int port = 1;       ///< the serial port that it is connected to
    bool on = true;
    bool busy = false;
    std::optional<quint8> stamp; ///< of its PLU report, in place of what its settings give

    [[nodiscard]] bool knowsFile(int file) const;
    [[nodiscard]] QString filePath(int file) const;
    /// The columns of each record of a file with a text form. @throws ToolFailure, TextFault
    [[nodiscard]] QList<QByteArrayList> records(int file) const;
    /// The columns of its memory file, of as many as its generation has. @throws ToolFailure
    [[nodiscard]] QList<QByteArray> memory() const;

    void save() const; ///< writes register.ini
};

class Bank
{
public:
    explicit Bank(QString folder) : m_folder(std::move(folder)) {}

    /// Looks for registers.ini in the working directory, then beside the tool or the link by which it was
    /// started, then in @p toolFolder.
    static std::optional<Bank> find(const QString& toolFolder);

    [[nodiscard]] QString folder() const { return m_folder; }
    /// All registers in the order of their numbers.
    [[nodiscard]] QList<Register> registers() const;
    /// Those on serial port @p port: the first is the one at the end of the line.
    [[nodiscard]] QList<Register> registersOn(int port) const;

private:
    QString m_folder;
};

} // namespace bank
